// SPDX-License-Identifier: MIT
//
// Profiles: settings in INI files, which are read and never written.
//
//     // app.ini holds "[Main]", then "Title = \"a b\"", then "Width = 10"
//     wchar_t title[64] = {};
//     GetPrivateProfileString(L"Main", L"Title", L"none", title, 64, L"/tmp/app.ini"); // "a b"
//     int width = GetPrivateProfileInt(L"Main", L"Width", 0, L"/tmp/app.ini");         // 10
//
// A profile is text in the multibyte encoding of the process's LC_CTYPE, read byte by byte up to
// its first zero byte. Nothing is remembered between calls: each call opens the file, reads all of
// it once and searches it once. White space is space, tab, line feed, vertical tab, form feed and
// carriage return, in every locale.
//
//   - A line ends at a line feed; if none follows any more, at a carriage return or at the end.
//     White space at both ends of a line is ignored.
//   - "[name]" begins a section. The name is the text before the first "]", spaces included; what
//     follows is ignored. A line of "[" without "]" is read as a key line.
//   - "name = value" is a key. The name ends before the first "=", the value is the rest of the
//     line; white space around both is ignored. A line without "=", and one without a name before
//     it ("=value"), is ignored. There are no comments: ";x=1" is a key named ";x".
//   - Names are compared exactly; upper and lower case differ.
//   - A byte-order mark is text: it hides the header behind it. UTF-16 is not read.
//
// A file name without a folder lies in the process's working directory. Only a slash separates
// folders: L"sub\\y.ini" is a file of just that name.
//
// Kept: a section goes on to the end of the file, so that keys of later sections are found too; a
// host would miss such keys otherwise.
// Kept: a file that cannot be opened for update (reading and writing) counts as absent; a host
// would see the values of a read-only file instead of its defaults.
// On Windows: a section ends at the next header, ";" starts a comment, "=value" is the value of the
// empty key, names are compared without case, UTF-16 with its mark and read-only files are read, a
// name without a folder lies in the Windows folder, and a backslash separates folders.
#ifndef KTQTBASE_WINDOWS_PROFILES_H
#define KTQTBASE_WINDOWS_PROFILES_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/windows/KernelStubs.h>

// Reads a key's value, the names of a section's keys, or the names of all sections.
//   section        in: the section; white space around it is ignored. Null asks for the names of
//                  all sections, whatever the key is.
//   key            in: the key; white space around it is ignored. Null asks for the names of the
//                  section's keys, up to the next line that begins with "[". The empty text names
//                  no key.
//   defaultText    in: the text to give if the section or the key is not found. Spaces at its end
//                  are dropped, but not its first character. Null counts as the empty text.
//   out            out: the text, zero-terminated, then zeros up to size
//   size           in: the size of out in bytes, terminator included
//   fileName       in: the file, in the multibyte encoding of the file system; null is no file
// All texts are multibyte, none is changed or kept, and names may have any length. No text may lie
// in out, which is filled with zeros first.
// Result: the number of bytes of the text before its quotes were removed, without the terminator.
//   "Width = 10"        => "10", 2
//   "Title = \"a b\""   => "a b", 5
//   "Title = a = b ;c"  => "a = b ;c", 8
//   "Title ="           => "", 0
//   "Width = 10", size 2          => "1", 1
//   keys Width and Title          => "Width\tTitle\t", 12
//   keys Width and Title, size 9  => "Width\tT", 7
// A text that does not fit is cut to size - 1 bytes. In a list, a tab follows every name. If name,
// tab and terminator would need all that is left of the buffer, or more, the list ends with the
// beginning of the name instead, and one byte of the room stays free.
// Double quotes at both ends are removed from every result, the default and lists included, but not
// from a default that is given because the file is absent or empty.
// Null for out or a size below 1 gives 0 and writes nothing; size 1 gives 0 and the empty text. An
// absent file gives the default, or the empty text if section is null; an empty file gives the
// default; a file that cannot be read or held in memory gives the empty text.
// Kept: the count includes the quotes; a host that compares it with the buffer's size would see
// another number.
// On Windows: there is no such function.
KTQTBASE_EXPORT int read_profile_string(const char* section, char* key, char* defaultText,
                                        char* out, int size, char* fileName);

// Reads a key's value.
//   lpAppName           in: the section
//   lpKeyName           in: the key
//   lpDefault           in: the text to give if the section or the key is not found
//   lpReturnedString    out: the value, zero-terminated; nothing is written after the terminator.
//                       Null writes nothing.
//   nSize               in: the room in characters, terminator included. Above 1,024 it counts as
//                       1,024; 0 writes nothing and gives 0.
//   lpFileName          in: the file
// Result: what read_profile_string returns: bytes of multibyte text, quotes included, and so not
// always the length of the value. The value has at most nSize - 1 bytes in multibyte form, and ends
// before the first byte that does not convert back.
//   "Width = 10"    => L"10", 2
//   "Title = \"é\"" => L"é", 4 in a UTF-8 locale
// A null section, key, default or file counts as the empty text, so that no list is ever given. A
// section or key that does not convert, or has 1,024 bytes or more, is not found; such a default is
// the empty text, and such a file is absent.
// On Windows: null asks for a list of names, each zero-terminated; the result counts characters; an
// nSize and a default above 1,024 are used as they are.
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
// A missing key, section or file gives 0. The texts are used as in GetPrivateProfileString.
// Kept: nDefault is never the result; a host that tests for 0 would see nDefault otherwise.
// On Windows: nDefault is given for a missing key, and the result is unsigned.
KTQTBASE_EXPORT int GetPrivateProfileInt(const wchar_t* lpAppName, const wchar_t* lpKeyName,
                                         int nDefault, const wchar_t* lpFileName);

// Lists the sections of a profile.
//   lpszReturnBuffer    not written
//   nSize               ignored
//   lpFileName          ignored
// Inert: returns 0 and reads nothing; read_profile_string without a section gives the names.
// On Windows: the names are written, each zero-terminated, and their length returned.
KTQTBASE_INERT("returns 0 and reads nothing; read_profile_string without a section gives the "
               "names.")
KTQTBASE_EXPORT unsigned int GetPrivateProfileSectionNames(wchar_t* lpszReturnBuffer,
                                                           unsigned int nSize,
                                                           const wchar_t* lpFileName);

// Writes a key's value.
//   lpAppName, lpKeyName, lpString, lpFileName    ignored
// Inert: returns 1; no file is made or changed.
// Kept: the result says success; a host that tests it would see a failure otherwise.
// On Windows: the key is written, or removed if lpString is null.
KTQTBASE_INERT("returns 1; no file is made or changed.")
KTQTBASE_EXPORT int WritePrivateProfileString(const wchar_t* lpAppName, const wchar_t* lpKeyName,
                                              const wchar_t* lpString, const wchar_t* lpFileName);

#endif
