// SPDX-License-Identifier: MIT
#include "Defaults.h"

#include "FileNames.h"
#include "Narrow.h"
#include "Texts.h"

#include <KtQtBase/WindowsFunctions.h>

#include <algorithm>
#include <cwchar>
#include <fstream>

namespace {

constexpr wchar_t kSection[] = L"Sketchpad";

// The number of a key. GetPrivateProfileInt would give 0 for a missing key, and not its default.
int ProfileNumber(const wchar_t* key, int fallback, int lowest, int highest, const wchar_t* file)
{
    wchar_t text[32] = {};
    GetPrivateProfileString(kSection, key, L"", text, 32, file);
    wchar_t* end = text;
    const long number = std::wcstol(text, &end, 0);
    if (end == text)
        return fallback;
    return static_cast<int>(std::clamp<long>(number, lowest, highest));
}

// The profile functions open a file for reading and writing; if that fails, it counts as absent.
bool IsRead(const std::wstring& path)
{
    return std::fstream(Narrow(path).value_or(std::string()), std::ios::in | std::ios::out)
        .is_open();
}

} // namespace

CDefaults ReadDefaults(std::wstring& reason)
{
    const std::wstring path = BesideExecutable(L"sketchpad.ini");
    const wchar_t* file = path.c_str();
    CDefaults defaults;
    if (IsFolder(path))
        reason = Text(IDS_DEFAULTSFOLDER, path);
    else if (!IsRead(path))
        reason = Text(IDS_NODEFAULTS, path);
    defaults.pen.width = ProfileNumber(L"PenWidth", defaults.pen.width, 0, 20, file);
    defaults.pen.color = static_cast<COLORREF>(
        ProfileNumber(L"PenColor", static_cast<int>(defaults.pen.color), 0, 0xFFFFFF, file));
    defaults.paper.cx = ProfileNumber(L"PaperWidth", defaults.paper.cx, 100, 2000, file);
    defaults.paper.cy = ProfileNumber(L"PaperHeight", defaults.paper.cy, 100, 2000, file);
    defaults.grid = ProfileNumber(L"Grid", defaults.grid, 0, 200, file);
    defaults.autosave = ProfileNumber(L"Autosave", defaults.autosave, 1, 3600, file);
    return defaults;
}
