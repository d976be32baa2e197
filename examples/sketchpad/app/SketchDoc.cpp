// SPDX-License-Identifier: MIT
#include "SketchDoc.h"

#include "DocFile.h"

#include <algorithm>

namespace {

constexpr std::size_t kMostEdits = 100;
constexpr long kNeverSaved = -1;

auto Place(std::vector<CShape>& shapes, std::size_t index)
{
    return shapes.begin() + static_cast<std::ptrdiff_t>(index);
}

void AddChange(CEdit& edit, std::size_t index, const CShape& before, const CShape& after)
{
    if (!IsSame(before, after))
        edit.changes.push_back({index, before, after});
}

bool IsOfSameShapes(const CEdit& edit, const CEdit& former)
{
    const auto same = [](const CChange& a, const CChange& b) { return a.index == b.index; };
    return edit.name == former.name &&
           std::equal(edit.changes.begin(), edit.changes.end(), former.changes.begin(),
                      former.changes.end(), same);
}

} // namespace

void CSketchDoc::DeleteContents()
{
    TakeContents({}, std::wstring());
}

void CSketchDoc::TakeContents(std::vector<CShape>&& shapes, const std::wstring& path)
{
    m_shapes = std::move(shapes);
    m_strPathName = path;
    m_edits.clear();
    m_done = 0;
    m_position = m_saved = 0;
    ++m_revision;
}

void CSketchDoc::AddShapes(TextId name, const std::vector<CShape>& shapes)
{
    CEdit edit = {name, {}};
    for (const CShape& shape : shapes)
        edit.changes.push_back({m_shapes.size() + edit.changes.size(), std::nullopt, shape});
    Do(edit);
}

void CSketchDoc::RemoveShapes(TextId name, const CIndices& indices)
{
    CEdit edit = {name, {}};
    for (std::size_t index : indices)
        edit.changes.push_back({index, m_shapes.at(index), std::nullopt});
    Do(edit);
}

void CSketchDoc::ChangeShapes(TextId name, const CIndices& indices,
                              const std::function<CShape(const CShape&)>& change)
{
    CEdit edit = {name, {}};
    for (std::size_t index : indices)
        AddChange(edit, index, m_shapes.at(index), change(m_shapes.at(index)));
    Do(edit);
}

// A hundred presses of an arrow key would leave nothing else to undo. A state that was saved stays
// one that undoing comes back to.
bool CSketchDoc::Join(const CEdit& edit)
{
    if (edit.name != IDS_UNDO_MOVE || m_done == 0 || m_done < m_edits.size() ||
        m_saved == m_position || !IsOfSameShapes(edit, m_edits.back()))
        return false;
    for (std::size_t i = 0; i < edit.changes.size(); ++i)
        m_edits.back().changes[i].after = edit.changes[i].after;
    Apply(edit);
    return true;
}

// What was undone before can no longer be redone. If the saved state was among that, no number of
// undos leads back to it.
void CSketchDoc::Do(const CEdit& edit)
{
    if (edit.changes.empty() || Join(edit))
        return;
    if (m_saved > m_position)
        m_saved = kNeverSaved;
    m_edits.erase(m_edits.begin() + static_cast<std::ptrdiff_t>(m_done), m_edits.end());
    m_edits.push_back(edit);
    if (m_edits.size() > kMostEdits)
        m_edits.pop_front();
    m_done = m_edits.size();
    ++m_position;
    Apply(edit);
}

bool CSketchDoc::Undo()
{
    if (m_done == 0)
        return false;
    --m_done;
    --m_position;
    TakeBack(m_edits[m_done]);
    return true;
}

bool CSketchDoc::Redo()
{
    if (m_done == m_edits.size())
        return false;
    Apply(m_edits[m_done]);
    ++m_done;
    ++m_position;
    return true;
}

// From the last change to the first where shapes go, so that the other indices still hold.
void CSketchDoc::Apply(const CEdit& edit)
{
    for (const CChange& change : edit.changes) {
        if (change.before && change.after)
            m_shapes[change.index] = *change.after;
        else if (change.after)
            m_shapes.insert(Place(m_shapes, change.index), *change.after);
    }
    for (auto change = edit.changes.rbegin(); change != edit.changes.rend(); ++change) {
        if (!change->after)
            m_shapes.erase(Place(m_shapes, change->index));
    }
    ++m_revision;
}

void CSketchDoc::TakeBack(const CEdit& edit)
{
    CEdit reverse = edit;
    for (CChange& change : reverse.changes)
        std::swap(change.before, change.after);
    Apply(reverse);
}

std::optional<TextId> CSketchDoc::GetUndoName() const
{
    return m_done == 0 ? std::nullopt : std::optional(m_edits[m_done - 1].name);
}

std::optional<TextId> CSketchDoc::GetRedoName() const
{
    return m_done == m_edits.size() ? std::nullopt : std::optional(m_edits[m_done].name);
}

bool CSketchDoc::OnOpenDocument(const std::wstring& path, std::wstring& reason)
{
    std::vector<CShape> shapes;
    if (!ReadSketch(path, shapes, reason))
        return false;
    TakeContents(std::move(shapes), path);
    return true;
}

bool CSketchDoc::Recover(const std::wstring& autosave, const std::wstring& path,
                         std::wstring& reason)
{
    if (!OnOpenDocument(autosave, reason))
        return false;
    m_strPathName = path;
    m_saved = kNeverSaved;
    return true;
}

bool CSketchDoc::OnSaveDocument(const std::wstring& path, std::wstring& reason) const
{
    return WriteSketch(path, m_shapes, CFileMode::Usual, reason);
}
