// SPDX-License-Identifier: MIT
//
// The operations of the wrapper in plain QPainter calls, with which random programs are compared.
// It shares no code with the library.
#ifndef KTQTBASE_TESTS_DRAWING_PLAINPAINTER_H
#define KTQTBASE_TESTS_DRAWING_PLAINPAINTER_H

#include <KtQtBase/WindowsTypes.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <optional>

namespace drawing {

// Begins painting as the wrapper does: a black one-pixel pen and a black brush.
void beginPlain(QPainter& painter, QImage& image);

// Removes clipping. With Qt 5.15, Qt::NoClip alone would leave the pen and the brush that were used
// under the clip with a pointer to the freed clip.
void removeClip(QPainter& painter);

class PlainPainter
{
public:
    explicit PlainPainter(QImage* image) : m_image(image) {}

    bool beginDraw();
    bool endDraw();
    void save() { m_painter.save(); }
    void restore() { m_painter.restore(); }

    void setPen(int style, int width, unsigned color);
    void setPen(const QPen& pen) { m_painter.setPen(pen); }
    void setPenColor(unsigned color);
    void setBrush(int style) { m_painter.setBrush(static_cast<Qt::BrushStyle>(style)); }
    void setBrush(unsigned color) { m_painter.setBrush(rgb(color)); }
    void setBrush(const QBrush& brush) { m_painter.setBrush(brush); }
    void setBkMode(int mode);
    void setBackground(unsigned color) { m_painter.setBackground(rgb(color)); }
    void setROP2(int mode);
    void setFontIndirect(const LOGFONTW* lf);
    void setClipRect(const QRect& rect, Qt::ClipOperation operation);
    void setClipRegion(POINT* points, unsigned* counts, unsigned n);
    void Rotate(double angle, int x, int y);

    bool beginPath();
    bool endPath();
    QPainterPath* getPainterPath() { return m_path ? &*m_path : nullptr; }
    void fillPath(const QPainterPath& path);
    void strokePath(const QPainterPath& path);
    void strokeAndFillPath(QPainterPath* path) { m_painter.drawPath(*path); }

    void drawPoint(int x, int y) { m_painter.drawPoint(x, y); }
    void drawPolyline(const POINT* pts, int n);
    void drawPolygon(const POINT* pts, int n);
    void drawText(int x, int y, const wchar_t* text, int len);
    void drawAlphaRect(const CRect& rc, unsigned color, int alpha);
    void drawImage(int x, int y, unsigned char* bits, int, int, int format);
    void drawImage(QRect& target, QImage& image) { m_painter.drawImage(target, image); }
    void fillRect(const QRect& rect, Qt::GlobalColor color) { m_painter.fillRect(rect, color); }

    QPen getPen() const { return m_painter.pen(); }
    QBrush getBrush() const { return m_painter.brush(); }
    int getBkMode() const { return m_painter.backgroundMode() == Qt::OpaqueMode; }
    int getROP2() const { return m_painter.compositionMode(); }
    QColor getBkColor() const { return m_painter.background().color(); }

private:
    static QColor rgb(unsigned color);
    static QPolygon polygon(const POINT* pts, int n);
    void applyStoredClip();

    QImage* m_image;
    QPainter m_painter;
    std::optional<QPainterPath> m_path;
    QRegion m_clip;
};

} // namespace drawing

#endif
