// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SKETCHAPP_H
#define SKETCHPAD_SKETCHAPP_H

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

    // Each reports a failure in a box and leaves the drawing as it was.
    //   name     in: an absolute name
    //   asked    in: whether a dialog has already asked about replacing this name
    bool OpenFile(const std::wstring& name);
    bool SaveFile(const std::wstring& name, bool asked);
    bool PrintFile(const std::wstring& name, bool asked);
    bool SaveCopy();

    // Result: whether nothing unsaved is left, or the user discards it.
    bool SaveModified();

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
    void OnFilePrint(UINT);
    void OnRecentFile(UINT index);
    void OnEditClear(UINT);
    void OnEditUndo(UINT);
    void OnAppExit(UINT);
    void OnTool(UINT tool);
    void OnPenStyle(UINT style);
    void OnPenWidth(UINT width);
    void OnPenColor(UINT index);
    void OnFillNone(UINT);
    void OnFillColor(UINT index);

    std::wstring AskForName(bool open, TextId title, TextId filter);
    bool TakeName(const std::wstring& typed, const wchar_t* extension, bool asked,
                  CRnUiPathname& name);
    bool WriteDocument(const std::wstring& path);
    void Remember(const std::wstring& path);
    std::wstring NameForPeople() const;
    void ShowSelection();

    CShell& m_shell;
    CSketchDoc m_document;
    CSketchView m_view;
    int m_nShownSelected = 0;
};

#endif
