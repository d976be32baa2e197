// SPDX-License-Identifier: MIT
//
// What the program needs from its window.
#ifndef SKETCHPAD_SHELL_H
#define SKETCHPAD_SHELL_H

#include "TextIds.h"

#include <KtQtBase/WindowsTypes.h>

#include <optional>
#include <string>

enum class Answer
{
    Yes,
    No,
    Cancel
};

// A question with two or three answers. Closing the box cancels.
struct CQuestion
{
    std::wstring text;
    TextId yes;
    std::optional<TextId> no;
    TextId cancel;
    Answer safe; // what Return means
};

class CShell
{
public:
    virtual ~CShell() = default;

    // The parent of dialogs.
    virtual CWnd* GetMainWnd() = 0;
    // While a dialog runs, its parent still takes input, so the shell must stop it.
    virtual void EnableInput(bool enable) = 0;
    virtual void SetWindowText(const std::wstring& title) = 0;
    virtual void ShowLine(const std::wstring& line) = 0;
    // Repaints, and shows each command as CSketchApp::OnUpdateCommand has it.
    virtual void Refresh() = 0;
    // Of the part of the window that shows the drawing, in pixels.
    virtual SIZE GetClientSize() = 0;
    virtual void Close() = 0;

    // What AfxMessageBox cannot do: its boxes have no other buttons than Yes and No, Return means
    // Yes, and Escape means No.
    virtual Answer Ask(const CQuestion& question) = 0;
    virtual void Report(const std::wstring& text) = 0;
    virtual void ShowAbout(const std::wstring& title, const std::wstring& text) = 0;

    // The bytes of the printed drawing.
    virtual std::string MakePdf() = 0;
    // ID_FILE_PAGE_SETUP, ID_FILE_PRINT_PREVIEW or ID_FILE_PRINT.
    virtual void OnPrintCommand(UINT id) = 0;
    virtual bool CanPrint() const = 0;

    // What is selected goes to the clipboard as this text and as a picture.
    virtual void SetClipboard(const std::wstring& text) = 0;
    virtual std::wstring GetClipboardText() = 0;

    // A folder of this user for the program's own files, with its slash; it is made if need be.
    virtual std::wstring GetDataFolder() = 0;
    // Keeps other programs from a file until another name is held.
    //   path    in: the file, or an empty text for none
    // Result: false if another program that still runs has it.
    virtual bool HoldName(const std::wstring& path) = 0;
};

#endif
