// SPDX-License-Identifier: MIT
//
// Window functions without a counterpart here: a host links and runs, but they do nothing.
//
//     HDC context = GetDC(window);                                // always null
//     ReleaseDC(window, context);
//
// No function here reads, writes or keeps anything through its arguments, so every argument may be
// null. None sets an error code.
#ifndef KTQTBASE_WINDOWS_USERSTUBS_H
#define KTQTBASE_WINDOWS_USERSTUBS_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/windows/Records.h>
#include <KtQtBase/windows/Scalars.h>

// ---- Windows -----------------------------------------------------------------------------------

// The device context of a window.
// Inert: returns null. KtQtPainterWrapper draws on a widget.
// On Windows: returns a context, to be released by ReleaseDC.
KTQTBASE_INERT("returns null. KtQtPainterWrapper draws on a widget.")
KTQTBASE_EXPORT HDC GetDC(HWND hWnd);

// Releases a device context.
// Inert: returns 0 and releases nothing.
// On Windows: 1 means that the context was released.
KTQTBASE_INERT("returns 0 and releases nothing.")
KTQTBASE_EXPORT int ReleaseDC(HWND hWnd, HDC hDC);

// Shows a message box.
// Inert: returns 0, which is none of the ID results; no box is shown. AfxMessageBox shows one.
// On Windows: waits for the user and returns the ID of the button pressed.
KTQTBASE_INERT("returns 0, which is none of the ID results; no box is shown. AfxMessageBox shows "
               "one.")
KTQTBASE_EXPORT int MessageBox(HWND hWnd, const wchar_t* lpText, const wchar_t* lpCaption,
                               unsigned int uType);

// The position of the mouse pointer.
// Inert: returns 0; the point is not written.
// On Windows: writes the position in screen pixels; non-zero means success.
KTQTBASE_INERT("returns 0; the point is not written.")
KTQTBASE_EXPORT int GetCursorPos(POINT* lpPoint);

// Destroys a menu.
// Inert: returns 0 and destroys nothing.
// On Windows: releases the menu and its submenus; non-zero means success.
KTQTBASE_INERT("returns 0 and destroys nothing.")
KTQTBASE_EXPORT int DestroyMenu(HMENU hMenu);

// Destroys a table of keyboard shortcuts.
// Inert: returns 0 and destroys nothing.
// On Windows: releases the table; non-zero means that no reference is left.
KTQTBASE_INERT("returns 0 and destroys nothing.")
KTQTBASE_EXPORT int DestroyAcceleratorTable(HACCEL hAccel);

// Registers a clipboard format and gives it a number.
// Inert: returns 0, which is no format; nothing is registered.
// On Windows: returns the same number, 0xC000 or above, for the same name everywhere.
KTQTBASE_INERT("returns 0, which is no format; nothing is registered.")
KTQTBASE_EXPORT unsigned int RegisterClipboardFormatW(const wchar_t* lpszFormat);

// ---- Cursor, focus and keys --------------------------------------------------------------------

// These functions are in this namespace only: a host writes KtUser32::SetFocus.
namespace KtUser32 {

// The mouse pointer's shape.
// Inert: returns null. QWidget::cursor knows it.
// On Windows: returns the shape that is shown.
KTQTBASE_INERT("returns null. QWidget::cursor knows it.")
KTQTBASE_EXPORT HCURSOR GetCursor();

// Changes the mouse pointer's shape.
// Inert: changes nothing. QWidget::setCursor does.
// On Windows: returns the shape that was shown before.
KTQTBASE_INERT("changes nothing. QWidget::setCursor does.")
KTQTBASE_EXPORT void SetCursor(HCURSOR hCursor);

// Enables or disables input to a window.
// Inert: returns true (1) and changes nothing. QWidget::setEnabled does.
// On Windows: the result says whether the window was disabled before.
KTQTBASE_INERT("returns true (1) and changes nothing. QWidget::setEnabled does.")
KTQTBASE_EXPORT int EnableWindow(HWND hWnd, bool bEnable);

// Gives a window the keyboard focus.
// Inert: returns null and changes nothing. QWidget::setFocus does.
// On Windows: returns the window that had the focus before.
KTQTBASE_INERT("returns null and changes nothing. QWidget::setFocus does.")
KTQTBASE_EXPORT HWND SetFocus(HWND hWnd);

// The window that has the keyboard focus.
// Inert: returns null. QApplication::focusWidget knows it.
// On Windows: null only if no window of the thread has it.
KTQTBASE_INERT("returns null. QApplication::focusWidget knows it.")
KTQTBASE_EXPORT HWND GetFocus();

} // namespace KtUser32

// Whether a key is down or toggled.
// Inert: returns 0, which is neither, for every key.
// On Windows: bit 15 means down, bit 0 toggled.
KTQTBASE_INERT("returns 0, which is neither, for every key.")
KTQTBASE_EXPORT short GetKeyState(int nVirtKey);

#endif
