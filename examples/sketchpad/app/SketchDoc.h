// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SKETCHDOC_H
#define SKETCHPAD_SKETCHDOC_H

#include "Shape.h"

#include <functional>

// The drawing that the program works on, and the file that it came from.
class CSketchDoc
{
public:
    void DeleteContents();
    void AddShape(const CShape& shape);
    bool RemoveLast();
    // Result: how many shapes were removed.
    int RemoveIf(const std::function<bool(const CShape&)>& wanted);
    void ReplaceLast(const CShape& shape);
    const std::vector<CShape>& GetShapes() const { return m_shapes; }

    bool IsModified() const { return m_bModified; }
    void SetModifiedFlag(bool modified = true) { m_bModified = modified; }
    const std::wstring& GetPathName() const { return m_strPathName; }
    void SetPathName(const std::wstring& path) { m_strPathName = path; }

    // If one fails, it leaves the drawing as it is and says why.
    bool OnOpenDocument(const std::wstring& path, std::wstring& reason);
    bool OnSaveDocument(const std::wstring& path, std::wstring& reason);

private:
    std::vector<CShape> m_shapes;
    std::wstring m_strPathName;
    bool m_bModified = false;
};

#endif
