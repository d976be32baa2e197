// SPDX-License-Identifier: MIT
#include "CanvasArea.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QScrollBar>

#include <cmath>

namespace {

constexpr int kStep = 120; // of most wheels, in eighths of a degree

// How far the canvas is scrolled when the point under the mouse is still there at another size.
//   corner    in: where the canvas began, which is in the middle while there is room
int scrolled(double mouse, int corner, double growth)
{
    return static_cast<int>(std::lround((mouse - corner) * growth - mouse));
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
    const QPoint corner = widget()->pos();
    const int width = widget()->width();
    zoomTurned(m_turned > 0);
    m_turned = 0;
    const double growth = static_cast<double>(widget()->width()) / width;
    const QPointF mouse = event->position();
    horizontalScrollBar()->setValue(scrolled(mouse.x(), corner.x(), growth));
    verticalScrollBar()->setValue(scrolled(mouse.y(), corner.y(), growth));
}
