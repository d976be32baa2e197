// SPDX-License-Identifier: MIT
#include "Settings.h"

#include <KtQtBase/RegistryKey.h>

#include <algorithm>
#include <cwchar>

namespace {

// A CRegKey keeps the pointer to its path, not a copy, so these live as long as the program.
constexpr wchar_t kWindowKey[] = L"Software\\Sketchpad\\Window";
constexpr wchar_t kRecentKey[] = L"Software\\Sketchpad\\Recent";
constexpr std::size_t kMostRecent = 4;

// The buffer is filled with zeros, since QueryValue writes no terminator. Each try has an object of
// its own, since after a text that was too long an object reads from another place.
std::wstring ReadText(const wchar_t* path, const wchar_t* name)
{
    for (unsigned int room = 64; room <= 4096; room *= 4) {
        CRegKey key;
        key.Create(HKEY_CURRENT_USER, path);
        std::vector<wchar_t> text(room + 1);
        if (key.QueryValue(text.data(), name, &room) == ERROR_SUCCESS)
            return text.data();
    }
    return std::wstring();
}

std::optional<int> ReadNumber(const wchar_t* name)
{
    const std::wstring text = ReadText(kWindowKey, name);
    wchar_t* end = nullptr;
    const long number = std::wcstol(text.c_str(), &end, 10);
    if (text.empty() || *end)
        return std::nullopt;
    return static_cast<int>(std::clamp(number, -32768L, 32767L));
}

std::wstring RecentName(std::size_t index)
{
    return L"File" + std::to_wstring(index + 1);
}

std::vector<std::wstring> Without(const std::wstring& path, std::vector<std::wstring> files)
{
    files.erase(std::remove(files.begin(), files.end(), path), files.end());
    return files;
}

// A place in the list that no file has is empty.
void StoreRecentFiles(std::vector<std::wstring> files)
{
    files.resize(kMostRecent);
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, kRecentKey);
    for (std::size_t i = 0; i < kMostRecent; ++i)
        key.SetValue(files[i].c_str(), RecentName(i).c_str());
}

} // namespace

std::optional<CRect> ReadWindowPlace()
{
    const auto left = ReadNumber(L"Left");
    const auto top = ReadNumber(L"Top");
    const auto right = ReadNumber(L"Right");
    const auto bottom = ReadNumber(L"Bottom");
    if (!left || !top || !right || !bottom || *left >= *right || *top >= *bottom)
        return std::nullopt;
    return CRect(*left, *top, *right, *bottom);
}

void WriteWindowPlace(const CRect& place)
{
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, kWindowKey);
    key.SetValue(std::to_wstring(place.left).c_str(), L"Left");
    key.SetValue(std::to_wstring(place.top).c_str(), L"Top");
    key.SetValue(std::to_wstring(place.right).c_str(), L"Right");
    key.SetValue(std::to_wstring(place.bottom).c_str(), L"Bottom");
}

std::vector<std::wstring> ReadRecentFiles()
{
    std::vector<std::wstring> files;
    for (std::size_t i = 0; i < kMostRecent; ++i) {
        const std::wstring file = ReadText(kRecentKey, RecentName(i).c_str());
        if (!file.empty())
            files.push_back(file);
    }
    return files;
}

void AddRecentFile(const std::wstring& path)
{
    std::vector<std::wstring> files = Without(path, ReadRecentFiles());
    files.insert(files.begin(), path);
    StoreRecentFiles(files);
}

void RemoveRecentFile(const std::wstring& path)
{
    StoreRecentFiles(Without(path, ReadRecentFiles()));
}
