// SPDX-License-Identifier: MIT
#include "SketchDoc.h"

#include "DocFile.h"

#include <algorithm>

void CSketchDoc::DeleteContents()
{
    m_shapes.clear();
    m_strPathName.clear();
    m_bModified = false;
}

void CSketchDoc::AddShape(const CShape& shape)
{
    m_shapes.push_back(shape);
    SetModifiedFlag();
}

bool CSketchDoc::RemoveLast()
{
    if (m_shapes.empty())
        return false;
    m_shapes.pop_back();
    SetModifiedFlag();
    return true;
}

int CSketchDoc::RemoveIf(const std::function<bool(const CShape&)>& wanted)
{
    const auto kept = std::remove_if(m_shapes.begin(), m_shapes.end(), wanted);
    const auto removed = static_cast<int>(m_shapes.end() - kept);
    m_shapes.erase(kept, m_shapes.end());
    if (removed > 0)
        SetModifiedFlag();
    return removed;
}

void CSketchDoc::ReplaceLast(const CShape& shape)
{
    if (m_shapes.empty())
        return;
    m_shapes.back() = shape;
    SetModifiedFlag();
}

bool CSketchDoc::OnOpenDocument(const std::wstring& path, std::wstring& reason)
{
    std::vector<CShape> shapes;
    if (!ReadSketch(path, shapes, reason))
        return false;
    m_shapes = std::move(shapes);
    m_strPathName = path;
    m_bModified = false;
    return true;
}

bool CSketchDoc::OnSaveDocument(const std::wstring& path, std::wstring& reason)
{
    return WriteSketch(path, m_shapes, reason);
}
