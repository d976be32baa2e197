// SPDX-License-Identifier: MIT
//
// Files: attributes, copying, temporary names and the folder of the executable.
//
//     wchar_t folder[1024] = {};
//     GetCurrentDirectoryW(1024, folder);                 // the executable's folder
//     DWORD mode = GetFileAttributes(L"/tmp/report.txt"); // POSIX mode bits
//     CopyFile(L"/tmp/report.txt", L"/tmp/copy.txt", false);
//
// Names are converted with the process's LC_CTYPE. A name that is null or does not convert names no
// file: the call ends as it does for a missing file, and no file of a shortened name is opened,
// made or cut. Only a slash separates folders: a backslash is a character of the name, and CopyFile
// to L"sub\\y.txt" makes a file of just that name. Links are followed.
#ifndef KTQTBASE_WINDOWS_FILES_H
#define KTQTBASE_WINDOWS_FILES_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>

// The mode of a file.
//   lpFileName    in: its name
// Result: the file's POSIX mode, 16 bits of file type and permissions, or INVALID_FILE_ATTRIBUTES
// (0xFFFFFFFF) if there is no file of that name; GetLastError then gives the system's reason,
// but not for a null name.
//   L"/tmp"      => 0x43FF on most systems: a folder (0x4000) with its permissions
//   L"/missing"  => 0xFFFFFFFF
// Kept: the bits are POSIX's; path objects would report other types otherwise. They take bit 0x10,
// the group's write permission, for the directory attribute.
// On Windows: FILE_ATTRIBUTE flags, and a backslash separates folders.
KTQTBASE_EXPORT unsigned int GetFileAttributes(const wchar_t* lpFileName);

// Copies a file's bytes to another file, which is made, or emptied first.
//   lpExistingFileName    in: the source
//   lpNewFileName         in: the destination
//   bFailIfExists         ignored; an existing destination is always overwritten
// Result: always true. A destination that cannot be written and an incomplete copy are not
// reported. A missing source gives an empty destination; if both names are the same, the file
// becomes empty. A file that is made has the mode and the time of any new file; an existing one
// keeps its mode.
// Kept: the result is always true. Part of the interface.
// On Windows: false if the copy fails, or if the destination exists and bFailIfExists is true; the
// copy has the source's attributes and time of change, and a backslash separates folders.
KTQTBASE_EXPORT bool CopyFile(const wchar_t* lpExistingFileName, const wchar_t* lpNewFileName,
                              bool bFailIfExists);

// Makes a name for a temporary file; no file is made.
//   lpPathName        in: the folder with its closing slash, since none is added; it need not
//                     exist; null counts as empty
//   lpPrefixString    in: what the name begins with; null counts as empty
//   uUnique           in: the number to use, printed as a signed 32-bit one; 0 asks for six
//                     characters that name no file in the process's working directory
//   lpTempFileName    out: folder + prefix + number or characters + ".tmp"; the caller provides
//                     enough room. Null gives 0 and nothing else happens.
// Result: the length of the name.
//   L"/tmp/", L"ktTmp", 42          => L"/tmp/ktTmp42.tmp", 16
//   L"/tmp", L"kt", 1               => L"/tmpkt1.tmp", 11
//   L"/tmp/", L"kt", 0xFFFFFFFF     => L"/tmp/kt-1.tmp", 13
//   L"/tmp/", L"kt", 0              => for example L"/tmp/ktx3Yz9A.tmp", 17
// If no six characters can be found, that part of the name is empty. Sets the process's LC_CTYPE to
// UTF-8 permanently.
// On Windows: a separator is added, the folder must exist, at most three characters of the prefix
// are used, the number is hexadecimal, a file is made if uUnique is 0, and the result is the
// number.
KTQTBASE_EXPORT unsigned int GetTempFileName(const wchar_t* lpPathName,
                                             const wchar_t* lpPrefixString, unsigned int uUnique,
                                             wchar_t* lpTempFileName);

// The folder of the running executable.
//   nBufferLength    ignored; the caller provides at least 1,024 characters
//   lpBuffer         out: the folder without a closing slash (empty for an executable in the root);
//                    null writes nothing
// Result: 1024. If the executable's path has 1,024 bytes or more: the size that it needs, with the
// empty string written. A path that does not convert gives the empty string too.
// Kept: the executable's folder, not the working directory; relative names of a parse would lie in
// another folder otherwise.
// On Windows: the working directory, and its length.
KTQTBASE_EXPORT unsigned int GetCurrentDirectoryW(unsigned int nBufferLength, wchar_t* lpBuffer);

// Inert: returns 0; the working directory stays.
// On Windows: it is changed.
KTQTBASE_INERT("returns 0; the working directory stays.")
KTQTBASE_EXPORT int SetCurrentDirectoryW(const wchar_t* lpPathName);

// The same under the names of kernel32; each does what the global function does.
namespace KtKernel32 {

KTQTBASE_EXPORT unsigned int GetFileAttributes(const wchar_t* lpFileName);

// The same again. There is no global function of this name.
// On Windows: FILE_ATTRIBUTE flags, and a backslash separates folders.
KTQTBASE_EXPORT unsigned int GetFileAttributesW(const wchar_t* lpFileName);

KTQTBASE_EXPORT unsigned int GetCurrentDirectoryW(unsigned int nBufferLength, wchar_t* lpBuffer);

// Inert: returns 0; the working directory stays.
// On Windows: it is changed.
KTQTBASE_INERT("returns 0; the working directory stays.")
KTQTBASE_EXPORT int SetCurrentDirectoryW(const wchar_t* lpPathName);

} // namespace KtKernel32

#endif
