// SPDX-License-Identifier: MIT
//
// What the first page of a Windows source takes for granted, besides the functions and types of
// the other headers: types, empty macros, the other spelling of each function, small helpers.
//
//     #include <KtQtBase/Porting.h>
//
//     LRESULT CALLBACK PanelProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
//     {
//         const CPoint place(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
//         LPCTSTR const caption = _T("Panel");
//         ...
//
// No other header includes this one. A host that has some of these names itself goes on using them:
//
//   - A macro of the host stays what it is, defined before or after. After it, one with another
//     text than here makes the compiler say so: switch the name off.
//   - A type of the host with the same meaning may stand beside the one here.
//   - #define KTQTBASE_PORTING_NO_LPCTSTR before the include leaves LPCTSTR out, and so for each name
//     of these headers. It is empty, 1, 0, ON or true, all with the same meaning; after another
//     value the compiler says so, or leaves the name out, too. KTQTBASE_PORTING_NO_PACKING and
//     KTQTBASE_PORTING_NO_MESSAGENUMBERS leave out the headers windows/Packing.h and
//     windows/MessageNumbers.h.
//
// Left out on purpose: IsDBCSLeadByte, which the OS-base library declares; min and max; __in and
// __out, which the C++ library uses itself; __declspec.
#ifndef KTQTBASE_PORTING_H
#define KTQTBASE_PORTING_H

#include <KtQtBase/porting/Geometry.h>
#include <KtQtBase/porting/Helpers.h>
#include <KtQtBase/porting/Macros.h>
#include <KtQtBase/porting/OtherNames.h>
#include <KtQtBase/porting/Types.h>

#ifndef KTQTBASE_PORTING_NO_MESSAGENUMBERS
#include <KtQtBase/windows/MessageNumbers.h>
#endif
#ifndef KTQTBASE_PORTING_NO_PACKING
#include <KtQtBase/windows/Packing.h>
#endif

#endif
