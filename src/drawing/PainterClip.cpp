// SPDX-License-Identifier: MIT
//
// Clips by rectangle and by polygon list.
#include <KtQtBase/drawing/Painter.h>

#include "drawing/PainterClip.h"

#include <QtGui/QPainter>

#include <algorithm>

namespace {

QPolygon polygonOf(const POINT* corners, unsigned int count)
{
    QPolygon polygon(static_cast<int>(count));
    std::transform(corners, corners + count, polygon.begin(),
                   [](const POINT& corner) { return QPoint(corner.x, corner.y); });
    return polygon;
}

QPainterPath pathOf(const POINT* points, const unsigned int* counts, unsigned int n)
{
    QPainterPath path;
    for (unsigned int i = 0; i < n; ++i) {
        path.addPolygon(QPolygonF(polygonOf(points, counts[i])));
        points += counts[i];
    }
    return path;
}

// One fill polygon for all of them, since a union of regions would have no holes.
QRegion oddEvenRegion(const POINT* points, const unsigned int* counts, unsigned int n)
{
    if (!points)
        return QRegion();
    const QPolygonF outline = pathOf(points, counts, n).toFillPolygon(QTransform());
    return QRegion(outline.toPolygon(), Qt::OddEvenFill);
}

} // namespace

// On Qt::NoClip Qt frees the clip while the last pen and brush still point to it. If clipping is
// switched off first, they no longer do. An inactive painter would warn of that call too.
void ktqtbase::applyClip(QPainter& painter, const QRegion& region, Qt::ClipOperation operation)
{
    if (operation == Qt::NoClip && painter.isActive())
        painter.setClipping(false);
    painter.setClipRegion(region, operation);
}

void ktqtbase::replaceClip(QPainter& painter, const QRegion& region)
{
    applyClip(painter, region, region.isEmpty() ? Qt::NoClip : Qt::ReplaceClip);
}

void KtQtPainterWrapper::setClipRect(const QRect& rect, Qt::ClipOperation operation)
{
    ktqtbase::applyClip(*m_pPainter, QRegion(rect, QRegion::Rectangle), operation);
}

void KtQtPainterWrapper::setClipRegion(POINT* points, unsigned int* counts, unsigned int n)
{
    m_rClipRegion = oddEvenRegion(points, counts, n);
    if (m_pPainter->isActive())
        ktqtbase::replaceClip(*m_pPainter, m_rClipRegion);
}
