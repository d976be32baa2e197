// SPDX-License-Identifier: MIT
#include "Autosave.h"

#include "FileNames.h"
#include "Narrow.h"
#include "Shell.h"
#include "SketchDoc.h"

#include <filesystem>

namespace fs = std::filesystem;

std::wstring CAutosave::NameFor(const std::wstring& path) const
{
    if (path.empty())
        return m_shell.GetDataFolder() + L"untitled.autosave";
    return FolderOf(path) + L'.' + FileNameOf(path) + L".autosave";
}

void CAutosave::Write(const CSketchDoc& document)
{
    const std::wstring path = NameFor(document.GetPathName());
    std::wstring ignored;
    if (!document.IsModified() || (path == m_path && document.GetRevision() == m_revision))
        return;
    if (path != m_path)
        Remove();
    if (!m_shell.HoldName(path))
        return;
    if (document.OnSaveDocument(path, ignored)) {
        m_path = path;
        m_revision = document.GetRevision();
    }
}

bool CAutosave::Take(const std::wstring& path)
{
    const std::wstring name = NameFor(path);
    std::error_code ignored;
    const auto bytes = Narrow(name);
    if (!bytes || !fs::exists(*bytes, ignored) || !m_shell.HoldName(name))
        return false;
    m_path = name;
    return true;
}

void CAutosave::Remove()
{
    std::error_code ignored;
    if (!m_path.empty())
        fs::remove(Narrow(m_path).value_or(std::string()), ignored);
    m_path.clear();
    m_shell.HoldName(std::wstring());
}
