// SPDX-License-Identifier: MIT
//
// How the view paints, with the same calls on the screen and on paper.
#include "SketchView.h"

#include <KtQtBase/PainterWrapper.h>
#include <KtQtBase/windows/Packing.h>

#include <algorithm>
#include <cwchar>

namespace {

constexpr LONG kMargin = 16;
constexpr int kHollow = 0; // like the raster operation a number of Qt's, not of Windows'
constexpr COLORREF kDesk = RGB(208, 212, 220);
constexpr COLORREF kPaper = RGB(255, 255, 255);
constexpr COLORREF kGrid = RGB(214, 222, 235);
constexpr COLORREF kHighlight = RGB(0, 90, 200);
constexpr int kTranslucent = 56;

LOGFONTW TextFont()
{
    LOGFONTW font = {};
    font.lfHeight = 18; // positive: a negative height counts as none
    font.lfWeight = FW_NORMAL;
    std::wcsncpy(font.lfFaceName, L"DejaVu Sans", LF_FACESIZE - 1);
    return font;
}

void DrawBox(KtQtPainterWrapper& painter, const CRect& box)
{
    const POINT corners[] = {
        {box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}};
    painter.drawPolygon(corners, 4);
}

void UsePen(KtQtPainterWrapper& painter, const CPenInfo& pen)
{
    painter.setPen(pen.style, pen.width, pen.color);
    if (pen.filled)
        painter.setBrush(pen.fill);
    else
        painter.setBrush(kHollow);
}

void DrawShape(KtQtPainterWrapper& painter, const CShape& shape)
{
    UsePen(painter, shape.pen);
    const auto count = static_cast<int>(shape.points.size());
    if (shape.kind == ShapeKind::Line)
        painter.drawPolyline(shape.points.data(), count);
    else if (shape.kind == ShapeKind::Polygon)
        painter.drawPolygon(shape.points.data(), count);
    else
        painter.drawText(shape.points[0].x, shape.points[0].y, shape.text.c_str(), -1);
}

CRect Grown(const CRect& rect, int by)
{
    return CRect(rect.left - by, rect.top - by, rect.right + by, rect.bottom + by);
}

} // namespace

SIZE CSketchView::GetExtent() const
{
    return {m_defaults.paper.cx + 2 * kMargin, m_defaults.paper.cy + 2 * kMargin};
}

CRect CSketchView::PaperRect() const
{
    return CRect(kMargin, kMargin, kMargin + m_defaults.paper.cx, kMargin + m_defaults.paper.cy);
}

void CSketchView::DrawPaper(KtQtPainterWrapper& painter) const
{
    const CRect paper = PaperRect();
    painter.setPen(PS_NULL, 0, 0);
    painter.setBrush(kDesk);
    DrawBox(painter, CRect(0, 0, 2 * paper.right, 2 * paper.bottom));
    painter.setPen(PS_SOLID, 1, RGB(120, 126, 138));
    painter.setBrush(kPaper);
    DrawBox(painter, Grown(paper, 1));
}

void CSketchView::DrawGrid(KtQtPainterWrapper& painter) const
{
    const CRect paper = PaperRect();
    if (m_defaults.grid == 0)
        return;
    painter.setPen(PS_SOLID, 1, kGrid);
    for (LONG x = paper.left + m_defaults.grid; x < paper.right; x += m_defaults.grid) {
        const POINT line[] = {{x, paper.top}, {x, paper.bottom}};
        painter.drawPolyline(line, 2);
    }
    for (LONG y = paper.top + m_defaults.grid; y < paper.bottom; y += m_defaults.grid) {
        const POINT line[] = {{paper.left, y}, {paper.right, y}};
        painter.drawPolyline(line, 2);
    }
}

// The clip outlives the session, but each view of another size sets its own.
void CSketchView::ClipToPaper(KtQtPainterWrapper& painter) const
{
    const CRect paper = PaperRect();
    POINT corners[] = {{paper.left, paper.top},
                       {paper.right, paper.top},
                       {paper.right, paper.bottom},
                       {paper.left, paper.bottom}};
    UINT count = 4;
    painter.setClipRegion(corners, &count, 1);
}

void CSketchView::DrawSelection(KtQtPainterWrapper& painter) const
{
    painter.setPen(PS_DASH, 1, kHighlight);
    for (const CShape& shape : m_document.GetShapes()) {
        if (IsSelected(shape))
            painter.drawAlphaRect(Grown(BoundsOf(shape), 4), kHighlight, kTranslucent);
    }
    if (m_dragRect)
        painter.drawAlphaRect(*m_dragRect, kHighlight, kTranslucent);
}

void CSketchView::OnPrint(KtQtPainterWrapper& painter) const
{
    const LOGFONTW font = TextFont();
    ClipToPaper(painter);
    painter.setBkMode(TRANSPARENT);
    painter.setFontIndirect(&font);
    for (const CShape& shape : m_document.GetShapes())
        DrawShape(painter, shape);
}

void CSketchView::OnDraw(KtQtPainterWrapper& painter) const
{
    painter.setClipRegion(nullptr, nullptr, 0);
    DrawPaper(painter);
    DrawGrid(painter);
    OnPrint(painter);
    if (m_preview)
        DrawShape(painter, *m_preview);
    DrawSelection(painter);
}
