// SPDX-License-Identifier: MIT
//
// Shell functions without a counterpart here: a host links and runs, but they do nothing.
//
//     wchar_t folder[MAX_PATH] = {};
//     SHGetFolderPath(nullptr, CSIDL_APPDATA, nullptr, 0, folder);
//     if (folder[0] == 0) { ... }                                 // always
//
// No function here reads, writes or keeps anything through its arguments, so every argument may be
// null. None sets an error code.
#ifndef KTQTBASE_WINDOWS_SHELLSTUBS_H
#define KTQTBASE_WINDOWS_SHELLSTUBS_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/windows/Scalars.h>

// The path of a special folder.
// Inert: returns 0; the path buffer is not written.
// Kept: 0 reads as S_OK. Part of the interface. Clear the buffer first and test the path, not the
// result.
// On Windows: writes the path, at most MAX_PATH characters, and returns S_OK or an error.
KTQTBASE_INERT("returns 0; the path buffer is not written.")
KTQTBASE_EXPORT HRESULT SHGetFolderPath(HWND hwnd, int csidl, void* hToken, unsigned int dwFlags,
                                        wchar_t* pszPath);

// The path of a special folder, in an older form.
// Inert: returns 0, a failure; the path buffer is not written and no folder is made.
// On Windows: writes the path and makes the folder if asked; non-zero means success.
KTQTBASE_INERT("returns 0, a failure; the path buffer is not written and no folder is made.")
KTQTBASE_EXPORT int SHGetSpecialFolderPath(HWND hwnd, wchar_t* pszPath, int csidl, bool fCreate);

// Tests a file name against patterns.
// Inert: returns 0, so that nothing matches, not even a name that equals the pattern.
// On Windows: non-zero means that the name matches one of the patterns.
KTQTBASE_INERT("returns 0, so that nothing matches, not even a name that equals the pattern.")
KTQTBASE_EXPORT int PathMatchSpec(const wchar_t* pszFile, const wchar_t* pszSpec);

#endif
