// SPDX-License-Identifier: MIT
//
// The numbers of Windows messages, and the buttons and keys that a mouse message reports.
//
//     SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
//     PostMessage(window, WM_USER + 1, 0, 0);
//
// Each has the value that Windows publishes. No other header includes this one, since many hosts
// have such names of their own. A macro of the host with one of them stays what it is.
#ifndef KTQTBASE_WINDOWS_MESSAGENUMBERS_H
#define KTQTBASE_WINDOWS_MESSAGENUMBERS_H

#include <KtQtBase/windows/Scalars.h>

#include <KtQtBase/windows/HostMacros.h> // sets the host's macros aside

// The library itself sends none of these; a host's windows use them to pass on Qt's events.
constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_MOVE = 0x0003;
constexpr UINT WM_SIZE = 0x0005;
constexpr UINT WM_SETFOCUS = 0x0007;
constexpr UINT WM_KILLFOCUS = 0x0008;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_SETCURSOR = 0x0020;
constexpr UINT WM_NOTIFY = 0x004E;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_INITDIALOG = 0x0110;
constexpr UINT WM_COMMAND = 0x0111;
constexpr UINT WM_SYSCOMMAND = 0x0112;
constexpr UINT WM_TIMER = 0x0113;
constexpr UINT WM_HSCROLL = 0x0114;
constexpr UINT WM_VSCROLL = 0x0115;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
constexpr UINT WM_RBUTTONDOWN = 0x0204;
constexpr UINT WM_RBUTTONUP = 0x0205;
constexpr UINT WM_MBUTTONDOWN = 0x0207;
constexpr UINT WM_MBUTTONUP = 0x0208;
constexpr UINT WM_MOUSEWHEEL = 0x020A;

// The buttons and keys that are down during a mouse message, in its wParam.
constexpr WPARAM MK_LBUTTON = 0x0001;
constexpr WPARAM MK_RBUTTON = 0x0002;
constexpr WPARAM MK_SHIFT = 0x0004;
constexpr WPARAM MK_CONTROL = 0x0008;
constexpr WPARAM MK_MBUTTON = 0x0010;

// The first free numbers for a window class's own messages and for an application's.
constexpr UINT WM_USER = 0x0400;
constexpr UINT WM_APP = 0x8000;

#include <KtQtBase/windows/HostMacros.h> // gives them back

#endif
