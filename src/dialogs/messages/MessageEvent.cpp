// SPDX-License-Identifier: MIT
#include <KtQtBase/Messages.h>

int QKtMsgEvent::iKtMsgEventType = -1;

QKtMsgEvent::QKtMsgEvent(UINT message, WPARAM wParam, LPARAM lParam)
    : QEvent(static_cast<QEvent::Type>(eventType())), m_nMessage(message), m_wParam(wParam),
      m_lParam(lParam)
{}

// Out of line, so that the type information exists once and a host's dynamic_cast finds it.
QKtMsgEvent::~QKtMsgEvent() = default;

int QKtMsgEvent::eventType()
{
    if (iKtMsgEventType < 0)
        iKtMsgEventType = QEvent::registerEventType();
    return iKtMsgEventType;
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
