// SPDX-License-Identifier: MIT
//
// Which function does which command, and what the window shows of the program.
#include "SketchApp.h"

#include "FileNames.h"
#include "Settings.h"
#include "Shell.h"
#include "Texts.h"

#include <algorithm>
#include <iterator>

const CSketchApp::CommandEntry CSketchApp::kCommandMap[] = {
    {ID_FILE_NEW, ID_FILE_NEW, &CSketchApp::OnFileNew},
    {ID_FILE_OPEN, ID_FILE_OPEN, &CSketchApp::OnFileOpen},
    {ID_FILE_SAVE, ID_FILE_SAVE, &CSketchApp::OnFileSave},
    {ID_FILE_SAVE_AS, ID_FILE_SAVE_AS, &CSketchApp::OnFileSaveAs},
    {ID_FILE_SAVE_COPY_AS, ID_FILE_SAVE_COPY_AS, &CSketchApp::OnFileSaveCopy},
    {ID_FILE_PAGE_SETUP, ID_FILE_PAGE_SETUP, &CSketchApp::OnFilePageSetup},
    {ID_FILE_PRINT, ID_FILE_PRINT, &CSketchApp::OnFilePrint},
    {ID_FILE_PRINT_PREVIEW, ID_FILE_PRINT_PREVIEW, &CSketchApp::OnFilePrintPreview},
    {ID_FILE_PRINT_PDF, ID_FILE_PRINT_PDF, &CSketchApp::OnFilePrintPdf},
    {ID_FILE_MRU_FILE1, ID_FILE_MRU_LAST, &CSketchApp::OnRecentFile},
    {ID_EDIT_CLEAR, ID_EDIT_CLEAR, &CSketchApp::OnEditClear},
    {ID_EDIT_CUT, ID_EDIT_CUT, &CSketchApp::OnEditCut},
    {ID_EDIT_COPY, ID_EDIT_COPY, &CSketchApp::OnEditCopy},
    {ID_EDIT_PASTE, ID_EDIT_PASTE, &CSketchApp::OnEditPaste},
    {ID_EDIT_SELECT_ALL, ID_EDIT_SELECT_ALL, &CSketchApp::OnEditSelectAll},
    {ID_EDIT_SELECT_NEXT, ID_EDIT_SELECT_NEXT, &CSketchApp::OnEditSelectNext},
    {ID_EDIT_INSERT, ID_EDIT_INSERT, &CSketchApp::OnEditInsert},
    {ID_EDIT_UNDO, ID_EDIT_UNDO, &CSketchApp::OnEditUndo},
    {ID_EDIT_REDO, ID_EDIT_REDO, &CSketchApp::OnEditRedo},
    {ID_APP_EXIT, ID_APP_EXIT, &CSketchApp::OnAppExit},
    {ID_APP_ABOUT, ID_APP_ABOUT, &CSketchApp::OnAppAbout},
    {ID_HELP_KEYS, ID_HELP_KEYS, &CSketchApp::OnHelpKeys},
    {ID_VIEW_ZOOM_IN, ID_VIEW_ZOOM_IN, &CSketchApp::OnZoomIn},
    {ID_VIEW_ZOOM_OUT, ID_VIEW_ZOOM_OUT, &CSketchApp::OnZoomOut},
    {ID_VIEW_ZOOM_FULL, ID_VIEW_ZOOM_FULL, &CSketchApp::OnZoomFull},
    {ID_VIEW_ZOOM_FIT, ID_VIEW_ZOOM_FIT, &CSketchApp::OnZoomFit},
    {ID_TOOL_FIRST, ID_TOOL_LAST, &CSketchApp::OnTool},
    {ID_PEN_STYLE_FIRST, ID_PEN_STYLE_LAST, &CSketchApp::OnPenStyle},
    {ID_PEN_WIDTH_FIRST, ID_PEN_WIDTH_LAST, &CSketchApp::OnPenWidth},
    {ID_PEN_COLOR_FIRST, ID_PEN_COLOR_LAST, &CSketchApp::OnPenColor},
    {ID_FILL_NONE, ID_FILL_NONE, &CSketchApp::OnFillNone},
    {ID_FILL_COLOR_FIRST, ID_FILL_COLOR_LAST, &CSketchApp::OnFillColor},
};

CSketchApp::CSketchApp(CShell& shell, const CDefaults& defaults)
    : m_shell(shell), m_view(m_document, defaults), m_autosave(shell), m_recent(ReadRecentFiles())
{
    m_view.SetChangedHandler([this] { UpdateFrame(); });
}

// A text that is being typed is part of the drawing for every command; what is pasted goes into it.
bool CSketchApp::OnCommand(UINT id)
{
    // NOLINTNEXTLINE(readability-use-anyofallof): what is found is called
    for (const CommandEntry& entry : kCommandMap) {
        if (id >= entry.first && id <= entry.last) {
            if (id != ID_EDIT_PASTE)
                m_view.FinishInput();
            (this->*entry.handler)(id - entry.first);
            UpdateFrame();
            return true;
        }
    }
    return false;
}

