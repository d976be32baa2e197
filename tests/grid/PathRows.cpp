// SPDX-License-Identifier: MIT
//
// Path objects.
#include "grid/Grid.h"

#include "pathname/HandMadePath.h"
#include "support/SlowPathName.h"

#include <limits>

namespace ktqtbase::test {

namespace {

// ---- Full paths --------------------------------------------------------------------------------

const std::wstring kWork = L"d\u0131r \u00e9/I\U0001F600.txt";
const std::wstring kPrefix = L"/home/\u00fc";
const std::wstring kFullPath = kPrefix + L"/" + kWork;

bool fullPath(wchar_t* out, std::size_t)
{
    HandMadePath path(PC_RELATIVE, kWork);
    path.setPrefix(kPrefix);
    return path.GetFullPath(out);
}

Promise<wchar_t> fullPathPromise(const Cell& cell)
{
    return {!cell.isNull(), cell.isNull() ? L"" : kFullPath + L'\0', cell.size};
}

bool unparsedFullPath(wchar_t* out, std::size_t)
{
    return CRbUiPathname().GetFullPath(out);
}

Promise<wchar_t> unparsedPromise(const Cell& cell)
{
    return {0, std::wstring(cell.isNull() ? 0 : 1, L'\0'), cell.size};
}

// ---- A display form ----------------------------------------------------------------------------

const std::wstring kLongName = L"/aaaa/bb/\u00e9\u0131\u0130/dd/file.txt";

void displayAt(int width)
{
    const HandMadePath path(PC_ROOTED, kLongName);
    slow::Name name;
    name.category = slow::Rooted;
    name.work = kLongName;
    CStdStr<wchar_t> out = L"former";
    path.GetDisplayName(out, width);
    EXPECT_EQ(out, slow::displayName(name, width)) << "width " << width;
}

// A size and its negative, since a width may be below zero.
void displayAround(const Cell& cell)
{
    displayAt(static_cast<int>(cell.size));
    displayAt(-static_cast<int>(cell.size));
}

// ---- Copies of so many characters --------------------------------------------------------------

// Characters with a terminator among them, and none at the end.
std::wstring charactersFor(std::size_t count)
{
    std::wstring text(count, L'\u00e9');
    if (count > 2)
        text[1] = L'\0';
    return text;
}

void copyCharacters(const Cell& cell)
{
    const std::wstring text = charactersFor(cell.size);
    const Input<wchar_t> source(cell, text);
    const Output<wchar_t> copy(cell, cell.size + 1);
    CRbUiPathname().lstrncpy_x(copy.data(), source.data(), static_cast<int>(cell.size));
    copy.expect(text + L'\0');
}

// Nothing is copied for a negative number, not even from null or into it.
void copyFewerThanNone(const Cell& cell)
{
    const auto count = -1 - static_cast<int>(cell.size);
    const Output<wchar_t> copy(cell, 1);
    CRbUiPathname().lstrncpy_x(copy.data(), nullptr, count);
    copy.expect(L"");
}

} // namespace

std::vector<GridRow> pathRows()
{
    return {
        {"CRbUiPathname::GetFullPath", "", Locales::All, kEnoughRoom, always(kFullPath.size() + 1),
         0, writes<wchar_t>(fullPath, fullPathPromise)},
        {"CRbUiPathname::GetFullPath", "Unparsed", Locales::One, kEnoughRoom, always(1), 0,
         writes<wchar_t>(unparsedFullPath, unparsedPromise)},
        {"CRbUiPathname::GetDisplayName", "", Locales::All, kSizes, always(kLongName.size()),
         kGreatestInt, displayAround},
        // 2^31 - 1 characters would take 8 GB on either side.
        {"CRbUiPathname::lstrncpy_x", "", Locales::One, kTrueSizes, always(10), 0, copyCharacters},
        {"CRbUiPathname::lstrncpy_x", "Negative", Locales::One, kAllColumns, always(10),
         kGreatestInt, copyFewerThanNone}};
}

} // namespace ktqtbase::test
