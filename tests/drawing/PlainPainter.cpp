// SPDX-License-Identifier: MIT
#include "drawing/PlainPainter.h"

#include "platform/QtVersion.h"

#include <cwchar>
#include <string>
#include <utility>

namespace drawing {

void beginPlain(QPainter& painter, QImage& image)
{
    painter.begin(&image);
    painter.setPen(QPen(Qt::black, 0));
    painter.setBrush(Qt::black);
}

void removeClip(QPainter& painter)
{
    painter.setClipping(false);
    painter.setClipRegion(QRegion(), Qt::NoClip);
}

bool PlainPainter::beginDraw()
{
    beginPlain(m_painter, *m_image);
    applyStoredClip();
    return true;
}

bool PlainPainter::endDraw()
{
    return m_painter.end();
}

QColor PlainPainter::rgb(unsigned color)
{
    const auto part = [color](unsigned divisor) { return static_cast<int>(color / divisor % 256); };
    return QColor(part(1), part(256), part(65536));
}

QPolygon PlainPainter::polygon(const POINT* pts, int n)
{
    QPolygon result;
    for (int i = 0; i < n; ++i)
        result << QPoint(pts[i].x, pts[i].y);
    return result;
}

void PlainPainter::setPen(int style, int width, unsigned color)
{
    static const int kStyles[] = {1, 2, 3, 4, 5, 0, 6, 6, 8, 9, 10, 11, 12, 13, 14, 15};
    QPen pen(static_cast<Qt::PenStyle>(kStyles[static_cast<unsigned>(style) % 16]));
    pen.setColor(rgb(color));
    pen.setWidthF(width);
    if (pen.style() == Qt::DashLine || pen.style() == Qt::CustomDashLine)
        pen.setDashPattern({12, 4});
    m_painter.setPen(pen);
}

void PlainPainter::setPenColor(unsigned color)
{
    QPen pen = m_painter.pen();
    pen.setColor(rgb(color));
    m_painter.setPen(pen);
}

void PlainPainter::setBkMode(int mode)
{
    m_painter.setBackgroundMode(mode == 2 ? Qt::OpaqueMode : Qt::TransparentMode);
}

void PlainPainter::setROP2(int mode)
{
    m_painter.setCompositionMode(static_cast<QPainter::CompositionMode>(mode));
}

void PlainPainter::setFontIndirect(const LOGFONTW* lf)
{
    QFont font(QString::fromWCharArray(lf->lfFaceName));
    font.setItalic(lf->lfItalic != 0);
    if (lf->lfWeight != 0)
        ktqtbase::platform::setFontWeight(font, lf->lfWeight / 10);
    const long long product =
        1LL * m_image->depth() * (lf->lfHeight > 0 ? lf->lfHeight : lf->lfWeight);
    font.setPixelSize(static_cast<int>(product) / 36);
    font.setFixedPitch(lf->lfPitchAndFamily == 1);
    m_painter.setFont(font);
}

void PlainPainter::setClipRect(const QRect& rect, Qt::ClipOperation operation)
{
    if (operation == Qt::NoClip)
        m_painter.setClipping(false);
    m_painter.setClipRegion(rect, operation);
}

// Qt's own even-odd path fill, put together as one polygon that returns to its start each time.
void PlainPainter::setClipRegion(POINT* points, unsigned* counts, unsigned n)
{
    QPolygon outline;
    for (unsigned i = 0; points && i < n; points += counts[i++]) {
        const QPolygon next = polygon(points, static_cast<int>(counts[i]));
        if (next.size() < 2) // nothing, or a place without a line
            continue;
        const QPoint start = outline.isEmpty() ? next.first() : outline.first();
        outline << next << next.first() << start;
    }
    m_clip = QRegion(outline, Qt::OddEvenFill);
    if (m_painter.isActive())
        applyStoredClip();
}

void PlainPainter::applyStoredClip()
{
    if (m_clip.isEmpty())
        removeClip(m_painter);
    else
        m_painter.setClipRegion(m_clip);
}

void PlainPainter::Rotate(double angle, int x, int y)
{
    m_painter.setTransform(QTransform().translate(x, y).rotate(angle), true);
}

bool PlainPainter::beginPath()
{
    if (!m_path)
        m_path.emplace();
    return true;
}

bool PlainPainter::endPath()
{
    m_path.reset();
    return true;
}

void PlainPainter::fillPath(const QPainterPath& path)
{
    const QBrush brush = m_painter.brush();
    m_painter.fillPath(path, brush);
}

void PlainPainter::strokePath(const QPainterPath& path)
{
    const QPen pen = m_painter.pen();
    m_painter.strokePath(path, pen);
}

void PlainPainter::drawPolyline(const POINT* pts, int n)
{
    if (!m_path) {
        m_painter.drawPolyline(polygon(pts, n));
        return;
    }
    // Not addPolygon, which adds a line to a point where the path already is.
    for (int i = 0; i < n; ++i) {
        const QPointF point(pts[i].x, pts[i].y);
        if (i == 0)
            m_path->moveTo(point);
        else
            m_path->lineTo(point);
    }
    m_path->closeSubpath();
}

void PlainPainter::drawPolygon(const POINT* pts, int n)
{
    m_painter.drawPolygon(polygon(pts, n));
}

void PlainPainter::drawText(int x, int y, const wchar_t* text, int len)
{
    const std::size_t length = len < 0 ? std::wcslen(text) : static_cast<std::size_t>(len);
    m_painter.drawText(QPointF(x, y), QString::fromStdWString(std::wstring(text, length)));
}

void PlainPainter::drawAlphaRect(const CRect& rc, unsigned color, int alpha)
{
    QColor fill = rgb(color);
    fill.setAlpha(alpha);
    QPoint first(rc.left, rc.top);
    QPoint second(rc.right, rc.bottom);
    if (first.x() >= second.x())
        std::swap(first, second);
    m_painter.setBrush(fill);
    m_painter.drawRect(QRect(first, second));
}

void PlainPainter::drawImage(int x, int y, unsigned char* bits, int, int, int format)
{
    m_painter.drawImage(x, y, QImage(bits, x, y, static_cast<QImage::Format>(format)));
}

} // namespace drawing