void CSketchApp::UpdateFrame()
{
    m_shell.SetWindowText(NameForPeople() + (IsChanged() ? L"*" : L"") + L" - " +
                          Text(IDS_APPTITLE));
    ShowSelection();
    m_shell.Refresh();
}

void CSketchApp::OnAutosave()
{
    m_autosave.Write(m_document.GetPathName(), m_view.GetAllShapes(), IsChanged());
}

void CSketchApp::ShowSelection()
{
    const int selected = m_view.CountSelected();
    if (selected != m_nShownSelected)
        m_shell.ShowLine(selected ? Text(IDS_SELECTED, std::to_wstring(selected))
                                  : Text(IDS_READY));
    m_nShownSelected = selected;
}

namespace {

CCommandState Named(std::optional<TextId> name, TextId text)
{
    if (!name)
        return {false, false, std::wstring()};
    return {true, false, Text(text, Text(*name))};
}

constexpr int kZooms[] = {25, 33, 50, 67, 80, 100, 125, 150, 200, 300, 400};

bool IsOfSelection(UINT id)
{
    return id == ID_EDIT_CLEAR || id == ID_EDIT_CUT || id == ID_EDIT_COPY;
}

bool IsOfPrinter(UINT id)
{
    return id == ID_FILE_PAGE_SETUP || id == ID_FILE_PRINT || id == ID_FILE_PRINT_PREVIEW;
}

bool IsChosen(UINT id, const CPenInfo& pen)
{
    if (id >= ID_PEN_STYLE_FIRST && id <= ID_PEN_STYLE_LAST)
        return pen.style == static_cast<int>(id - ID_PEN_STYLE_FIRST);
    if (id >= ID_PEN_WIDTH_FIRST && id <= ID_PEN_WIDTH_LAST)
        return pen.width == static_cast<int>(id - ID_PEN_WIDTH_FIRST);
    if (id >= ID_PEN_COLOR_FIRST && id <= ID_PEN_COLOR_LAST)
        return pen.color == kColors[id - ID_PEN_COLOR_FIRST];
    if (id >= ID_FILL_COLOR_FIRST && id <= ID_FILL_COLOR_LAST)
        return pen.filled && pen.fill == kColors[id - ID_FILL_COLOR_FIRST];
    return id == ID_FILL_NONE && !pen.filled;
}

} // namespace

CCommandState CSketchApp::OnUpdateCommand(UINT id) const
{
    if (id == ID_EDIT_UNDO && m_view.HasUnfinishedInput())
        return Named(IDS_UNDO_TEXT, IDS_UNDO_NAMED);
    if (id == ID_EDIT_UNDO)
        return Named(m_document.GetUndoName(), IDS_UNDO_NAMED);
    if (id == ID_EDIT_REDO)
        return Named(m_document.GetRedoName(), IDS_REDO_NAMED);
    if (IsOfSelection(id))
        return {m_view.CountSelected() > 0, false, std::wstring()};
    if (IsOfPrinter(id))
        return {m_shell.CanPrint(), false, std::wstring()};
    if (id >= ID_FILE_MRU_FILE1 && id <= ID_FILE_MRU_LAST) {
        const std::size_t index = id - ID_FILE_MRU_FILE1;
        const bool there = index < m_recent.size();
        return {there, false, there ? MenuName(m_recent[index]) : std::wstring()};
    }
    return {true, id == CommandOf(m_view.GetTool()) || IsChosen(id, m_view.GetPen()),
            std::wstring()};
}

void CSketchApp::OnAppExit(UINT)
{
    m_shell.Close();
}

void CSketchApp::OnAppAbout(UINT)
{
    m_shell.ShowAbout(Text(IDS_APPTITLE), Text(IDS_ABOUT));
}

void CSketchApp::OnHelpKeys(UINT)
{
    m_shell.ShowAbout(Text(IDS_APPTITLE), Text(IDS_KEYS));
}

void CSketchApp::OnTool(UINT tool)
{
    m_view.WindowProc(WM_SKETCH_SETTOOL, tool, 0);
}

void CSketchApp::Zoom(int percent)
{
    m_view.SetZoom(percent);
    m_shell.ShowLine(Text(IDS_ZOOMED, std::to_wstring(m_view.GetZoom())));
}

void CSketchApp::OnZoomIn(UINT)
{
    const auto* const next =
        std::upper_bound(std::begin(kZooms), std::end(kZooms), m_view.GetZoom());
    Zoom(next == std::end(kZooms) ? m_view.GetZoom() : *next);
}

void CSketchApp::OnZoomOut(UINT)
{
    const auto* const next =
        std::lower_bound(std::begin(kZooms), std::end(kZooms), m_view.GetZoom());
    Zoom(next == std::begin(kZooms) ? m_view.GetZoom() : *(next - 1));
}

void CSketchApp::OnZoomFull(UINT)
{
    Zoom(100);
}

void CSketchApp::OnZoomFit(UINT)
{
    const SIZE room = m_shell.GetClientSize();
    const SIZE extent = m_view.GetExtent();
    Zoom(static_cast<int>(std::min(100 * room.cx / extent.cx, 100 * room.cy / extent.cy)));
}
