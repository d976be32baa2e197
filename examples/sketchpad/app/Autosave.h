// SPDX-License-Identifier: MIT
//
// A copy of what is not saved yet, in a file beside the drawing, for the case that the program is
// killed. It goes when the drawing is saved or discarded.
#ifndef SKETCHPAD_AUTOSAVE_H
#define SKETCHPAD_AUTOSAVE_H

#include "Shape.h"

class CShell;

class CAutosave
{
public:
    explicit CAutosave(CShell& shell) : m_shell(shell) {}

    // Writes the drawing, unless it is as it was the last time; without changes, removes what was
    // written. A failure is not reported: it would only come between the user and saving.
    //   path      in: the drawing's; before it changes, the autosave is removed
    //   shapes    in: the drawing's, with what is still being typed
    void Write(const std::wstring& path, const std::vector<CShape>& shapes, bool changed);

    // Makes an autosave that was left behind this program's. One that is older than its drawing is
    // removed: it was saved since.
    // Result: its name; empty if there is none, or other programs that still run work with them.
    std::wstring Take(const std::wstring& path);

    // Removes the autosave, or leaves it for the next start.
    void Remove();
    void Leave();

private:
    std::wstring NameFor(const std::wstring& path, int number) const;
    bool Claim(const std::wstring& path);

    CShell& m_shell;
    std::wstring m_path; // of the autosave; empty for none
    std::vector<CShape> m_shapes;
};

#endif
