// SPDX-License-Identifier: MIT
//
// The Windows types, records and constants that the functions of this library take and return.
//
//     POINT corner = {10, 20};
//     CRect area(0, 0, 640, 480);
//     DWORD attributes = GetFileAttributes(L"/tmp/report.txt");
//     if (attributes == INVALID_FILE_ATTRIBUTES) { ... }
//
// Records keep the layouts that Windows publishes for 64-bit programs, with a wchar_t of 32 bits.
// No Windows name in these headers is a macro, so no name of the host is rewritten; the constants
// give way to a host's macros of their names. RGB, LOWORD and their likes are in windows/Packing.h,
// message numbers in windows/MessageNumbers.h; a host includes those two itself.
#ifndef KTQTBASE_WINDOWSTYPES_H
#define KTQTBASE_WINDOWSTYPES_H

#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Records.h>
#include <KtQtBase/windows/Scalars.h>

#endif
