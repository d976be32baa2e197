// SPDX-License-Identifier: MIT
//
// A copy of what is not saved yet, in a file beside the drawing, for the case that the program is
// killed. It goes when the drawing is saved or discarded.
#ifndef SKETCHPAD_AUTOSAVE_H
#define SKETCHPAD_AUTOSAVE_H

#include <string>

class CShell;
class CSketchDoc;

class CAutosave
{
public:
    explicit CAutosave(CShell& shell) : m_shell(shell) {}

    // The autosave of a drawing; of one without a name, in the program's own folder.
    std::wstring NameFor(const std::wstring& path) const;

    // Writes the drawing if it has changed since the last time. A failure is not reported: it would
    // only come between the user and saving.
    void Write(const CSketchDoc& document);

    // Makes an autosave that was left behind this program's.
    // Result: false if there is none, or another program that still runs works with it.
    bool Take(const std::wstring& path);

    // Removes the autosave.
    void Remove();

private:
    CShell& m_shell;
    std::wstring m_path; // of the autosave; empty for none
    long m_revision = 0; // of the drawing in it
};

#endif
