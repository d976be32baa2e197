// SPDX-License-Identifier: MIT
//
// Scalar types and opaque handles under their Windows names.
//
//     HWND window = reinterpret_cast<HWND>(widget->winId());
//
// Each kind of handle is a pointer to a struct of its own that is never defined, so that two kinds
// do not convert into each other. A host casts to and from them with reinterpret_cast.
#ifndef KTQTBASE_WINDOWS_SCALARS_H
#define KTQTBASE_WINDOWS_SCALARS_H

class QWidget;

// ---- Scalar types ------------------------------------------------------------------------------

// Objective-C has a BOOL of its own, and plain C++ gets it by <objc/objc.h>, too: the last two are
// the macros by which Apple's and GNU's tell of it. No function of this library takes or returns
// BOOL: what Windows declares as BOOL is int or bool here, as each declaration says.
#if !defined(__OBJC__) && !defined(BOOL) && !defined(OBJC_BOOL_DEFINED) &&                         \
    !defined(__objc_INCLUDE_GNU)
using BOOL = int;
#endif

using BYTE = unsigned char;
using WORD = unsigned short;
using DWORD = unsigned int;
using UINT = unsigned int;
using LONG = int;
using HRESULT = int;

// A message's first parameter, its second one, and its result.
using WPARAM = unsigned long long;
using LPARAM = long long;
using LRESULT = long long;

// Red in bits 0 to 7, green in 8 to 15, blue in 16 to 23; bits 24 to 31 are ignored.
using COLORREF = unsigned int;

// ---- Handles -----------------------------------------------------------------------------------

using HANDLE = void*;
using HGDIOBJ = void*;

using HWND = struct HWND__*;
using HDC = struct HDC__*;
using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HCURSOR = struct HCURSOR__*;
using HFONT = struct HFONT__*;
using HPALETTE = struct HPALETTE__*;
using HACCEL = struct HACCEL__*;
using HMENU = struct HMENU__*;
using HBITMAP = struct HBITMAP__*;
using HKEY = struct HKEY__*;

// A place in a list that is being walked; null when no item is left.
using POSITION = struct POSITION__*;

// The parent window of MFC-style signatures is a Qt widget.
// On Windows: a class of MFC, with its own members; here a window has those of QWidget.
using CWnd = QWidget;

#endif
