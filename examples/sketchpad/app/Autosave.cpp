// SPDX-License-Identifier: MIT
#include "Autosave.h"

#include "DocFile.h"
#include "FileNames.h"
#include "Narrow.h"
#include "Shell.h"

#include <algorithm>
#include <filesystem>
#include <functional>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kRoomForMore = 220; // bytes
constexpr int kMostPrograms = 9;          // with the same drawing at a time

void RemoveFile(const std::wstring& path)
{
    std::error_code ignored;
    fs::remove(Narrow(path).value_or(std::string()), ignored);
}

bool IsOlder(const std::wstring& name, const std::wstring& other)
{
    const auto time = TimeOf(name);
    const auto otherTime = TimeOf(other);
    return time && otherTime && *time < *otherTime;
}

// With what an autosave and its lock have in their names behind the drawing's, the longest names are
// too long.
bool IsLong(const std::wstring& path)
{
    const auto name = Narrow(FileNameOf(path));
    return name && name->size() > kRoomForMore;
}

bool AreSame(const std::vector<CShape>& a, const std::vector<CShape>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), IsSame);
}

} // namespace

// Beside the drawing; of one without a name, or with one that has no room for more, in the program's
// own folder.
std::wstring CAutosave::NameFor(const std::wstring& path, int number) const
{
    const std::wstring end = (number == 1 ? L"" : L'-' + std::to_wstring(number)) + L".autosave";
    if (path.empty())
        return m_shell.GetDataFolder() + L"untitled" + end;
    if (IsLong(path))
        return m_shell.GetDataFolder() + std::to_wstring(std::hash<std::wstring>()(path)) + end;
    return FolderOf(path) + L'.' + FileNameOf(path) + end;
}

// What another program has left behind is never written over.
bool CAutosave::Claim(const std::wstring& path)
{
    for (int number = 1; number <= kMostPrograms; ++number) {
        const std::wstring name = NameFor(path, number);
        if (!TimeOf(name) && m_shell.HoldName(name)) {
            m_path = name;
            return true;
        }
    }
    return false;
}

void CAutosave::Write(const std::wstring& path, const std::vector<CShape>& shapes, bool changed)
{
    if (!changed)
        Remove();
    if (!changed || (!m_path.empty() && AreSame(shapes, m_shapes)))
        return;
    std::wstring ignored;
    if (m_path.empty() && !Claim(path))
        return;
    if (WriteSketch(m_path, shapes, CFileMode::Private, ignored))
        m_shapes = shapes;
}

std::wstring CAutosave::Take(const std::wstring& path)
{
    for (int number = 1; number <= kMostPrograms; ++number) {
        std::wstring name = NameFor(path, number);
        if (!TimeOf(name) || !m_shell.HoldName(name))
            continue;
        m_path = name;
        if (path.empty() || !IsOlder(name, path))
            return name;
        Remove();
    }
    return std::wstring();
}

void CAutosave::Remove()
{
    if (!m_path.empty())
        RemoveFile(m_path);
    Leave();
}

void CAutosave::Leave()
{
    m_path.clear();
    m_shapes.clear();
    m_shell.HoldName(std::wstring());
}
