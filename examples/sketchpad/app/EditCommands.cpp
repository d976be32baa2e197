// SPDX-License-Identifier: MIT
//
// The commands that change the drawing.
#include "DocFile.h"
#include "Narrow.h"
#include "Shell.h"
#include "SketchApp.h"
#include "Texts.h"

#include <algorithm>
#include <sstream>

namespace {

constexpr POINT kPasteOffset = {12, 12}; // so that a copy does not lie on its original
constexpr std::size_t kLongestText = 1000;
constexpr char kBegin[] = "SKETCHPAD ";

// The first line, without what no text may hold.
std::wstring OneLine(const std::wstring& text)
{
    std::wstring line = text.substr(0, std::min(text.find_first_of(L"\r\n"), kLongestText));
    line.erase(std::remove_if(line.begin(), line.end(), [](wchar_t ch) { return ch < L' '; }),
               line.end());
    return line;
}

} // namespace

void CSketchApp::OnEditUndo(UINT)
{
    m_view.ClearSelection();
    m_document.Undo();
}

void CSketchApp::OnEditRedo(UINT)
{
    m_view.ClearSelection();
    m_document.Redo();
}

void CSketchApp::OnEditClear(UINT)
{
    m_view.DeleteSelection(IDS_UNDO_DELETE);
}

void CSketchApp::OnEditCut(UINT)
{
    OnEditCopy(0);
    m_view.DeleteSelection(IDS_UNDO_CUT);
}

void CSketchApp::OnEditCopy(UINT)
{
    std::ostringstream text;
    WriteSketch(text, m_view.GetSelectedShapes());
    if (m_view.CountSelected() > 0)
        m_shell.SetClipboard(WidenForDisplay(text.str()));
}

void CSketchApp::OnEditPaste(UINT)
{
    const std::wstring text = m_shell.GetClipboardText();
    if (m_view.IsTyping()) {
        m_view.TypeText(OneLine(text));
        return;
    }
    m_view.FinishInput();
    if (NarrowForDisplay(text.substr(0, sizeof kBegin - 1)) == kBegin)
        PasteShapes(text);
    else
        PasteText(OneLine(text));
}

bool CSketchApp::PasteShapes(const std::wstring& text)
{
    std::istringstream stream(NarrowForDisplay(text));
    std::vector<CShape> shapes;
    std::wstring reason;
    if (!ReadSketch(stream, shapes, reason)) {
        m_shell.Report(Text(IDS_BADPASTE, reason));
        return false;
    }
    std::transform(shapes.begin(), shapes.end(), shapes.begin(), [](const CShape& shape) {
        const CShape moved = MovedBy(shape, kPasteOffset);
        return IsAllowed(moved) ? moved : shape;
    });
    AddAndSelect(IDS_UNDO_PASTE, shapes);
    return true;
}

void CSketchApp::PasteText(const std::wstring& text)
{
    if (text.empty())
        return;
    const SIZE extent = m_view.GetExtent();
    CShape shape;
    shape.kind = ShapeKind::Text;
    shape.pen = m_view.GetPen();
    shape.points = {{extent.cx / 4, extent.cy / 2}};
    shape.text = text;
    AddAndSelect(IDS_UNDO_PASTE, {shape});
}

void CSketchApp::AddAndSelect(TextId name, const std::vector<CShape>& shapes)
{
    m_document.AddShapes(name, shapes);
    m_view.SelectLast(shapes.size());
}

void CSketchApp::OnEditSelectAll(UINT)
{
    m_view.SelectAll();
}

void CSketchApp::OnEditSelectNext(UINT)
{
    m_view.SelectNext();
}

void CSketchApp::OnEditInsert(UINT)
{
    m_view.InsertInMiddle();
}

void CSketchApp::OnPenStyle(UINT style)
{
    m_view.ChangePen(IDS_UNDO_PEN, [style](CPenInfo& pen) { pen.style = static_cast<int>(style); });
}

void CSketchApp::OnPenWidth(UINT width)
{
    m_view.ChangePen(IDS_UNDO_PEN, [width](CPenInfo& pen) { pen.width = static_cast<int>(width); });
}

void CSketchApp::OnPenColor(UINT index)
{
    m_view.ChangePen(IDS_UNDO_PEN, [index](CPenInfo& pen) { pen.color = kColors[index]; });
}

void CSketchApp::OnFillNone(UINT)
{
    m_view.ChangePen(IDS_UNDO_FILL, [](CPenInfo& pen) { pen.filled = false; });
}

void CSketchApp::OnFillColor(UINT index)
{
    m_view.ChangePen(IDS_UNDO_FILL, [index](CPenInfo& pen) {
        pen.filled = true;
        pen.fill = kColors[index];
    });
}
