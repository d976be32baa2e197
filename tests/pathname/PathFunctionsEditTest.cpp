// SPDX-License-Identifier: MIT
//
// The free functions of which edits are made.
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

#include <stdexcept>

namespace {

struct TextRow
{
    const wchar_t* before;
    const wchar_t* after;
};

struct RelPathRow
{
    const wchar_t* text;
    path_category category;
    const wchar_t* after;
};

} // namespace

TEST(ParseRelPath, Reclassifies)
{
    const Utf8Scope utf8;
    for (const RelPathRow& row : std::initializer_list<RelPathRow>{
             {L"/a", PC_ROOTED, L"/a"},
             {L"/", PC_ROOTED, L"/"},
             {L"//s", PC_UNC, L"//s"},
             {L"c:/x", PC_DRIVE, L"C:/x"},
             {L"c:", PC_DRIVE, L"C:"},
             {L"\u00e9:x", PC_DRIVE, L"\u00c9:x"},
             {L"1:x", kUnknownCategory, L"1:x"},
             {L"c", kUnknownCategory, L"c"},
             {L"a:b:c", PC_DRIVE, L"A:b:c"},
             {L"/a:b", PC_ROOTED, L"/a:b"},
             {L"\\a", kUnknownCategory, L"\\a"},
         }) {
        SCOPED_TRACE(row.text);
        CStdStr<wchar_t> text(row.text);
        CStdStr<wchar_t>* pointer = &text;
        path_category category = kUnknownCategory;
        ParseRelPath(&pointer, L'/', category);
        EXPECT_EQ(category, row.category);
        EXPECT_EQ(std::wstring(text), row.after);
    }
}

TEST(ParseRelPath, RaisesOutOfRangeForAnEmptyText)
{
    CStdStr<wchar_t> text;
    CStdStr<wchar_t>* pointer = &text;
    path_category category = kUnknownCategory;
    EXPECT_THROW(ParseRelPath(&pointer, L'/', category), std::out_of_range);
    EXPECT_EQ(category, kUnknownCategory);
}

TEST(ParseRelPath, GoesByTheSeparatorItIsGiven)
{
    CStdStr<wchar_t> text(L"\\\\s");
    CStdStr<wchar_t>* pointer = &text;
    path_category category = PC_RELATIVE;
    ParseRelPath(&pointer, L'\\', category);
    EXPECT_EQ(category, PC_UNC);
}

TEST(GetPathStrNoExt, CutsBeforeTheLastDotOfTheLastComponent)
{
    for (const TextRow& row : std::initializer_list<TextRow>{
             {L"/d/a.tar.gz", L"/d/a.tar"},
             {L"/d.x/a", L"/d.x/a"},
             {L"a.b", L"a"},
             {L"a", L"a"},
             {L".", L""},
             {L"", L""},
             {L"/.", L"/"},
             {L"./", L"./"},
             {L"a.b\\c", L"a"},
         }) {
        SCOPED_TRACE(row.before);
        CStdStr<wchar_t> text(row.before);
        CStdStr<wchar_t>* pointer = &text;
        GetPathStrNoExt(&pointer, L'/');
        EXPECT_EQ(std::wstring(text), row.after);
    }
}

TEST(UpperPathFirstChar, TouchesALeadingDriveOnly)
{
    const Utf8Scope utf8;
    for (const TextRow& row : std::initializer_list<TextRow>{
             {L"c:/x", L"C:/x"},
             {L"c:", L"C:"},
             {L"C:", L"C:"},
             {L"\u00e9:/x", L"\u00c9:/x"},
             {L"\u0436:", L"\u0416:"},
             {L"1:/x", L"1:/x"},
             {L"c", L"c"},
             {L"", L""},
             {L"c/x:", L"c/x:"},
             {L":c", L":c"},
             {L"/c:", L"/c:"},
         }) {
        SCOPED_TRACE(row.before);
        CStdStr<wchar_t> text(row.before);
        upperPathFirstChar(text);
        EXPECT_EQ(std::wstring(text), row.after);
    }
}
