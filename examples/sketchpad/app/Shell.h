// SPDX-License-Identifier: MIT
//
// What the program needs from its window.
#ifndef SKETCHPAD_SHELL_H
#define SKETCHPAD_SHELL_H

#include <KtQtBase/WindowsTypes.h>

#include <string>
#include <vector>

class CShell
{
public:
    virtual ~CShell() = default;

    // The parent of dialogs.
    virtual CWnd* GetMainWnd() = 0;
    // While a dialog runs, its parent still takes input, so the shell must stop it.
    virtual void EnableInput(bool enable) = 0;
    virtual void SetWindowText(const std::wstring& title) = 0;
    virtual void SetRecentFiles(const std::vector<std::wstring>& names) = 0;
    virtual void ShowLine(const std::wstring& line) = 0;
    // Repaints, and marks the tool and the commands in force.
    virtual void Refresh() = 0;
    // Result: false where nothing could be written.
    virtual bool PrintTo(const std::wstring& path) = 0;
    virtual void Close() = 0;
};

#endif
