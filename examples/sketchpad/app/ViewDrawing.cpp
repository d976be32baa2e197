// SPDX-License-Identifier: MIT
//
// How the view paints, with the same calls on the screen and on paper. What it paints is a whole
// number of times as large as the drawing, so that a fine device shows fine lines: a mapping mode
// would do that on Windows.
#include "SketchView.h"

#include <KtQtBase/PainterWrapper.h>

#include <algorithm>
#include <cwchar>

namespace {

constexpr LONG kMargin = 16;
constexpr int kHollow = 0; // like the raster operation a number of Qt's, not of Windows'
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kGrid = RGB(214, 222, 235);
constexpr COLORREF kHighlight = RGB(0, 90, 200);
constexpr int kTranslucent = 56;

POINT Scaled(POINT point, int scale)
{
    return {point.x * scale, point.y * scale};
}

std::vector<POINT> Scaled(const std::vector<POINT>& points, int scale)
{
    std::vector<POINT> scaled;
    scaled.reserve(points.size());
    for (const POINT& point : points)
        scaled.push_back(Scaled(point, scale));
    return scaled;
}

CRect Scaled(const CRect& rect, int scale)
{
    // NOLINTNEXTLINE(clang-analyzer-core.UndefinedBinaryOperatorResult): CRect sets its base's fields
    return CRect(rect.left * scale, rect.top * scale, rect.right * scale, rect.bottom * scale);
}

void DrawBox(KtQtPainterWrapper& painter, const CRect& box)
{
    const POINT corners[] = {
        {box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}};
    painter.drawPolygon(corners, 4);
}

void UsePen(KtQtPainterWrapper& painter, const CPenInfo& pen, int scale)
{
    painter.setPen(pen.style, pen.width * scale, pen.color);
    if (pen.filled)
        painter.setBrush(pen.fill);
    else
        painter.setBrush(kHollow);
}

// The painter has no call for ellipses.
std::vector<POINT> Corners(const CShape& shape, int scale)
{
    return shape.kind == ShapeKind::Ellipse ? EllipseCorners(shape.points, scale)
                                            : Scaled(shape.points, scale);
}

CRect Grown(const CRect& rect, int by)
{
    return CRect(rect.left - by, rect.top - by, rect.right + by, rect.bottom + by);
}

} // namespace

LOGFONTW CSketchView::GetTextFont(int scale)
{
    LOGFONTW font = {};
    font.lfHeight = 18 * scale; // positive: a negative height counts as none
    font.lfWeight = FW_NORMAL;
    std::wcsncpy(font.lfFaceName, L"DejaVu Sans", LF_FACESIZE - 1);
    return font;
}

void CSketchView::DrawShape(KtQtPainterWrapper& painter, const CShape& shape, int scale) const
{
    const std::vector<POINT> points = Corners(shape, scale);
    const auto count = static_cast<int>(points.size());
    UsePen(painter, shape.pen, scale);
    if (shape.kind == ShapeKind::Line)
        painter.drawPolyline(points.data(), count);
    else if (shape.kind == ShapeKind::Text)
        painter.drawText(points[0].x, points[0].y, shape.text.c_str(), -1);
    else
        painter.drawPolygon(points.data(), count);
}

SIZE CSketchView::GetExtent() const
{
    return {m_defaults.paper.cx + 2 * kMargin, m_defaults.paper.cy + 2 * kMargin};
}

CRect CSketchView::PaperRect() const
{
    return CRect(kMargin, kMargin, kMargin + m_defaults.paper.cx, kMargin + m_defaults.paper.cy);
}

void CSketchView::DrawPaper(KtQtPainterWrapper& painter, int scale) const
{
    const CRect paper = Scaled(PaperRect(), scale);
    painter.setPen(PS_NULL, 0, 0);
    painter.setBrush(m_desk);
    DrawBox(painter, CRect(0, 0, 100 * paper.right, 100 * paper.bottom));
    painter.setPen(PS_SOLID, scale, RGB(120, 126, 138));
    painter.setBrush(kPaper);
    DrawBox(painter, Grown(paper, scale));
}

