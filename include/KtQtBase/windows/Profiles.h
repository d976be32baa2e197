// SPDX-License-Identifier: MIT
//
// Profiles: settings in INI files, which are read and never written.
//
//     // app.ini holds "[Main]", then "Title = \"a b\"", then "Width = 10"
//     wchar_t title[64] = {};
//     GetPrivateProfileString(L"Main", L"Title", L"none", title, 64, L"/tmp/app.ini"); // "a b"
//     int width = GetPrivateProfileInt(L"Main", L"Width", 0, L"/tmp/app.ini");         // 10
//
// A profile is text in the multibyte encoding of the process's LC_CTYPE, taken byte by byte up to
// its first zero byte. Nothing is remembered between calls: each opens the file, reads it once as a
// whole and walks through it once. White space is space, tab, line feed, vertical tab, form feed
// and carriage return, in every locale.
//
//   - A line ends at a line feed; where none follows any more, at a carriage return or at the end.
//     White space at both ends of a line is dropped.
//   - "[name]" opens a section. The name is what stands before the first "]", spaces included; what
//     follows is ignored. A line of "[" without "]" is read as a key line.
//   - "name = value" is a key. The name ends before the first "=", the value is the rest of the
//     line; white space around both is dropped. A line without "=", and one without a name before
//     it, is ignored. There are no comments: ";x=1" is a key named ";x".
//   - Names are compared exactly, upper and lower case apart.
//
// Kept: a section, once met, goes on to the end of the file, so that keys of the sections behind it
// are found too; hosts read profiles in which a key slipped into a later section.
// Kept: a file that cannot be opened for update counts as absent; hosts ship read-only profiles to
// fall back on their defaults.
// On Windows: a section ends at the next header, ";" starts a comment, names are compared without
// case, and a read-only file is read.
#ifndef KTQTBASE_WINDOWS_PROFILES_H
#define KTQTBASE_WINDOWS_PROFILES_H

#include <KtQtBase/Export.h>
#include <KtQtBase/windows/KernelStubs.h>

// Reads a key's value, the names of a section's keys, or the names of all sections.
//   section        in: the section; white space around it is dropped. Null asks for the names of
//                  all sections, whatever the key is.
//   key            in: the key; white space around it is dropped. Null asks for the names of the
//                  section's keys, up to the next line that begins with "[". The empty text names
//                  no key.
//   defaultText    in: what to give where the section or the key is not found. Spaces at its end
//                  are dropped, but not its first character. Null counts as the empty text.
//   out            out: the text, zero-terminated, and zeros behind it up to size
//   size           in: the size of out in bytes, terminator included
//   fileName       in: the file, in the multibyte encoding of the file system; null is no file
// All texts are multibyte, none is changed or kept, and names may have any length. No text may lie
// in out, which is filled with zeros first.
// Result: the bytes of the text as it was before its quotes were removed, without the terminator.
//   "Width = 10"        => "10", 2
//   "Title = \"a b\""   => "a b", 5
//   "Title = a = b ;c"  => "a = b ;c", 8
//   "Title ="           => "", 0
//   "Width = 10", size 2          => "1", 1
//   keys Width and Title          => "Width\tTitle\t", 12
//   keys Width and Title, size 9  => "Width\tT", 7
// A text that does not fit is cut to size - 1 bytes. In a list, a tab follows every name; a name
// that would leave no byte to spare behind its tab closes the list with its beginning, one byte
// less than would fit.
// Double quotes at both ends are removed from every result, the default and lists included, but not
// from a default that is given because the file is absent or empty.
// Null for out or a size below 1 gives 0 and writes nothing; size 1 gives 0 and the empty text. An
// absent file gives the default, or the empty text where section is null; an empty file gives the
// default; one that cannot be read, or not held in memory, gives the empty text.
// Kept: the count includes the quotes; hosts compare it with the room they gave.
// On Windows: there is no such function.
KTQTBASE_EXPORT int read_profile_string(const char* section, char* key, char* defaultText,
                                        char* out, int size, char* fileName);

// Reads a key's value.
//   lpAppName           in: the section
//   lpKeyName           in: the key
//   lpDefault           in: what to give where the section or the key is not found
//   lpReturnedString    out: the value, zero-terminated; nothing behind the terminator is written.
//                       Null takes nothing.
//   nSize               in: the room in characters, terminator included. Above 1,024 it counts as
//                       1,024; 0 writes nothing and gives 0.
//   lpFileName          in: the file
// Result: what read_profile_string returns: bytes of multibyte text, quotes included, and so not
// always the length of the value. The value has at most nSize - 1 bytes in multibyte form; what
// does not convert back ends it.
//   "Width = 10"    => L"10", 2
//   "Title = \"é\"" => L"é", 4 in a UTF-8 locale
// A null section, key, default or file counts as the empty text, so that no list is ever given. A
// section or key that does not convert, or has 1,024 bytes or more, is found in no file; a default
// like that is the empty text, and a file is absent.
// On Windows: null asks for a list of names, each zero-terminated; the result counts characters.
KTQTBASE_EXPORT unsigned int GetPrivateProfileString(const wchar_t* lpAppName,
                                                     const wchar_t* lpKeyName,
                                                     const wchar_t* lpDefault,
                                                     wchar_t* lpReturnedString, unsigned int nSize,
                                                     const wchar_t* lpFileName);

// Reads a key's value as a number.
//   lpAppName     in: the section
//   lpKeyName     in: the key
//   nDefault      ignored
//   lpFileName    in: the file
// Result: the decimal number that the value begins with, as atoi reads it from the first 63 bytes.
//   "Width = 12abc"    => 12
//   "Width = -5"       => -5
//   "Width = \"7\""    => 7
//   "Width = abc"      => 0
// A missing key, section or file gives 0. Arguments are taken as GetPrivateProfileString takes
// them.
// Kept: nDefault is never the result; hosts test for 0.
// On Windows: nDefault is given for a missing key, and the result is unsigned.
KTQTBASE_EXPORT int GetPrivateProfileInt(const wchar_t* lpAppName, const wchar_t* lpKeyName,
                                         int nDefault, const wchar_t* lpFileName);

// Lists the sections of a profile.
//   lpszReturnBuffer    not written
//   nSize               ignored
//   lpFileName          ignored
// Inert: returns 0 and reads nothing; read_profile_string without a section gives the names.
// On Windows: the names are written, each zero-terminated, and their length returned.
KTQTBASE_EXPORT unsigned int GetPrivateProfileSectionNames(wchar_t* lpszReturnBuffer,
                                                           unsigned int nSize,
                                                           const wchar_t* lpFileName);

// Writes a key's value.
//   lpAppName, lpKeyName, lpString, lpFileName    ignored
// Inert: returns true; no file is made or changed.
// Kept: the result says success; hosts that save on exit would report a failure otherwise.
// On Windows: the key is written, or removed where lpString is null.
KTQTBASE_EXPORT bool WritePrivateProfileString(const wchar_t* lpAppName, const wchar_t* lpKeyName,
                                               const wchar_t* lpString, const wchar_t* lpFileName);

#endif
