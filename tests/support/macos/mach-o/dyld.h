// SPDX-License-Identifier: MIT
//
// Declares what the macOS platform source takes from the system's header of this name, so that the
// source can be compiled, though not linked, on Linux.
#ifndef KTQTBASE_TESTS_MACHO_DYLD_H
#define KTQTBASE_TESTS_MACHO_DYLD_H

#include <cstdint>

extern "C" int _NSGetExecutablePath(char* buf, uint32_t* bufsize);

#endif
