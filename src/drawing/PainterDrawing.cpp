// SPDX-License-Identifier: MIT
//
// Points, lines, polygons, rectangles and text.
#include <KtQtBase/drawing/Painter.h>

#include "drawing/ColorRef.h"

#include <QtCore/QPoint>
#include <QtGui/QPainter>

namespace {

// Arrays of points reach Qt without being copied.
static_assert(sizeof(POINT) == sizeof(QPoint));
static_assert(alignof(POINT) == alignof(QPoint));

const QPoint* qtPoints(const POINT* pts)
{
    return reinterpret_cast<const QPoint*>(pts);
}

// The figure is always closed, as the header says.
void recordFigure(QPainterPath& path, const QPoint* points, int n)
{
    path.moveTo(points[0]);
    for (int i = 1; i < n; ++i)
        path.lineTo(points[i]);
    path.closeSubpath();
}

QRect inclusiveRect(const CRect& rc)
{
    const QPoint leftTop(rc.left, rc.top);
    const QPoint rightBottom(rc.right, rc.bottom);
    return rc.left < rc.right ? QRect(leftTop, rightBottom) : QRect(rightBottom, leftTop);
}

} // namespace

void KtQtPainterWrapper::drawPoint(int x, int y)
{
    const QPoint point(x, y);
    m_pPainter->drawPoints(&point, 1);
}

void KtQtPainterWrapper::drawPolyline(const POINT* pts, int n)
{
    if (m_pPath)
        recordFigure(*m_pPath, qtPoints(pts), n);
    else
        m_pPainter->drawPolyline(qtPoints(pts), n);
}

void KtQtPainterWrapper::drawPolygon(const POINT* pts, int n)
{
    m_pPainter->drawPolygon(qtPoints(pts), n, Qt::OddEvenFill);
}

void KtQtPainterWrapper::drawText(int x, int y, const wchar_t* text, int len)
{
    m_pPainter->drawText(QPointF(x, y), QString::fromWCharArray(text, len));
}

void KtQtPainterWrapper::drawAlphaRect(const CRect& rc, unsigned int color, int alpha)
{
    QColor translucent = ktqtbase::colorFromRef(color);
    translucent.setAlpha(alpha);
    m_pPainter->setBrush(QBrush(translucent, Qt::SolidPattern));
    const QRect rect = inclusiveRect(rc);
    m_pPainter->drawRects(&rect, 1);
}

void KtQtPainterWrapper::fillRect(const QRect& rect, Qt::GlobalColor color)
{
    m_pPainter->fillRect(rect, QColor(color));
}
