// SPDX-License-Identifier: MIT
//
// The commands that open, save and print.
#include "FileNames.h"
#include "SafeFile.h"
#include "Settings.h"
#include "Shell.h"
#include "SketchApp.h"
#include "Texts.h"

#include <KtQtBase/FileDialog.h>
#include <algorithm>

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

} // namespace

std::wstring CSketchApp::AskForName(bool open, TextId title, TextId filter,
                                    const std::wstring& proposed)
{
    const std::wstring caption = Text(title);
    const std::wstring filters = Text(filter);
    std::wstring folder = FolderOf(m_document.GetPathName());
    std::wstring selected = proposed;
    if (folder.empty())
        folder = AbsoluteName(L".");
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

// The drawing's own name, with the extension of what is written.
std::wstring CSketchApp::ProposedName(const wchar_t* extension) const
{
    const std::wstring path = m_document.GetPathName();
    CRnUiPathname name;
    if (name.Parse((path.empty() ? Text(IDS_UNTITLED) : path).c_str(), false) != 0)
        return std::wstring();
    name.ReplaceExtensionIfNoMatch(extension);
    return FileNameOf(FullPath(name));
}

void CSketchApp::OnFileNew(UINT)
{
    if (!SaveModified())
        return;
    m_autosave.Remove();
    m_document.DeleteContents();
    m_view.OnInitialUpdate();
}

void CSketchApp::OnFileOpen(UINT)
{
    const std::wstring name = AskForName(true, IDS_OPENTITLE, IDS_FILTER, std::wstring());
    if (!name.empty())
        OpenFile(name);
}

void CSketchApp::OnFileSave(UINT)
{
    Save();
}

bool CSketchApp::Save()
{
    const std::wstring path = m_document.GetPathName();
    if (!path.empty())
        return MayReplace(path) && WriteDocument(path);
    const std::wstring name = AskForName(false, IDS_SAVETITLE, IDS_FILTER, ProposedName(kDrawing));
    return !name.empty() && SaveFile(name, true);
}

void CSketchApp::OnFileSaveAs(UINT)
{
    const std::wstring name = AskForName(false, IDS_SAVETITLE, IDS_FILTER, ProposedName(kDrawing));
    if (!name.empty())
        SaveFile(name, true);
}

void CSketchApp::OnFileSaveCopy(UINT)
{
    SaveCopy();
}

void CSketchApp::OnFilePageSetup(UINT)
{
    m_shell.OnPrintCommand(ID_FILE_PAGE_SETUP);
}

void CSketchApp::OnFilePrint(UINT)
{
    m_shell.OnPrintCommand(ID_FILE_PRINT);
}

void CSketchApp::OnFilePrintPreview(UINT)
{
    m_shell.OnPrintCommand(ID_FILE_PRINT_PREVIEW);
}

void CSketchApp::OnFilePrintPdf(UINT)
{
    const std::wstring name = AskForName(false, IDS_PRINTTITLE, IDS_PDFFILTER, ProposedName(kPdf));
    if (!name.empty())
        PrintFile(name, true);
}

// A copy of the name, since opening moves it in the list. A file that is gone leaves the list.
void CSketchApp::OnRecentFile(UINT index)
{
    const std::wstring file = index < m_recent.size() ? m_recent[index] : std::wstring();
    if (file.empty() || OpenFile(file) || TimeOf(file))
        return;
    RemoveRecentFile(file);
    m_recent = ReadRecentFiles();
}

// What a killed program has left of this drawing may be newer than the file.
bool CSketchApp::OpenFile(const std::wstring& name)
{
    std::wstring reason;
    if (!SaveModified())
        return false;
    if (!m_document.OnOpenDocument(name, reason)) {
        m_shell.Report(Text(IDS_CANNOTOPEN, DisplayName(name, kNameWidth), reason));
        return false;
    }
    m_time = TimeOf(name);
    m_autosave.Remove();
    m_view.OnInitialUpdate();
    Remember(name);
    m_shell.ShowLine(Text(IDS_OPENED, FileNameOf(name)));
    Recover(name);
    return true;
}

bool CSketchApp::Recover(const std::wstring& path)
{
    const std::wstring autosave = m_autosave.Take(path);
    if (autosave.empty())
        return false;
    const std::wstring shown = path.empty() ? Text(IDS_UNTITLED) : DisplayName(path, kNameWidth);
    const Answer answer =
        m_shell.Ask({Text(IDS_RECOVER, shown), IDS_GOON, IDS_DELETE, IDS_LATER, Answer::Yes});
    if (answer == Answer::Yes)
        return TakeRecovered(autosave, path);
    if (answer == Answer::No)
        m_autosave.Remove();
    else
        m_autosave.Leave();
    return false;
}

// One that cannot be read stays where it is: somebody may be able to mend it.
bool CSketchApp::TakeRecovered(const std::wstring& autosave, const std::wstring& path)
{
    std::wstring reason;
    if (!m_document.Recover(autosave, path, reason)) {
        m_autosave.Leave();
        m_shell.Report(Text(IDS_CANNOTOPEN, autosave, reason));
        return false;
    }
    m_time = TimeOf(path);
    m_view.OnInitialUpdate();
    m_shell.ShowLine(Text(IDS_RECOVERED, path.empty() ? Text(IDS_UNTITLED) : FileNameOf(path)));
    return true;
}

// Only one drawing can be open: the others are offered when they are opened.
void CSketchApp::OfferAutosaves()
{
    if (IsChanged())
        return;
    std::vector<std::wstring> paths = {std::wstring()};
    paths.insert(paths.end(), m_recent.begin(), m_recent.end());
    const bool found = std::any_of(paths.begin(), paths.end(),
                                   [this](const std::wstring& path) { return Recover(path); });
    if (found)
        UpdateFrame();
}

// Turns what was typed into the name to write, and asks before a file is replaced.
bool CSketchApp::TakeName(const std::wstring& typed, const wchar_t* extension, bool asked,
                          CRnUiPathname& name)
{
    bool added = false;
    std::wstring reason;
    if (!TakeSaveName(typed, extension, name, added, reason)) {
        m_shell.Report(Text(IDS_BADNAME, typed, reason));
        return false;
    }
    // Qt's dialog has asked about the name as it was typed, which may be another one.
    const bool exists = name.Status() & kStatusExists;
    if (!exists || (asked && !added) || FullPath(name) == m_document.GetPathName())
        return true;
    return m_shell.Ask({Text(IDS_OVERWRITE, DisplayName(FullPath(name), kNameWidth)), IDS_REPLACE,
                        std::nullopt, IDS_CANCEL, Answer::Cancel}) == Answer::Yes;
}

bool CSketchApp::SaveFile(const std::wstring& typed, bool asked)
{
    CRnUiPathname name;
    return TakeName(typed, kDrawing, asked, name) && WriteDocument(FullPath(name));
}

// Somebody else may have saved the drawing since it was opened.
bool CSketchApp::MayReplace(const std::wstring& path)
{
    const auto time = TimeOf(path);
    return !time || time == m_time ||
           m_shell.Ask({Text(IDS_CHANGED, DisplayName(path, kNameWidth)), IDS_REPLACE, std::nullopt,
                        IDS_CANCEL, Answer::Cancel}) == Answer::Yes;
}

bool CSketchApp::WriteDocument(const std::wstring& path)
{
    std::wstring reason;
    m_view.FinishInput();
    if (!m_document.OnSaveDocument(path, reason)) {
        m_shell.Report(Text(IDS_CANNOTSAVE, DisplayName(path, kNameWidth), reason));
        return false;
    }
    m_document.SetPathName(path);
    m_document.SetSaved();
    m_time = TimeOf(path);
    m_autosave.Remove();
    Remember(path);
    m_shell.ShowLine(Text(IDS_SAVED, FileNameOf(path)));
    return true;
}

bool CSketchApp::SaveCopy()
{
    const std::wstring path = m_document.GetPathName();
    m_view.FinishInput();
    if (path.empty())
        return Save();
    const std::wstring copy = UniqueName(path);
    std::wstring reason = Text(IDS_NOCOPYNAME);
    if (copy.empty() || !m_document.OnSaveDocument(copy, reason)) {
        m_shell.Report(Text(IDS_CANNOTSAVE, DisplayName(path, kNameWidth), reason));
        return false;
    }
    m_shell.ShowLine(Text(IDS_COPIED, FileNameOf(copy)));
    return true;
}

bool CSketchApp::PrintFile(const std::wstring& typed, bool asked)
{
    CRnUiPathname name;
    return TakeName(typed, kPdf, asked, name) && WritePdf(FullPath(name));
}

bool CSketchApp::WritePdf(const std::wstring& path)
{
    std::wstring reason;
    m_view.FinishInput();
    if (!WriteSafely(path, m_shell.MakePdf(), CFileMode::Usual, reason)) {
        m_shell.Report(Text(IDS_CANNOTPRINT, DisplayName(path, kNameWidth), reason));
        return false;
    }
    m_shell.ShowLine(Text(IDS_PRINTED, FileNameOf(path)));
    return true;
}

bool CSketchApp::SaveModified()
{
    m_view.FinishInput();
    if (!m_document.IsModified())
        return true;
    const Answer answer = m_shell.Ask(
        {Text(IDS_ASKTOSAVE, NameForPeople()), IDS_SAVE, IDS_DISCARD, IDS_CANCEL, Answer::Yes});
    return answer == Answer::No || (answer == Answer::Yes && Save());
}

void CSketchApp::Remember(const std::wstring& path)
{
    AddRecentFile(path);
    m_recent = ReadRecentFiles();
    UpdateFrame();
}

std::wstring CSketchApp::NameForPeople() const
{
    const std::wstring& path = m_document.GetPathName();
    return path.empty() ? Text(IDS_UNTITLED) : DisplayName(path, kTitleWidth);
}
