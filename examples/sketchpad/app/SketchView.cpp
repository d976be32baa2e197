// SPDX-License-Identifier: MIT
#include "SketchView.h"

#include <KtQtBase/Messages.h>
#include <KtQtBase/windows/MessageNumbers.h>
#include <KtQtBase/windows/Packing.h>

#include <algorithm>

namespace {

// What lParam points to belongs to the sender and lives until SendMessage returns.
template<class Record>
std::optional<Record> CopyFrom(LPARAM lParam)
{
    if (!lParam)
        return std::nullopt;
    return *reinterpret_cast<const Record*>(lParam);
}

POINT PointFrom(LPARAM place)
{
    return {GET_X_LPARAM(place), GET_Y_LPARAM(place)};
}

} // namespace

const CSketchView::MessageEntry CSketchView::kMessageMap[] = {
    {WM_LBUTTONDOWN, &CSketchView::OnLButtonDown},
    {WM_MOUSEMOVE, &CSketchView::OnMouseMove},
    {WM_LBUTTONUP, &CSketchView::OnLButtonUp},
    {WM_KEYDOWN, &CSketchView::OnKeyDown},
    {WM_CHAR, &CSketchView::OnChar},
    {WM_SKETCH_ADDSHAPE, &CSketchView::OnAddShape},
    {WM_SKETCH_PREVIEW, &CSketchView::OnPreview},
    {WM_SKETCH_GETPEN, &CSketchView::OnGetPen},
    {WM_SKETCH_SETPEN, &CSketchView::OnSetPen},
    {WM_SKETCH_SELECT, &CSketchView::OnSelect},
    {WM_SKETCH_DRAGRECT, &CSketchView::OnDragRect},
    {WM_SKETCH_SETTOOL, &CSketchView::OnSetTool},
    {WM_SKETCH_GETCOUNTS, &CSketchView::OnGetCounts},
    {WM_SKETCH_CHANGED, &CSketchView::OnChanged},
};

CSketchView::CSketchView(CSketchDoc& document, const CDefaults& defaults)
    : m_document(document), m_defaults(defaults), m_pen(defaults.pen)
{}

void CSketchView::OnCreate(HWND window)
{
    m_hWnd = window;
    m_tool = MakeTool(m_toolId, m_hWnd);
}

bool CSketchView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    for (const MessageEntry& entry : kMessageMap) {
        if (entry.message == message) {
            (this->*entry.handler)(wParam, lParam);
            return true;
        }
    }
    return false;
}

void CSketchView::OnLButtonDown(WPARAM, LPARAM place)
{
    m_bButtonDown = true;
    m_selection.reset();
    m_tool->OnDown(PointFrom(place));
    PostMessage(m_hWnd, WM_SKETCH_CHANGED, 0, 0);
}

void CSketchView::OnMouseMove(WPARAM flags, LPARAM place)
{
    if (m_bButtonDown && flags & MK_LBUTTON)
        m_tool->OnMove(PointFrom(place));
}

void CSketchView::OnLButtonUp(WPARAM, LPARAM place)
{
    if (m_bButtonDown)
        m_tool->OnUp(PointFrom(place));
    m_bButtonDown = false;
}

void CSketchView::OnKeyDown(WPARAM key, LPARAM)
{
    if (key == VK_DELETE)
        DeleteSelection();
}

void CSketchView::OnChar(WPARAM character, LPARAM)
{
    m_tool->OnChar(static_cast<wchar_t>(character));
}

void CSketchView::OnAddShape(WPARAM, LPARAM shape)
{
    if (const auto added = CopyFrom<CShape>(shape); added && !added->points.empty())
        m_document.AddShape(*added);
    PostMessage(m_hWnd, WM_SKETCH_CHANGED, 0, 0);
}

void CSketchView::OnPreview(WPARAM, LPARAM shape)
{
    m_preview = CopyFrom<CShape>(shape);
    PostMessage(m_hWnd, WM_SKETCH_CHANGED, 0, 0);
}

void CSketchView::OnGetPen(WPARAM, LPARAM pen)
{
    if (pen)
        *reinterpret_cast<CPenInfo*>(pen) = m_pen;
}

void CSketchView::OnSetPen(WPARAM, LPARAM pen)
{
    m_pen = CopyFrom<CPenInfo>(pen).value_or(m_pen);
}

void CSketchView::OnSelect(WPARAM, LPARAM rect)
{
    m_selection = CopyFrom<CRect>(rect);
    PostMessage(m_hWnd, WM_SKETCH_CHANGED, 0, 0);
}

void CSketchView::OnDragRect(WPARAM, LPARAM rect)
{
    m_dragRect = CopyFrom<CRect>(rect);
    PostMessage(m_hWnd, WM_SKETCH_CHANGED, 0, 0);
}

void CSketchView::OnSetTool(WPARAM tool, LPARAM)
{
    if (tool >= TOOL_COUNT)
        return;
    m_tool->Finish();
    m_bButtonDown = false;
    m_toolId = static_cast<ToolId>(tool);
    m_tool = MakeTool(m_toolId, m_hWnd);
    PostMessage(m_hWnd, WM_SKETCH_CHANGED, 0, 0);
}

void CSketchView::OnGetCounts(WPARAM, LPARAM counts)
{
    if (counts)
        *reinterpret_cast<CSketchCounts*>(counts) = {
            static_cast<int>(m_document.GetShapes().size()), CountSelected()};
}

void CSketchView::OnChanged(WPARAM, LPARAM)
{
    if (m_changed)
        m_changed();
}

void CSketchView::DeleteSelection()
{
    m_document.RemoveIf([this](const CShape& shape) { return IsSelected(shape); });
    m_selection.reset();
    PostMessage(m_hWnd, WM_SKETCH_CHANGED, 0, 0);
}

void CSketchView::FinishInput()
{
    m_tool->Finish();
}

void CSketchView::OnInitialUpdate()
{
    m_preview.reset();
    m_dragRect.reset();
    m_selection.reset();
    m_bButtonDown = false;
    m_tool = MakeTool(m_toolId, m_hWnd);
    PostMessage(m_hWnd, WM_SKETCH_CHANGED, 0, 0);
}

bool CSketchView::IsSelected(const CShape& shape) const
{
    return m_selection && Intersect(*m_selection, BoundsOf(shape));
}

int CSketchView::CountSelected() const
{
    const auto& shapes = m_document.GetShapes();
    return static_cast<int>(std::count_if(
        shapes.begin(), shapes.end(), [this](const CShape& shape) { return IsSelected(shape); }));
}
