// SPDX-License-Identifier: MIT
#include "SketchApp.h"

#include "Commands.h"
#include "Settings.h"
#include "Shell.h"
#include "Texts.h"

const CSketchApp::CommandEntry CSketchApp::kCommandMap[] = {
    {ID_FILE_NEW, ID_FILE_NEW, &CSketchApp::OnFileNew},
    {ID_FILE_OPEN, ID_FILE_OPEN, &CSketchApp::OnFileOpen},
    {ID_FILE_SAVE, ID_FILE_SAVE, &CSketchApp::OnFileSave},
    {ID_FILE_SAVE_AS, ID_FILE_SAVE_AS, &CSketchApp::OnFileSaveAs},
    {ID_FILE_SAVE_COPY_AS, ID_FILE_SAVE_COPY_AS, &CSketchApp::OnFileSaveCopy},
    {ID_FILE_PRINT, ID_FILE_PRINT, &CSketchApp::OnFilePrint},
    {ID_FILE_MRU_FILE1, ID_FILE_MRU_LAST, &CSketchApp::OnRecentFile},
    {ID_EDIT_CLEAR, ID_EDIT_CLEAR, &CSketchApp::OnEditClear},
    {ID_EDIT_UNDO, ID_EDIT_UNDO, &CSketchApp::OnEditUndo},
    {ID_APP_EXIT, ID_APP_EXIT, &CSketchApp::OnAppExit},
    {ID_TOOL_FIRST, ID_TOOL_LAST, &CSketchApp::OnTool},
    {ID_PEN_STYLE_FIRST, ID_PEN_STYLE_LAST, &CSketchApp::OnPenStyle},
    {ID_PEN_WIDTH_FIRST, ID_PEN_WIDTH_LAST, &CSketchApp::OnPenWidth},
    {ID_PEN_COLOR_FIRST, ID_PEN_COLOR_LAST, &CSketchApp::OnPenColor},
    {ID_FILL_NONE, ID_FILL_NONE, &CSketchApp::OnFillNone},
    {ID_FILL_COLOR_FIRST, ID_FILL_COLOR_LAST, &CSketchApp::OnFillColor},
};

CSketchApp::CSketchApp(CShell& shell, const CDefaults& defaults)
    : m_shell(shell), m_view(m_document, defaults)
{
    m_view.SetChangedHandler([this] { UpdateFrame(); });
}

bool CSketchApp::OnCommand(UINT id)
{
    for (const CommandEntry& entry : kCommandMap) {
        if (id >= entry.first && id <= entry.last) {
            (this->*entry.handler)(id - entry.first);
            UpdateFrame();
            return true;
        }
    }
    return false;
}

void CSketchApp::UpdateFrame()
{
    const std::wstring changed = m_document.IsModified() ? L"*" : L"";
    m_shell.SetWindowText(NameForPeople() + changed + L" - " + Text(IDS_APPTITLE));
    m_shell.SetRecentFiles(ReadRecentFiles());
    ShowSelection();
    m_shell.Refresh();
}

void CSketchApp::ShowSelection()
{
    const int selected = m_view.CountSelected();
    if (selected != m_nShownSelected && selected > 0)
        m_shell.ShowLine(Text(IDS_SELECTED, std::to_wstring(selected)));
    m_nShownSelected = selected;
}

void CSketchApp::OnFileNew(UINT)
{
    if (!SaveModified())
        return;
    m_document.DeleteContents();
    m_view.OnInitialUpdate();
}

void CSketchApp::OnEditClear(UINT)
{
    m_view.DeleteSelection();
}

void CSketchApp::OnEditUndo(UINT)
{
    m_view.FinishInput();
    m_document.RemoveLast();
}

void CSketchApp::OnAppExit(UINT)
{
    m_shell.Close();
}

void CSketchApp::OnTool(UINT tool)
{
    m_view.WindowProc(WM_SKETCH_SETTOOL, tool, 0);
}

void CSketchApp::OnPenStyle(UINT style)
{
    CPenInfo pen = m_view.GetPen();
    pen.style = static_cast<int>(style);
    m_view.SetPen(pen);
}

void CSketchApp::OnPenWidth(UINT width)
{
    CPenInfo pen = m_view.GetPen();
    pen.width = static_cast<int>(width);
    m_view.SetPen(pen);
}

void CSketchApp::OnPenColor(UINT index)
{
    CPenInfo pen = m_view.GetPen();
    pen.color = kColors[index];
    m_view.SetPen(pen);
}

void CSketchApp::OnFillNone(UINT)
{
    CPenInfo pen = m_view.GetPen();
    pen.filled = false;
    m_view.SetPen(pen);
}

void CSketchApp::OnFillColor(UINT index)
{
    CPenInfo pen = m_view.GetPen();
    pen.filled = true;
    pen.fill = kColors[index];
    m_view.SetPen(pen);
}
