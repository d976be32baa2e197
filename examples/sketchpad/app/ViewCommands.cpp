// SPDX-License-Identifier: MIT
//
// What the commands do with the view and with what is selected in it.
#include "SketchView.h"

#include <KtQtBase/Messages.h>

#include <algorithm>
#include <numeric>

bool CSketchView::IsSelected(std::size_t index) const
{
    return std::binary_search(m_selection.begin(), m_selection.end(), index);
}

CPenInfo CSketchView::GetPen() const
{
    return m_selection.empty() ? m_pen : m_document.GetShapes().at(m_selection.front()).pen;
}

std::vector<CShape> CSketchView::GetSelectedShapes() const
{
    std::vector<CShape> shapes;
    for (std::size_t index : m_selection)
        shapes.push_back(m_document.GetShapes().at(index));
    return shapes;
}

std::vector<CShape> CSketchView::GetAllShapes() const
{
    std::vector<CShape> shapes = m_document.GetShapes();
    if (!HasUnfinishedInput() || !m_preview)
        return shapes;
    if (m_hidden)
        shapes.at(*m_hidden) = *m_preview;
    else
        shapes.push_back(*m_preview);
    return shapes;
}

CRect CSketchView::GetSelectionBounds() const
{
    CRect bounds;
    for (const CShape& shape : GetSelectedShapes()) {
        const CRect one = BoundsOf(shape, m_measure);
        const int half = (shape.pen.width + 3) / 2;
        const CRect around(one.left - half, one.top - half, one.right + half, one.bottom + half);
        const CRect former = bounds;
        UnionRect(&bounds, &former, &around);
    }
    const CRect all = bounds;
    const CRect paper = PaperRect();
    IntersectRect(&bounds, &all, &paper);
    return bounds;
}

void CSketchView::DeleteSelection(TextId name)
{
    m_document.RemoveShapes(name, m_selection);
    ClearSelection();
}

// All that is selected, or nothing where a part would come to lie too far away.
void CSketchView::MoveSelection(POINT offset)
{
    const std::vector<CShape> shapes = GetSelectedShapes();
    const bool fits = std::all_of(shapes.begin(), shapes.end(), [offset](const CShape& shape) {
        return IsAllowed(MovedBy(shape, offset));
    });
    if (fits)
        m_document.ChangeShapes(IDS_UNDO_MOVE, m_selection,
                                [offset](const CShape& shape) { return MovedBy(shape, offset); });
    Changed();
}

void CSketchView::ChangePen(TextId name, const std::function<void(CPenInfo&)>& change)
{
    m_pen = GetPen();
    change(m_pen);
    m_document.ChangeShapes(name, m_selection, [&change](const CShape& shape) {
        CShape changed = shape;
        change(changed.pen);
        return changed;
    });
    Changed();
}

void CSketchView::SelectAll()
{
    m_selection.resize(m_document.GetShapes().size());
    std::iota(m_selection.begin(), m_selection.end(), std::size_t());
    Changed();
}

void CSketchView::SelectLast(std::size_t count)
{
    SelectAll();
    m_selection.erase(m_selection.begin(), m_selection.end() - static_cast<std::ptrdiff_t>(count));
}

void CSketchView::SelectNext()
{
    const std::size_t count = m_document.GetShapes().size();
    const std::size_t next = m_selection.empty() ? 0 : m_selection.back() + 1;
    m_selection.clear();
    if (count > 0)
        m_selection.push_back(next % count);
    Changed();
}

void CSketchView::ClearSelection()
{
    m_selection.clear();
    Changed();
}

void CSketchView::InsertInMiddle()
{
    constexpr LONG kHalfWidth = 50;
    constexpr LONG kHalfHeight = 30;
    const SIZE extent = GetExtent();
    const POINT middle = {extent.cx / 2, extent.cy / 2};
    const std::size_t before = m_document.GetShapes().size();
    if (m_toolId == TOOL_SELECT || m_tool->IsUnfinished())
        return;
    ClearSelection();
    m_tool->OnDown({middle.x - kHalfWidth, middle.y - kHalfHeight});
    m_tool->OnMove({middle.x + kHalfWidth, middle.y + kHalfHeight});
    m_tool->OnUp({middle.x + kHalfWidth, middle.y + kHalfHeight});
    SelectLast(m_document.GetShapes().size() - before);
}

void CSketchView::TypeText(const std::wstring& text)
{
    for (const wchar_t character : text)
        OnChar(static_cast<WPARAM>(character), 0);
}

// A command or a dialog may come while the button is down, and then nobody lets it go here.
void CSketchView::FinishInput()
{
    m_tool->Finish();
    EndDragging();
}

void CSketchView::EndDragging()
{
    m_preview.reset();
    m_dragRect.reset();
    m_dragOffset.reset();
    m_bButtonDown = false;
}

void CSketchView::OnInitialUpdate()
{
    EndDragging();
    m_hidden.reset();
    m_selection.clear();
    m_tool = MakeTool(m_toolId, m_hWnd);
    Changed();
}

void CSketchView::SetZoom(int percent)
{
    m_zoom = std::clamp(percent, 25, 400);
    Changed();
}
