// SPDX-License-Identifier: MIT
#include "CanvasArea.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QScrollBar>

namespace {

constexpr int kStep = 120; // of most wheels, in eighths of a degree

// Where the point under the mouse comes to lie when the canvas takes another size.
int scrolled(int value, double mouse, double growth)
{
    return static_cast<int>((value + mouse) * growth - mouse);
}

} // namespace

CanvasArea::CanvasArea(QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::NoFocus);
}

// What lies under the mouse stays there.
void CanvasArea::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier) || !zoomTurned) {
        QScrollArea::wheelEvent(event);
        return;
    }
    m_turned += event->angleDelta().y();
    if (qAbs(m_turned) < kStep)
        return;
    const QPoint before(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const int width = widget()->width();
    zoomTurned(m_turned > 0);
    m_turned = 0;
    const double growth = static_cast<double>(widget()->width()) / width;
    const QPointF mouse = event->position();
    horizontalScrollBar()->setValue(scrolled(before.x(), mouse.x(), growth));
    verticalScrollBar()->setValue(scrolled(before.y(), mouse.y(), growth));
}