void CSketchView::DrawGrid(KtQtPainterWrapper& painter, int scale) const
{
    const CRect paper = Scaled(PaperRect(), scale);
    const LONG step = m_defaults.grid * scale;
    if (step == 0)
        return;
    painter.setPen(PS_SOLID, 0, kGrid); // of one pixel at every zoom, so that all lines look alike
    for (LONG x = paper.left + step; x < paper.right; x += step) {
        const POINT line[] = {{x, paper.top}, {x, paper.bottom}};
        painter.drawPolyline(line, 2);
    }
    for (LONG y = paper.top + step; y < paper.bottom; y += step) {
        const POINT line[] = {{paper.left, y}, {paper.right, y}};
        painter.drawPolyline(line, 2);
    }
}

// The clip outlives the session, but each view of another size sets its own.
void CSketchView::ClipToPaper(KtQtPainterWrapper& painter, int scale) const
{
    const CRect paper = Scaled(PaperRect(), scale);
    POINT corners[] = {{paper.left, paper.top},
                       {paper.right, paper.top},
                       {paper.right, paper.bottom},
                       {paper.left, paper.bottom}};
    UINT count = 4;
    painter.setClipRegion(corners, &count, 1);
}

// As it is while the mouse moves it.
CShape CSketchView::Shown(std::size_t index) const
{
    const CShape& shape = m_document.GetShapes()[index];
    return m_dragOffset && IsSelected(index) ? MovedBy(shape, *m_dragOffset) : shape;
}

void CSketchView::DrawSelection(KtQtPainterWrapper& painter, int scale) const
{
    painter.setPen(PS_DASH, scale, kHighlight);
    for (std::size_t index : m_selection) {
        const CRect bounds = Grown(BoundsOf(Shown(index), m_measure), 4);
        painter.drawAlphaRect(Scaled(bounds, scale), kHighlight, kTranslucent);
    }
    if (m_dragRect)
        painter.drawAlphaRect(Scaled(*m_dragRect, scale), kHighlight, kTranslucent);
}

void CSketchView::DrawCaret(KtQtPainterWrapper& painter, int scale) const
{
    const auto caret = m_tool->GetCaret();
    if (!caret)
        return;
    const LONG x = caret->start.x + m_measure(caret->before);
    const POINT line[] = {Scaled({x, caret->start.y - kTextHeight}, scale),
                          Scaled({x, caret->start.y + kTextHeight / 4}, scale)};
    painter.setPen(PS_SOLID, scale, kHighlight);
    painter.drawPolyline(line, 2);
}

void CSketchView::DrawShapes(KtQtPainterWrapper& painter, const std::vector<CShape>& shapes,
                             int scale) const
{
    const LOGFONTW font = GetTextFont(scale);
    painter.setBkMode(TRANSPARENT);
    painter.setFontIndirect(&font);
    for (const CShape& shape : shapes)
        DrawShape(painter, shape, scale);
}

std::vector<CShape> CSketchView::ShapesOnScreen() const
{
    std::vector<CShape> shapes;
    for (std::size_t i = 0; i < m_document.GetShapes().size(); ++i) {
        if (i != m_hidden)
            shapes.push_back(Shown(i));
    }
    if (m_preview)
        shapes.push_back(*m_preview);
    return shapes;
}

void CSketchView::OnPrint(KtQtPainterWrapper& painter, int scale) const
{
    ClipToPaper(painter, scale);
    DrawShapes(painter, m_document.GetShapes(), scale);
}

void CSketchView::OnDraw(KtQtPainterWrapper& painter, int scale) const
{
    painter.setClipRegion(nullptr, nullptr, 0);
    DrawPaper(painter, scale);
    DrawGrid(painter, scale);
    ClipToPaper(painter, scale);
    DrawShapes(painter, ShapesOnScreen(), scale);
    DrawCaret(painter, scale);
    DrawSelection(painter, scale);
}

void CSketchView::OnDrawSelection(KtQtPainterWrapper& painter) const
{
    DrawShapes(painter, GetSelectedShapes(), 1);
}
