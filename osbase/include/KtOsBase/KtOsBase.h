// SPDX-License-Identifier: MIT
//
// The OS-base library: the few C runtime functions of Windows that libKtQtBase expects from its
// host. With this stand-in the library can be built and used without a host's own.
//
//     for (const wchar_t* p = name; _wcsnextc(p) != 0; p = _wcsinc(p)) { ... }
#ifndef KTOSBASE_KTOSBASE_H
#define KTOSBASE_KTOSBASE_H

#if defined(__GNUC__)
#define KTOSBASE_EXPORT __attribute__((visibility("default")))
#else
#define KTOSBASE_EXPORT
#endif

// The position of the next character.
//   text    not null, not at its terminator
// Result: text + 1, since a character is one 32-bit unit here.
KTOSBASE_EXPORT wchar_t* _wcsinc(const wchar_t* text);

// The character at a position.
//   text    not null
// Result: the character's code point; 0 at the terminator.
KTOSBASE_EXPORT unsigned int _wcsnextc(const wchar_t* text);

// Formatted wide print into a buffer whose size is not passed.
//   buffer    out: the text and its terminator; the caller provides enough room
//   format    as for the C library's swprintf
// Result: the number of characters before the terminator, or -1 when the format or an argument
// cannot be converted (buffer then holds the empty string).
KTOSBASE_EXPORT int swprintf(wchar_t* buffer, const wchar_t* format, ...);

// Renames a file or a folder.
//   oldName, newName    wide names, converted by the current LC_CTYPE
// Result: 0 done; -1 refused, also for a null name and for one that does not convert.
KTOSBASE_EXPORT int _wrename(const wchar_t* oldName, const wchar_t* newName);

// Whether a byte begins a two-byte character of the system's code page.
// Result: 0 always: narrow text is UTF-8, which has no lead bytes in the Windows sense.
KTOSBASE_EXPORT int IsDBCSLeadByte(unsigned char byte);

#endif
