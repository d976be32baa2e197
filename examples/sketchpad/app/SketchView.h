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

    // The window through which the tools talk to this view.
    void OnCreate(HWND window);

    // Called after each visible change.
    void SetChangedHandler(const std::function<void()>& handler) { m_changed = handler; }

    // Result: whether the message is one of this view's.
    bool WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    // Paints into a session that the caller has begun.
    void OnDraw(KtQtPainterWrapper& painter) const; // with grid, selection and what is half done
    void OnPrint(KtQtPainterWrapper& painter) const;

    void DeleteSelection();
    // Makes a text that is being typed part of the drawing.
    void FinishInput();
    // Removes selection and preview, before another drawing is shown.
    void OnInitialUpdate();

    SIZE GetExtent() const; // of paper and margins, in pixels
    int CountSelected() const;
    CPenInfo GetPen() const { return m_pen; }
    void SetPen(const CPenInfo& pen) { m_pen = pen; }
    ToolId GetTool() const { return m_toolId; }

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
    void OnKeyDown(WPARAM key, LPARAM);
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

    void DrawPaper(KtQtPainterWrapper& painter) const;
    void DrawGrid(KtQtPainterWrapper& painter) const;
    void DrawSelection(KtQtPainterWrapper& painter) const;
    void ClipToPaper(KtQtPainterWrapper& painter) const;
    CRect PaperRect() const;
    bool IsSelected(const CShape& shape) const;

    CSketchDoc& m_document;
    CDefaults m_defaults;
    CPenInfo m_pen;
    HWND m_hWnd = nullptr;
    ToolId m_toolId = TOOL_FREEHAND;
    std::unique_ptr<CTool> m_tool;
    bool m_bButtonDown = false;
    std::optional<CShape> m_preview;
    std::optional<CRect> m_dragRect;
    std::optional<CRect> m_selection;
    std::function<void()> m_changed;
};

#endif
