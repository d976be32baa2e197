// SPDX-License-Identifier: MIT
#include <KtQtBase/Messages.h>

namespace {

// Registers the type with the first event. No call of an exported function, which another library
// could take the place of and which therefore costs as much as the rest of an event.
inline int registered(int& type)
{
    if (type < 0)
        type = QEvent::registerEventType();
    return type;
}

} // namespace

int QKtMsgEvent::iKtMsgEventType = -1;

QKtMsgEvent::QKtMsgEvent(UINT message, WPARAM wParam, LPARAM lParam)
    : QEvent(static_cast<QEvent::Type>(registered(iKtMsgEventType))), m_nMessage(message),
      m_wParam(wParam), m_lParam(lParam)
{}

// Out of line, so that the type information exists once and a host's dynamic_cast finds it.
QKtMsgEvent::~QKtMsgEvent() = default;

int QKtMsgEvent::eventType()
{
    return registered(iKtMsgEventType);
}

UINT QKtMsgEvent::message() const
{
    return m_nMessage;
}

WPARAM QKtMsgEvent::wParam() const
{
    return m_wParam;
}

LPARAM QKtMsgEvent::lParam() const
{
    return m_lParam;
}
