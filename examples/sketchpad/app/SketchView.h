// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SKETCHVIEW_H
#define SKETCHPAD_SKETCHVIEW_H

#include "Defaults.h"
#include "SketchDoc.h"
#include "Tools.h"

#include <functional>
#include <optional>

class KtQtPainterWrapper;

// Shows the drawing and takes the messages of its window.
class CSketchView
{
public:
    CSketchView(CSketchDoc& document, const CDefaults& defaults);

    // The window through which the tools talk to this view, and what measures texts there.
    void OnCreate(HWND window, const CTextMeasure& measure);

    // Called after each visible change.
    void SetChangedHandler(const std::function<void()>& handler) { m_changed = handler; }

    // Result: whether the message is one of this view's.
    bool WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    // Paints into a session that the caller has begun.
    //   scale    in: the device's units to a point of the drawing
    void OnDraw(KtQtPainterWrapper& painter, int scale) const; // with all that helps to draw
    void OnPrint(KtQtPainterWrapper& painter, int scale) const;
    // Only what is selected, and where that lies on the paper.
    void OnDrawSelection(KtQtPainterWrapper& painter) const;
    CRect GetSelectionBounds() const;

    // The font of all texts, for what measures them.
    static LOGFONTW GetTextFont(int scale);

    // The colour around the paper, which follows the desktop's.
    void SetDeskColor(COLORREF color) { m_desk = color; }

    // What the commands do.
    void DeleteSelection(TextId name);
    void MoveSelection(POINT offset);
    void SelectAll();
    void SelectNext();
    void SelectLast(std::size_t count);
    void InsertInMiddle(); // what the tool draws, for those who use no mouse
    void ClearSelection();
    // Of what is selected, and of the next shapes.
    void ChangePen(TextId name, const std::function<void(CPenInfo&)>& change);
    std::vector<CShape> GetSelectedShapes() const;
    // With a text that is still being typed.
    std::vector<CShape> GetAllShapes() const;

    // Makes a text that is being typed part of the drawing.
    void FinishInput();
    bool HasUnfinishedInput() const { return m_tool->IsUnfinished(); }
    bool IsTyping() const { return m_tool->GetCaret().has_value(); }
    void TypeText(const std::wstring& text);
    // Removes selection and preview, before another drawing is shown.
    void OnInitialUpdate();

    SIZE GetExtent() const; // of paper and margins, in points, which are pixels at full size
    int CountSelected() const { return static_cast<int>(m_selection.size()); }
    CPenInfo GetPen() const;
    ToolId GetTool() const { return m_toolId; }

    // In percent of the full size.
    void SetZoom(int percent);
    int GetZoom() const { return m_zoom; }

private:
    struct MessageEntry
    {
        UINT message;
        void (CSketchView::*handler)(WPARAM, LPARAM);
    };
    static const MessageEntry kMessageMap[];

    void OnLButtonDown(WPARAM flags, LPARAM place);
    void OnMouseMove(WPARAM flags, LPARAM place);
    void OnLButtonUp(WPARAM flags, LPARAM place);
    void OnKeyDown(WPARAM key, LPARAM repeat);
    void OnChar(WPARAM character, LPARAM);
    void OnAddShape(WPARAM, LPARAM shape);
    void OnPreview(WPARAM, LPARAM shape);
    void OnGetPen(WPARAM, LPARAM pen);
    void OnSetPen(WPARAM, LPARAM pen);
    void OnSelect(WPARAM, LPARAM rect);
    void OnDragRect(WPARAM, LPARAM rect);
    void OnSetTool(WPARAM tool, LPARAM);
    void OnGetCounts(WPARAM, LPARAM counts);
    void OnChanged(WPARAM, LPARAM);
    void OnHitTest(WPARAM, LPARAM lParam);
    void OnDragBy(WPARAM, LPARAM offset);
    void OnMoveBy(WPARAM, LPARAM offset);
    void OnTakeText(WPARAM, LPARAM lParam);
    void OnEndText(WPARAM, LPARAM lParam);

    void DrawShape(KtQtPainterWrapper& painter, const CShape& shape, int scale) const;
    void DrawPaper(KtQtPainterWrapper& painter, int scale) const;
    void DrawGrid(KtQtPainterWrapper& painter, int scale) const;
    void DrawSelection(KtQtPainterWrapper& painter, int scale) const;
    void DrawCaret(KtQtPainterWrapper& painter, int scale) const;
    void ClipToPaper(KtQtPainterWrapper& painter, int scale) const;
    CRect PaperRect() const;
    CShape Shown(std::size_t index) const;
    void DrawShapes(KtQtPainterWrapper& painter, const std::vector<CShape>& shapes,
                    int scale) const;
    std::vector<CShape> ShapesOnScreen() const;
    void EndDragging();

    POINT PointFrom(LPARAM place) const;
    bool IsSelected(std::size_t index) const;
    void FindShape(CSketchHit& hit) const;
    void Changed();

    CSketchDoc& m_document;
    CDefaults m_defaults;
    CPenInfo m_pen;
    COLORREF m_desk = RGB(208, 212, 220);
    HWND m_hWnd = nullptr;
    CTextMeasure m_measure;
    ToolId m_toolId = TOOL_FREEHAND;
    std::unique_ptr<CTool> m_tool;
    bool m_bButtonDown = false;
    int m_zoom = 100;
    std::optional<CShape> m_preview;
    std::optional<CRect> m_dragRect;
    std::optional<POINT> m_dragOffset;
    std::optional<std::size_t> m_hidden; // the text that is being changed
    CIndices m_selection;
    std::function<void()> m_changed;
};

#endif
