// SPDX-License-Identifier: MIT
//
// The version of this program, which is that of the library.
#ifndef KTQTBASE_AUDIT_VERSION_H
#define KTQTBASE_AUDIT_VERSION_H

namespace ktqtbase::audit {

extern const char* const kVersion;

} // namespace ktqtbase::audit

#endif
