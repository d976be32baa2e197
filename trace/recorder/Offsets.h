// SPDX-License-Identifier: MIT
//
// What the trampolines need of the layout in Record.h; macros, since assembler reads them.
#ifndef KTQTBASE_TRACE_OFFSETS_H
#define KTQTBASE_TRACE_OFFSETS_H

#define COUNTER_SIZE 16
#define COUNTER_CALLER 8

#endif
