// SPDX-License-Identifier: MIT
#include "Canvas.h"

#include "app/SketchView.h"

#include <KtQtBase/Messages.h>
#include <KtQtBase/windows/MessageNumbers.h>
#include <KtQtBase/windows/Packing.h>

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

namespace {

LPARAM placeOf(const QMouseEvent* event)
{
    return MAKELPARAM(event->pos().x(), event->pos().y());
}

} // namespace

Canvas::Canvas(CSketchView& view, QWidget* parent) : QWidget(parent), m_view(view), m_image(this)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_view.OnCreate(reinterpret_cast<HWND>(winId()));
}

QSize Canvas::sizeHint() const
{
    const SIZE extent = m_view.GetExtent();
    return QSize(extent.cx, extent.cy);
}

bool Canvas::event(QEvent* event)
{
    if (event->type() == QKtMsgEvent::eventType()) {
        const auto* message = static_cast<QKtMsgEvent*>(event);
        return m_view.WindowProc(message->message(), message->wParam(), message->lParam());
    }
    return QWidget::event(event);
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_view.WindowProc(WM_LBUTTONDOWN, MK_LBUTTON, placeOf(event));
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    const WPARAM flags = event->buttons() & Qt::LeftButton ? MK_LBUTTON : 0;
    m_view.WindowProc(WM_MOUSEMOVE, flags, placeOf(event));
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_view.WindowProc(WM_LBUTTONUP, 0, placeOf(event));
}

void Canvas::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete) {
        m_view.WindowProc(WM_KEYDOWN, VK_DELETE, 0);
        return;
    }
    for (uint character : event->text().toUcs4())
        m_view.WindowProc(WM_CHAR, character, 0);
}

void Canvas::paintEvent(QPaintEvent*)
{
    m_image.createImages(width(), height(), 4);
    if (m_image.memPainter()->beginDraw()) {
        m_view.OnDraw(*m_image.memPainter());
        m_image.memPainter()->endDraw();
    }
    m_image.repairFrontBuffer();
    QPainter(this).drawImage(0, 0, *m_image.frontImage());
}
