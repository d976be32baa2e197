// SPDX-License-Identifier: MIT
#include "Panel.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <memory>

void Panel::send(UINT message, WPARAM wParam, LPARAM lParam)
{
    SendMessage(reinterpret_cast<HWND>(winId()), message, wParam, lParam);
}

bool Panel::event(QEvent* event)
{
    if (auto* sent = dynamic_cast<QKtMsgEvent*>(event)) {
        const HWND window = reinterpret_cast<HWND>(winId());
        DotsProc(m_dots, window, sent->message(), sent->wParam(), sent->lParam());
        return true;
    }
    return QWidget::event(event);
}

void Panel::mousePressEvent(QMouseEvent* event)
{
    const bool left = event->button() == Qt::LeftButton;
    send(left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, left ? MK_LBUTTON : MK_RBUTTON,
         MAKELPARAM(event->pos().x(), event->pos().y()));
}

void Panel::paintEvent(QPaintEvent*)
{
    std::unique_ptr<QPainter> owned; // the wrapper never deletes it
    KtQtPainterWrapper painter(this);
    owned.reset(painter.wrappedPainter());
    painter.beginDraw();
    Paint(m_dots, painter);
    painter.endDraw();
}

void Panel::closeEvent(QCloseEvent* event)
{
    send(WM_CLOSE, 0, 0);
    QWidget::closeEvent(event);
}
