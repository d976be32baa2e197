// SPDX-License-Identifier: MIT
//
// Windows-style messages to widgets, message boxes, and the module that resource strings come from.
//
//     #include <KtQtBase/windows/MessageNumbers.h>
//
//     bool Panel::event(QEvent* event)
//     {
//         if (auto* message = dynamic_cast<QKtMsgEvent*>(event))
//             return onMessage(message->message(), message->wParam(), message->lParam());
//         return QWidget::event(event);
//     }
//
//     int answer = 0;
//     HWND window = reinterpret_cast<HWND>(panel->winId());
//     PostMessage(window, WM_USER + 1, 0, 0);
//     if (AfxMessageBox(L"Save the changes?", MB_YESNO) == IDYES)
//         SendMessage(window, WM_USER + 2, 0, reinterpret_cast<LPARAM>(&answer));
//
// Cursor, focus and keys, which a Windows program uses along with its messages, are in
// windows/UserStubs.h, which this header includes.
//
// A window handle is what QWidget::winId() gives. All functions belong to the GUI thread, except as
// PostMessage says.
#ifndef KTQTBASE_MESSAGES_H
#define KTQTBASE_MESSAGES_H

#include <KtQtBase/Export.h>
#include <KtQtBase/windows/Scalars.h>
#include <KtQtBase/windows/UserStubs.h>

#include <QtCore/QEvent>

// ---- Messages as Qt events ---------------------------------------------------------------------

// A message on its way to a widget. Receivers know it by dynamic_cast, or by comparing type() with
// eventType().
class KTQTBASE_EXPORT QKtMsgEvent : public QEvent
{
public:
    // A message; the values are kept as given.
    //   message    in: its number
    //   wParam     in: its first parameter
    //   lParam     in: its second parameter; what it may point to stays the caller's
    // The event's type is eventType().
    QKtMsgEvent(UINT message, WPARAM wParam, LPARAM lParam);
    ~QKtMsgEvent() override;

    // The Qt event type of every message.
    // Result: a user type that Qt chose; the same for the life of the process.
    // The first call of this function, the constructor, SendMessage or PostMessage registers it,
    // without a lock: make that call on the GUI thread.
    static int eventType();

    // The three values that the constructor got.
    UINT message() const;
    WPARAM wParam() const;
    LPARAM lParam() const;

    UINT m_nMessage;
    WPARAM m_wParam;
    LPARAM m_lParam;

    // The registered event type; -1 until there is one.
    static int iKtMsgEventType;
};

// Carries messages to widgets.
class KTQTBASE_EXPORT QKtMessageCenter
{
public:
    QKtMessageCenter() = delete;

    // Delivers a message and waits until the receiver has handled it.
    //   hWnd      in: the receiver's handle
    //   msg       in: the message's number
    //   wParam    in: its first parameter
    //   lParam    in: its second parameter
    // Result: always 0. Nothing is delivered if the handle names no widget of this process, or
    // without an application object.
    // On Windows: the result is the receiver's answer; here it answers through memory that a
    // parameter points to.
    static LRESULT sendMessage(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam);

    // Queues a message. The receiver gets it from the event loop, at normal priority.
    //   hWnd      in: the receiver's handle
    //   msg       in: the message's number
    //   wParam    in: its first parameter
    //   lParam    in: its second parameter; what it may point to must live until the delivery
    // Result: always true. Nothing is queued if the handle names no widget of this process. If the
    // widget dies first, its messages are deleted.
    // May be called from any thread after the event type was registered, as long as no widget gets
    // or loses its handle meanwhile.
    // On Windows: false for a handle that names no window.
    static bool postMessage(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam);
};

// The same two under their Windows names.

// Delivers a message and waits; the same as QKtMessageCenter::sendMessage.
// Result: always 0, whatever the receiver returns.
// On Windows: the result is the receiver's answer. A host that reads it passes the address of a
// variable in a parameter instead, and the receiver writes there.
KTQTBASE_EXPORT LRESULT SendMessage(HWND hWnd, UINT Msg, WPARAM wParam, LPARAM lParam);

// Queues a message; the same as QKtMessageCenter::postMessage.
// Result: always true.
// On Windows: false for a handle that names no window.
KTQTBASE_EXPORT bool PostMessage(HWND hWnd, UINT Msg, WPARAM wParam, LPARAM lParam);

// ---- Message boxes -----------------------------------------------------------------------------

// Shows a text with the icon of a critical error and the buttons Yes (the default) and No. Waits
// until the user closes the box.
//   lpszText    in: the text, UTF-32, zero-terminated; null is the empty text
//   nType       not used: every box is the same
//   nIDHelp     not used
// Result: IDYES or IDNO, by the button; Escape and the window's close button count as No. If the
// host's own code adds a button or ends the box, the result is, by the button that closed the box:
// Ok IDOK, Cancel IDCANCEL, Retry IDRETRY, Ignore IDIGNORE, Yes IDYES, No IDNO, any other or none
// IDABORT. A box that is ended by done(-1) counts as cancelled, one ended by done(0) gives IDABORT.
// Without a QApplication no box appears, and the result is IDABORT.
// Kept: nType changes nothing; a host that passes MB_OK sees IDYES or IDNO, never IDOK.
// On Windows: nType chooses the buttons and the icon, the title is the application's name.
KTQTBASE_EXPORT int AfxMessageBox(const wchar_t* lpszText, unsigned int nType = 0,
                                  unsigned int nIDHelp = 0);

// The same with a text from the resource module.
//   nIDPrompt    in: the text's number; one that the module does not have shows an empty box
//   nType        not used
//   nIDHelp      not used
KTQTBASE_EXPORT int AfxMessageBox(unsigned int nIDPrompt, unsigned int nType = 0,
                                  unsigned int nIDHelp = static_cast<unsigned int>(-1));

// ---- The resource module -----------------------------------------------------------------------

// The module that CStdStr<wchar_t>::LoadString and AfxMessageBox read strings from: a handle from
// LoadLibrary, null until it is set. The library never frees it.
extern KTQTBASE_EXPORT HINSTANCE m_hCurrentResourceHandle;

// Returns m_hCurrentResourceHandle.
// On Windows: never null.
KTQTBASE_EXPORT HINSTANCE AfxGetResourceHandle();

// Stores a handle in m_hCurrentResourceHandle.
//   hInstResource    in: the module, unchecked; it stays the caller's and must outlive its use
KTQTBASE_EXPORT void AfxSetResourceHandle(HINSTANCE hInstResource);

#endif
