// SPDX-License-Identifier: MIT
//
// What the view does with its messages.
#include "SketchView.h"

#include <KtQtBase/Messages.h>

#include <algorithm>

namespace {

constexpr int kNear = 3; // points between a click and the shape that it means

// What lParam points to belongs to the sender and lives until SendMessage returns.
template<class Record>
std::optional<Record> CopyFrom(LPARAM lParam)
{
    if (!lParam)
        return std::nullopt;
    return *reinterpret_cast<const Record*>(lParam);
}

CRect Around(POINT point)
{
    return CRect(point.x - kNear, point.y - kNear, point.x + kNear, point.y + kNear);
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
    {WM_SKETCH_HITTEST, &CSketchView::OnHitTest},
    {WM_SKETCH_DRAGBY, &CSketchView::OnDragBy},
    {WM_SKETCH_MOVEBY, &CSketchView::OnMoveBy},
    {WM_SKETCH_TAKETEXT, &CSketchView::OnTakeText},
    {WM_SKETCH_ENDTEXT, &CSketchView::OnEndText},
};

CSketchView::CSketchView(CSketchDoc& document, const CDefaults& defaults)
    : m_document(document), m_defaults(defaults), m_pen(defaults.pen)
{}

void CSketchView::OnCreate(HWND window, const CTextMeasure& measure)
{
    m_hWnd = window;
    m_measure = measure;
    m_tool = MakeTool(m_toolId, m_hWnd);
}

bool CSketchView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // NOLINTNEXTLINE(readability-use-anyofallof): what is found is called
    for (const MessageEntry& entry : kMessageMap) {
        if (entry.message == message) {
            (this->*entry.handler)(wParam, lParam);
            return true;
        }
    }
    return false;
}

void CSketchView::Changed()
{
    PostMessage(m_hWnd, WM_SKETCH_CHANGED, 0, 0);
}

// The messages of the mouse count in pixels of the window.
POINT CSketchView::PointFrom(LPARAM place) const
{
    const auto inDrawing = [this](int pixels) {
        return std::clamp<LONG>(pixels * 100 / m_zoom, -kFarthest, kFarthest);
    };
    return {inDrawing(GET_X_LPARAM(place)), inDrawing(GET_Y_LPARAM(place))};
}

void CSketchView::OnLButtonDown(WPARAM, LPARAM place)
{
    m_bButtonDown = true;
    if (m_toolId != TOOL_SELECT)
        ClearSelection();
    m_tool->OnDown(PointFrom(place));
    Changed();
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

// The low word is how often the key counts.
void CSketchView::OnKeyDown(WPARAM key, LPARAM repeat)
{
    const LONG step = std::max<LONG>(LOWORD(repeat), 1);
    if (m_tool->OnKey(key))
        return;
    if (key == VK_DELETE)
        DeleteSelection(IDS_UNDO_DELETE);
    else if (key == VK_ESCAPE)
        ClearSelection();
    else if (key == VK_LEFT || key == VK_RIGHT)
        MoveSelection({key == VK_LEFT ? -step : step, 0});
    else if (key == VK_UP || key == VK_DOWN)
        MoveSelection({0, key == VK_UP ? -step : step});
}

void CSketchView::OnChar(WPARAM character, LPARAM)
{
    m_tool->OnChar(static_cast<wchar_t>(character));
    Changed();
}

void CSketchView::OnAddShape(WPARAM, LPARAM shape)
{
    if (const auto added = CopyFrom<CShape>(shape); added && IsAllowed(*added) && IsVisible(*added))
        m_document.AddShapes(IDS_UNDO_ADD, {*added});
    Changed();
}

void CSketchView::OnPreview(WPARAM, LPARAM shape)
{
    m_preview = CopyFrom<CShape>(shape);
    Changed();
}

void CSketchView::OnGetPen(WPARAM, LPARAM pen)
{
    if (pen)
        *reinterpret_cast<CPenInfo*>(pen) = m_pen;
}

void CSketchView::OnSetPen(WPARAM, LPARAM pen)
{
    if (const auto wanted = CopyFrom<CPenInfo>(pen); wanted && IsAllowed(*wanted))
        m_pen = *wanted;
}

void CSketchView::OnSelect(WPARAM, LPARAM rect)
{
    m_selection.clear();
    if (const auto area = CopyFrom<CRect>(rect)) {
        const bool one = area->left == area->right && area->top == area->bottom;
        CSketchHit hit;
        hit.point = {area->left, area->top};
        FindShape(hit);
        for (std::size_t i = 0; i < m_document.GetShapes().size() && !one; ++i)
            if (Intersect(*area, BoundsOf(m_document.GetShapes()[i], m_measure)))
                m_selection.push_back(i);
        if (one && hit.index != kNoShape)
            m_selection.push_back(static_cast<std::size_t>(hit.index));
    }
    Changed();
}

void CSketchView::OnDragRect(WPARAM, LPARAM rect)
{
    m_dragRect = CopyFrom<CRect>(rect);
    Changed();
}

void CSketchView::OnSetTool(WPARAM tool, LPARAM)
{
    if (tool >= TOOL_COUNT)
        return;
    FinishInput();
    m_toolId = static_cast<ToolId>(tool);
    m_tool = MakeTool(m_toolId, m_hWnd);
    Changed();
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

// The one on top, which was drawn last.
void CSketchView::FindShape(CSketchHit& hit) const
{
    const auto& shapes = m_document.GetShapes();
    hit.index = kNoShape;
    for (std::size_t i = shapes.size(); i > 0 && hit.index == kNoShape; --i) {
        if (Intersect(Around(hit.point), BoundsOf(shapes[i - 1], m_measure)))
            hit.index = static_cast<int>(i - 1);
    }
}

void CSketchView::OnHitTest(WPARAM, LPARAM lParam)
{
    auto* hit = reinterpret_cast<CSketchHit*>(lParam);
    if (!hit)
        return;
    FindShape(*hit);
    hit->selected = hit->index != kNoShape && IsSelected(static_cast<std::size_t>(hit->index));
}

void CSketchView::OnDragBy(WPARAM, LPARAM offset)
{
    m_dragOffset = CopyFrom<POINT>(offset);
    Changed();
}

void CSketchView::OnMoveBy(WPARAM, LPARAM offset)
{
    MoveSelection(CopyFrom<POINT>(offset).value_or(POINT{}));
}

void CSketchView::OnTakeText(WPARAM, LPARAM lParam)
{
    auto* hit = reinterpret_cast<CSketchHit*>(lParam);
    if (!hit)
        return;
    FindShape(*hit);
    const auto index = static_cast<std::size_t>(hit->index);
    if (hit->index == kNoShape || m_document.GetShapes()[index].kind != ShapeKind::Text) {
        hit->index = kNoShape;
        return;
    }
    hit->shape = m_document.GetShapes()[index];
    m_hidden = index;
}

// A text without a character goes.
void CSketchView::OnEndText(WPARAM, LPARAM lParam)
{
    const auto hit = CopyFrom<CSketchHit>(lParam);
    m_hidden.reset();
    if (!hit || hit->index == kNoShape)
        return;
    const CIndices index = {static_cast<std::size_t>(hit->index)};
    if (hit->shape.text.empty())
        m_document.RemoveShapes(IDS_UNDO_DELETE, index);
    else if (hit->shape.text != m_document.GetShapes().at(index.front()).text)
        m_document.ChangeShapes(IDS_UNDO_TEXT, index, [&](const CShape&) { return hit->shape; });
    Changed();
}
