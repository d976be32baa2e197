// SPDX-License-Identifier: MIT
//
// Functions of the Windows API: most at global scope, some also, or only, in the namespaces
// KtKernel32 and KtUser32.
//
//     wchar_t name[1024] = {};
//     GetTempFileName(L"/tmp/", L"kt", 0, name);
//     CopyFile(source, name, false);
//
// The working ones are in the first headers below, grouped by concern. The others have no
// counterpart here: they do nothing, return a fixed value and write to none of their arguments.
// Each is marked Inert, and they are grouped by the Windows library that they come from.
//
// These are in a namespace only, with no global function of the name:
//
//   KtKernel32: FindCloseChangeNotification, FindNextChangeNotification, GetFileAttributesW,
//               SetLastError, WaitForSingleObject
//   KtUser32:   EnableWindow, GetCursor, GetFocus, SetCursor, SetFocus
#ifndef KTQTBASE_WINDOWSFUNCTIONS_H
#define KTQTBASE_WINDOWSFUNCTIONS_H

#include <KtQtBase/windows/CharNext.h>
#include <KtQtBase/windows/Files.h>
#include <KtQtBase/windows/Modules.h>
#include <KtQtBase/windows/Profiles.h>
#include <KtQtBase/windows/ResourceStrings.h>
#include <KtQtBase/windows/SystemInformation.h>

#include <KtQtBase/windows/GdiStubs.h>
#include <KtQtBase/windows/KernelStubs.h>
#include <KtQtBase/windows/ShellStubs.h>
#include <KtQtBase/windows/SpoolerStubs.h>
#include <KtQtBase/windows/UserStubs.h>

#endif
