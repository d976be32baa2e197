// SPDX-License-Identifier: MIT
//
// The commands that open, save and print.
#include "FileNames.h"
#include "Settings.h"
#include "Shell.h"
#include "SketchApp.h"
#include "Texts.h"

#include <KtQtBase/FileDialog.h>
#include <KtQtBase/Messages.h>

namespace {

constexpr wchar_t kDrawing[] = L"sketch";
constexpr wchar_t kPdf[] = L"pdf";
constexpr int kNameWidth = 40;
constexpr int kTitleWidth = 24;
constexpr int kStatusExists = 1;

// Switches the window's input off while a dialog runs.
class CInputPause
{
public:
    explicit CInputPause(CShell& shell) : m_shell(shell) { m_shell.EnableInput(false); }
    ~CInputPause() { m_shell.EnableInput(true); }
    CInputPause(const CInputPause&) = delete;
    CInputPause& operator=(const CInputPause&) = delete;

private:
    CShell& m_shell;
};

// Every box has the buttons Yes and No, so only a question looks at the answer.
void Report(const std::wstring& text)
{
    AfxMessageBox(text.c_str(), MB_OK | MB_ICONEXCLAMATION);
}

bool Ask(const std::wstring& text)
{
    return AfxMessageBox(text.c_str(), MB_YESNO | MB_ICONQUESTION) == IDYES;
}

} // namespace

std::wstring CSketchApp::AskForName(bool open, TextId title, TextId filter)
{
    const std::wstring caption = Text(title);
    const std::wstring filters = Text(filter);
    std::wstring folder = FolderOf(m_document.GetPathName());
    if (folder.empty())
        folder = AbsoluteName(L".");
    std::wstring selected;
    KtQtFileDialog dialog(open, kDrawing, nullptr, OFN_OVERWRITEPROMPT, filters.c_str(),
                          m_shell.GetMainWnd());
    dialog.GetOFN().lpstrTitle = caption.c_str();
    dialog.GetOFN().lpstrFilter = filters.c_str();
    dialog.GetOFN().nFilterIndex = 1;
    dialog.GetOFN().lpstrInitialDir = folder.c_str();
    dialog.GetOFN().lpstrFile = selected.data();
    const CInputPause pause(m_shell);
    return dialog.DoModal() == IDOK ? dialog.GetPathName() : std::wstring();
}

void CSketchApp::OnFileOpen(UINT)
{
    const std::wstring name = AskForName(true, IDS_OPENTITLE, IDS_FILTER);
    if (!name.empty())
        OpenFile(name);
}

void CSketchApp::OnFileSave(UINT)
{
    if (m_document.GetPathName().empty())
        OnFileSaveAs(0);
    else
        WriteDocument(m_document.GetPathName());
}

void CSketchApp::OnFileSaveAs(UINT)
{
    const std::wstring name = AskForName(false, IDS_SAVETITLE, IDS_FILTER);
    if (!name.empty())
        SaveFile(name, true);
}

void CSketchApp::OnFileSaveCopy(UINT)
{
    SaveCopy();
}

void CSketchApp::OnFilePrint(UINT)
{
    const std::wstring name = AskForName(false, IDS_PRINTTITLE, IDS_PDFFILTER);
    if (!name.empty())
        PrintFile(name, true);
}

void CSketchApp::OnRecentFile(UINT index)
{
    const std::vector<std::wstring> files = ReadRecentFiles();
    if (index < files.size())
        OpenFile(files[index]);
}

bool CSketchApp::OpenFile(const std::wstring& name)
{
    std::wstring reason;
    if (!SaveModified())
        return false;
    if (!m_document.OnOpenDocument(name, reason)) {
        Report(Text(IDS_CANNOTOPEN, DisplayName(name, kNameWidth), reason));
        return false;
    }
    m_view.OnInitialUpdate();
    Remember(name);
    m_shell.ShowLine(Text(IDS_OPENED, name));
    return true;
}

// Turns what was typed into the name to write, and asks before a file is replaced.
bool CSketchApp::TakeName(const std::wstring& typed, const wchar_t* extension, bool asked,
                          CRnUiPathname& name)
{
    bool added = false;
    std::wstring reason;
    if (!TakeSaveName(typed, extension, name, added, reason)) {
        Report(Text(IDS_BADNAME, typed, reason));
        return false;
    }
    // Qt's dialog has asked about the name as it was typed, which may be another one.
    const bool exists = name.Status() & kStatusExists;
    if (!exists || (asked && !added) || FullPath(name) == m_document.GetPathName())
        return true;
    return Ask(Text(IDS_OVERWRITE, DisplayName(FullPath(name), kNameWidth)));
}

bool CSketchApp::SaveFile(const std::wstring& typed, bool asked)
{
    CRnUiPathname name;
    return TakeName(typed, kDrawing, asked, name) && WriteDocument(FullPath(name));
}

bool CSketchApp::WriteDocument(const std::wstring& path)
{
    std::wstring reason;
    m_view.FinishInput();
    if (!m_document.OnSaveDocument(path, reason)) {
        Report(Text(IDS_CANNOTSAVE, DisplayName(path, kNameWidth), reason));
        return false;
    }
    m_document.SetPathName(path);
    m_document.SetModifiedFlag(false);
    Remember(path);
    m_shell.ShowLine(Text(IDS_SAVED, path, std::to_wstring(StatusOf(path))));
    return true;
}

bool CSketchApp::SaveCopy()
{
    const std::wstring path = m_document.GetPathName();
    if (path.empty()) {
        OnFileSaveAs(0);
        return !m_document.GetPathName().empty();
    }
    const std::wstring copy = UniqueName(path);
    std::wstring reason = Text(IDS_NOCOPYNAME);
    m_view.FinishInput();
    if (copy.empty() || !m_document.OnSaveDocument(copy, reason)) {
        Report(Text(IDS_CANNOTSAVE, DisplayName(path, kNameWidth), reason));
        return false;
    }
    m_shell.ShowLine(Text(IDS_COPIED, copy));
    return true;
}

bool CSketchApp::PrintFile(const std::wstring& typed, bool asked)
{
    CRnUiPathname name;
    if (!TakeName(typed, kPdf, asked, name))
        return false;
    m_view.FinishInput();
    if (!m_shell.PrintTo(FullPath(name))) {
        Report(Text(IDS_CANNOTPRINT, DisplayName(FullPath(name), kNameWidth)));
        return false;
    }
    m_shell.ShowLine(Text(IDS_PRINTED, FullPath(name)));
    return true;
}

bool CSketchApp::SaveModified()
{
    m_view.FinishInput();
    return !m_document.IsModified() || Ask(Text(IDS_DISCARD, NameForPeople()));
}

void CSketchApp::Remember(const std::wstring& path)
{
    AddRecentFile(path);
    UpdateFrame();
}

std::wstring CSketchApp::NameForPeople() const
{
    const std::wstring& path = m_document.GetPathName();
    return path.empty() ? Text(IDS_UNTITLED) : DisplayName(path, kTitleWidth);
}
