// SPDX-License-Identifier: MIT
//
// A host that uses Xlib, in the order of docs/porting.md.
#include <KtQtBase/KtQtBase.h>

#include <X11/Xlib.h>

#define BOOL XBOOL
#include <X11/Xmd.h>
#include <X11/Xproto.h>
#undef BOOL

#include <X11/Xutil.h>

#include <KtQtBase/windows/MessageNumbers.h>
#include <KtQtBase/windows/Packing.h>

static_assert(RGB(1, 0, 0) == 1 && None == 0);
