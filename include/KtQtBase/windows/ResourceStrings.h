// SPDX-License-Identifier: MIT
//
// Strings of resource modules: shared libraries that export a C function "loadstring".
//
//     // in the module
//     extern "C" const wchar_t* loadstring(unsigned int id);
//
//     // in the host
//     wchar_t text[64] = {};
//     LoadString(LoadLibrary(L"texts.dll"), 101, text, 64);
#ifndef KTQTBASE_WINDOWS_RESOURCESTRINGS_H
#define KTQTBASE_WINDOWS_RESOURCESTRINGS_H

#include <KtQtBase/Export.h>
#include <KtQtBase/windows/Scalars.h>

// Reads a string of a resource module.
//   hInstance     in: the module, which must be loaded still
//   uID           in: the string's number, handed to the module's "loadstring"
//   lpBuffer      out: the text, cut to nBufferMax - 1 characters, then zeros up to there. The last
//                 position is never written, so the caller fills the buffer with zeros first.
//   nBufferMax    in: the buffer's size in characters
// Result: the number of characters in the buffer before its first zero, at most nBufferMax. A
// string that the module does not have gives 0 and leaves the buffer untouched. A module without
// "loadstring", and the handles null and 1, give the empty string and 0 (a
// size of 1 writes nothing: the result then counts what the buffer held). A null buffer, or a size
// below 1, gives 0 and writes nothing.
//   L"abcdef", size 4, buffer of zeros  => L"abc", 3
// Kept: the last position is never written. Part of the interface.
// On Windows: the text is always terminated, strings come from the program's resources, size 0 asks
// for a pointer to the resource itself, and only the lower 16 bits of uID count.
KTQTBASE_EXPORT int LoadString(HINSTANCE hInstance, unsigned int uID, wchar_t* lpBuffer,
                               int nBufferMax);

#endif
