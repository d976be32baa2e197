// SPDX-License-Identifier: MIT
#include "FileNames.h"

#include "Narrow.h"
#include "Texts.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLongestSegment = 255;
constexpr int kMenuWidth = 36;

// Drawings are also used on Windows machines, so their names must be valid on NTFS.
bool IsValidSegment(const std::wstring& segment)
{
    CRbUiNTFSVolumeDescriptor rules(CStdStr<wchar_t>(L"C:"));
    rules.m_maxComponentLen = kLongestSegment;
    const CStdStr<wchar_t> text(segment);
    return rules.ValidateSegment(&text, false);
}

} // namespace

std::wstring AbsoluteName(const std::wstring& name)
{
    const auto bytes = Narrow(name);
    if (!bytes || bytes->empty())
        return name;
    std::error_code error;
    const fs::path path = fs::absolute(*bytes, error).lexically_normal();
    return error ? name : WidenForDisplay(path.string());
}

std::optional<long long> TimeOf(const std::wstring& path)
{
    std::error_code error;
    const auto bytes = Narrow(path);
    const auto time = fs::last_write_time(bytes.value_or(std::string()), error);
    if (error)
        return std::nullopt;
    return static_cast<long long>(time.time_since_epoch().count());
}

bool IsFolder(const std::wstring& path)
{
    const auto bytes = Narrow(path);
    std::error_code ignored;
    return bytes && fs::is_directory(*bytes, ignored);
}

std::wstring FolderOf(const std::wstring& path)
{
    return path.substr(0, path.rfind(L'/') + 1);
}

std::wstring FileNameOf(const std::wstring& path)
{
    return path.substr(FolderOf(path).size());
}

std::wstring FullPath(const CRnUiPathname& name)
{
    CStdStr<wchar_t> path;
    name.GetFullPath(path);
    return path;
}

std::wstring BesideExecutable(const wchar_t* name)
{
    CRnUiPathname path;
    return path.Parse(name, false) == 0 ? FullPath(path) : std::wstring();
}

bool TakeSaveName(const std::wstring& typed, const wchar_t* extension, CRnUiPathname& name,
                  bool& added, std::wstring& reason)
{
    const std::wstring segment = FileNameOf(typed);
    if (segment.size() > kLongestSegment) {
        reason = Text(IDS_UNUSABLENAME);
        return false;
    }
    if (segment.empty() || !IsValidSegment(segment)) {
        reason = Text(IDS_NAMERULES);
        return false;
    }
    if (name.Parse(typed.c_str(), false) != 0) {
        reason = Text(IDS_UNUSABLENAME);
        return false;
    }
    added = !name.VerifyExtension(extension);
    name.AddExtensionIfNoMatch(extension);
    return true;
}

std::wstring UniqueName(const std::wstring& path)
{
    CRnUiPathname name;
    CRnUiPathname free;
    if (name.Parse(path.c_str(), false) != 0 || !name.GetUniqueName(free, false))
        return std::wstring();
    return FullPath(free);
}

std::wstring DisplayName(const std::wstring& path, int width)
{
    CRnUiPathname name;
    CStdStr<wchar_t> text;
    if (name.Parse(path.c_str(), false) == 0)
        name.GetDisplayName(text, width);
    return text;
}

std::wstring MenuName(const std::wstring& path)
{
    std::wstring name = DisplayName(path, kMenuWidth);
    for (std::size_t at = name.find(L'&'); at != name.npos; at = name.find(L'&', at + 2))
        name.insert(at, 1, L'&');
    return name;
}
