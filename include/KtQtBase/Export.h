// SPDX-License-Identifier: MIT
//
// KTQTBASE_EXPORT marks what the shared library exports to hosts; everything else is hidden.
#ifndef KTQTBASE_EXPORT_H
#define KTQTBASE_EXPORT_H

#if defined(__GNUC__)
#define KTQTBASE_EXPORT __attribute__((visibility("default")))
#else
#define KTQTBASE_EXPORT
#endif

#endif
