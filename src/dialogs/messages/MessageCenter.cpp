// SPDX-License-Identifier: MIT
#include <KtQtBase/Messages.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

#include <memory>

namespace {

QWidget* widgetOf(HWND hWnd)
{
    return QWidget::find(reinterpret_cast<WId>(hWnd));
}

} // namespace

// Kept: both make the event before they look for the receiver, so that the first message registers
// the event type, delivered or not. Qt gets no null receiver: sendEvent would crash, and postEvent
// print a warning.

LRESULT QKtMessageCenter::sendMessage(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam)
{
    QKtMsgEvent event(msg, wParam, lParam);
    if (QWidget* const receiver = widgetOf(hWnd))
        QCoreApplication::sendEvent(receiver, &event);
    return 0;
}

bool QKtMessageCenter::postMessage(HWND hWnd, UINT msg, WPARAM wParam, LPARAM lParam)
{
    auto event = std::make_unique<QKtMsgEvent>(msg, wParam, lParam);
    if (QWidget* const receiver = widgetOf(hWnd))
        QCoreApplication::postEvent(receiver, event.release());
    return true;
}

LRESULT SendMessage(HWND hWnd, UINT Msg, WPARAM wParam, LPARAM lParam)
{
    return QKtMessageCenter::sendMessage(hWnd, Msg, wParam, lParam);
}

bool PostMessage(HWND hWnd, UINT Msg, WPARAM wParam, LPARAM lParam)
{
    return QKtMessageCenter::postMessage(hWnd, Msg, wParam, lParam);
}
