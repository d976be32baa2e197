// SPDX-License-Identifier: MIT
//
// All that differs between the platforms. One source file a platform answers these questions, the
// loader's calls stand in a file that the platforms share; no other file of the library asks which
// platform it is on.
#ifndef KTQTBASE_PLATFORM_PLATFORM_H
#define KTQTBASE_PLATFORM_PLATFORM_H

#include <cstdint>

namespace ktqtbase::platform {

// The path of the running executable.
//   buffer    out: the path and its terminator
//   size      in/out: the buffer's size in bytes
// Result: 0 done, *size left alone; -1 the path does not fit, *size set to the size it needs and
// the buffer left alone. Where the path is not known, -1 with a needed size of 0.
int executablePath(char* buffer, std::uint32_t* size);

// What the file name of a shared library ends in, with its dot.
const char* sharedLibrarySuffix();

// The name under which setlocale knows a plain UTF-8 LC_CTYPE.
const char* utf8LocaleName();

// The frame of the main screen in points, cut to whole numbers; 0 without a main screen.
int mainScreenWidth();
int mainScreenHeight();

// The dynamic loader, with lazy binding. A null handle, and the handle 1 that stands for the main
// program, name no module: no symbol is found in them and closing them fails (non-zero). So does
// closing -1.
void* openModule(const char* fileName);
void* findSymbol(void* module, const char* name);
int closeModule(void* module);

// The file that an address inside a module was loaded from.
//   fileName    out: the loader's own text; untouched when nothing is found
// Result: what the loader returns, 0 for an address outside every module.
int moduleFileName(const void* address, const char** fileName);

} // namespace ktqtbase::platform

#endif
