// SPDX-License-Identifier: MIT
//
// Everything that differs between the platforms. Each platform has one source file with these
// functions; the loader's are in a file that the platforms share. No other file of the library asks
// which platform it is on.
#ifndef KTQTBASE_PLATFORM_PLATFORM_H
#define KTQTBASE_PLATFORM_PLATFORM_H

#include <cstdint>

namespace ktqtbase::platform {

// The path of the running executable.
//   buffer    out: the path and its terminator
//   size      in/out: the buffer's size in bytes
// Result: 0 done, *size stays; -1 the path does not fit, *size is the size that it needs and the
// buffer stays. If the path is not known, -1 and a size of 0. Callers have room for 1,024 bytes, so that
// a platform need not give a longer path.
int executablePath(char* buffer, std::uint32_t* size);

// The suffix of a shared library's file name, with its dot.
const char* sharedLibrarySuffix();

// setlocale's name of a plain UTF-8 LC_CTYPE.
const char* utf8LocaleName();

// The frame of the main screen in points, cut to whole numbers; 0 without a main screen.
int mainScreenWidth();
int mainScreenHeight();

// The dynamic loader, with lazy binding. The handle null, and 1 for the main program, name no
// module: no symbol is found in them, and closing them fails (non-zero). In -1 the symbols of what
// is loaded after this library are found; closing it fails, too.
void* openModule(const char* fileName);
void* findSymbol(void* module, const char* name);
int closeModule(void* module);

// The file that an address inside a module was loaded from.
//   fileName    out: the loader's own text; untouched if nothing is found
// Result: what the loader returns, 0 for an address outside every module.
int moduleFileName(const void* address, const char** fileName);

} // namespace ktqtbase::platform

#endif
