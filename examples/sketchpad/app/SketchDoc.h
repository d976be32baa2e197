// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SKETCHDOC_H
#define SKETCHPAD_SKETCHDOC_H

#include "Shape.h"
#include "TextIds.h"

#include <deque>
#include <optional>

// What happens to one shape: it comes, if it was nothing before; goes, if it is nothing after; or
// changes.
struct CChange
{
    std::size_t index = 0;
    std::optional<CShape> before;
    std::optional<CShape> after;
};

// What one command did, for undoing it: all its changes are of one kind, by rising index.
struct CEdit
{
    TextId name; // such as "delete"
    std::vector<CChange> changes;
};

using CIndices = std::vector<std::size_t>; // of shapes, rising

// The drawing that the program works on, and the file that it came from.
class CSketchDoc
{
public:
    void DeleteContents();
    const std::vector<CShape>& GetShapes() const { return m_shapes; }

    // Each is one command that can be undone; with nothing to do it is none. Moves of the same
    // shapes one after the other are one command.
    void AddShapes(TextId name, const std::vector<CShape>& shapes);
    void RemoveShapes(TextId name, const CIndices& indices);
    //   change    in: makes of each shape what it becomes
    void ChangeShapes(TextId name, const CIndices& indices,
                      const std::function<CShape(const CShape&)>& change);

    // Result: false if there is nothing to undo or redo.
    bool Undo();
    bool Redo();
    // The name of the command that would be undone or redone.
    std::optional<TextId> GetUndoName() const;
    std::optional<TextId> GetRedoName() const;

    bool IsModified() const { return m_position != m_saved; }
    void SetSaved() { m_saved = m_position; }
    // Rises with each change; tells whether the drawing is still the one that was seen.
    long GetRevision() const { return m_revision; }
    const std::wstring& GetPathName() const { return m_strPathName; }
    void SetPathName(const std::wstring& path) { m_strPathName = path; }

    // If one fails, it leaves the drawing as it is and says why.
    bool OnOpenDocument(const std::wstring& path, std::wstring& reason);
    // Takes the shapes of an autosave as the unsaved state of another file.
    bool Recover(const std::wstring& autosave, const std::wstring& path, std::wstring& reason);
    bool OnSaveDocument(const std::wstring& path, std::wstring& reason) const;

private:
    void Do(const CEdit& edit);
    bool Join(const CEdit& edit);
    void Apply(const CEdit& edit);
    void TakeBack(const CEdit& edit);
    void TakeContents(std::vector<CShape>&& shapes, const std::wstring& path);

    std::vector<CShape> m_shapes;
    std::wstring m_strPathName;
    std::deque<CEdit> m_edits; // those before m_done are done, the others undone
    std::size_t m_done = 0;
    long m_position = 0; // of the present state among all; the same again after undo
    long m_saved = 0;
    long m_revision = 0;
};

#endif
