// SPDX-License-Identifier: MIT
//
// A host that uses Xlib, by the table of docs/porting-header.md.
#define KTQTBASE_PORTING_NO_INT64
#include <KtQtBase/KtQtBase.h>
#include <KtQtBase/Porting.h>

#include <X11/Xlib.h>

#define BOOL XBOOL
#include <X11/Xmd.h>
#include <X11/Xproto.h>
#undef BOOL

#include <X11/Xutil.h>

static_assert(sizeof(INT64) == sizeof(LONGLONG) && None == 0);
