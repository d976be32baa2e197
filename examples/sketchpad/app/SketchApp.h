// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SKETCHAPP_H
#define SKETCHPAD_SKETCHAPP_H

#include "Autosave.h"
#include "Commands.h"
#include "SketchDoc.h"
#include "SketchView.h"
#include "TextIds.h"

#include <KtQtBase/PathName.h>

class CShell;

// The program: its document, its view, and what the commands do.
class CSketchApp
{
public:
    CSketchApp(CShell& shell, const CDefaults& defaults);

    CSketchView& GetView() { return m_view; }
    const CSketchDoc& GetDocument() const { return m_document; }

    // Result: whether the number is that of a command.
    bool OnCommand(UINT id);
    CCommandState OnUpdateCommand(UINT id) const;

    // Each reports a failure in a box and leaves the drawing as it was.
    //   name, typed    in: an absolute name
    //   asked          in: whether a dialog has already asked about replacing this name
    bool OpenFile(const std::wstring& name);
    bool SaveFile(const std::wstring& typed, bool asked);
    bool PrintFile(const std::wstring& typed, bool asked);
    bool SaveCopy();

    // Result: whether nothing unsaved is left, or the user discards it.
    bool SaveModified();

    // Stores what has changed since the last time, in case the program is killed.
    void OnAutosave();
    // Offers what a killed program has left behind.
    void OfferAutosaves();
    void OnClose() { m_autosave.Remove(); }

    // Updates title and menus.
    void UpdateFrame();

private:
    struct CommandEntry
    {
        UINT first;
        UINT last;
        void (CSketchApp::*handler)(UINT offset);
    };
    static const CommandEntry kCommandMap[];

    void OnFileNew(UINT);
    void OnFileOpen(UINT);
    void OnFileSave(UINT);
    void OnFileSaveAs(UINT);
    void OnFileSaveCopy(UINT);
    void OnFilePageSetup(UINT);
    void OnFilePrint(UINT);
    void OnFilePrintPreview(UINT);
    void OnFilePrintPdf(UINT);
    void OnRecentFile(UINT index);
    void OnEditClear(UINT);
    void OnEditCut(UINT);
    void OnEditCopy(UINT);
    void OnEditPaste(UINT);
    void OnEditSelectAll(UINT);
    void OnEditSelectNext(UINT);
    void OnEditInsert(UINT);
    void OnEditUndo(UINT);
    void OnEditRedo(UINT);
    void OnAppExit(UINT);
    void OnAppAbout(UINT);
    void OnHelpKeys(UINT);
    void OnZoomIn(UINT);
    void OnZoomOut(UINT);
    void OnZoomFull(UINT);
    void OnZoomFit(UINT);
    void OnTool(UINT tool);
    void OnPenStyle(UINT style);
    void OnPenWidth(UINT width);
    void OnPenColor(UINT index);
    void OnFillNone(UINT);
    void OnFillColor(UINT index);

    std::wstring AskForName(bool open, TextId title, TextId filter, const std::wstring& proposed);
    std::wstring ProposedName(const wchar_t* extension) const;
    bool TakeName(const std::wstring& typed, const wchar_t* extension, bool asked,
                  CRnUiPathname& name);
    bool Save();
    bool WriteDocument(const std::wstring& path);
    bool MayReplace(const std::wstring& path);
    bool WritePdf(const std::wstring& path);
    bool Recover(const std::wstring& path);
    bool TakeRecovered(const std::wstring& autosave, const std::wstring& path);
    bool IsChanged() const { return m_document.IsModified() || m_view.HasUnfinishedInput(); }
    void Remember(const std::wstring& path);
    std::wstring NameForPeople() const;
    void ShowSelection();
    void Zoom(int percent);
    bool PasteShapes(const std::wstring& text);
    void PasteText(const std::wstring& text);
    void AddAndSelect(TextId name, const std::vector<CShape>& shapes);

    CShell& m_shell;
    CSketchDoc m_document;
    CSketchView m_view;
    CAutosave m_autosave;
    std::optional<long long> m_time; // of the drawing's file, when it was read or written
    std::vector<std::wstring> m_recent;
    int m_nShownSelected = 0;
};

#endif
