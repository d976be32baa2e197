// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"

#include <climits>

namespace {

struct DisplayRow
{
    path_category category;
    const wchar_t* work;
    int width;
    const wchar_t* shown;
    const wchar_t* volume = nullptr;
};

void expectShown(std::initializer_list<DisplayRow> rows)
{
    for (const DisplayRow& row : rows) {
        SCOPED_TRACE(testing::Message() << row.work << ", " << row.width);
        CRbUiNTFSVolumeDescriptor volume(CStdStr<wchar_t>(row.volume ? row.volume : L""));
        HandMadePath name(row.category, row.work);
        name.m_pVolume = row.volume ? &volume : nullptr;
        CStdStr<wchar_t> out(L"poison");
        name.GetDisplayName(out, row.width);
        EXPECT_EQ(std::wstring(out), row.shown);
        EXPECT_EQ(workOf(name), row.work);
    }
}

} // namespace

TEST(GetDisplayName, GivesTheWholeNameWhereItFits)
{
    expectShown({
        {PC_ROOTED, L"/20/characters/long/", 20, L"/20/characters/long/"},
        {PC_ROOTED, L"/20/characters/long/", -1, L"/20/characters/long/"},
        {PC_ROOTED, L"/20/characters/long/", INT_MAX, L"/20/characters/long/"},
        {PC_ROOTED, L"/twelve/long", 0, L"/twelve/long"},
        {PC_ROOTED, L"/twelve/long", -2, L"/twelve/long"},
        {PC_ROOTED, L"/twelve/long", INT_MIN, L"/twelve/long"},
        {kUnknownCategory, L"a/b", 12, L"a/b"},
        {PC_RELATIVE, L"", 12, L""},
    });
}

TEST(GetDisplayName, CountsAWidthBelowTwelveAsTwelve)
{
    for (int width : {5, 0, -2, 11, 12}) {
        expectShown({
            {PC_RELATIVE, L"aa/bb/cc/dd/file", width, L".../dd/file"},
            {PC_ROOTED, L"/thirteen/abc", width, L".../abc"},
        });
    }
}

TEST(GetDisplayName, ShortensALongBase)
{
    expectShown({
        {PC_ROOTED, L"/d/abcdefghijklmnopqrstuvwxyz.txt", 12, L"abcdefg~.txt"},
        {PC_RELATIVE, L"abcdefghijklmnopqrst.0123456789", 12, L"abcdefghij~"},
        {PC_RELATIVE, L"abcdefghijklmnopqrst.012345678", 12, L"a~.012345678"},
        {PC_RELATIVE, L"abcdefghijklmnopqrstuvwxyz", 12, L"abcdefghij~"},
        {PC_RELATIVE, L"abcdefghijklmnopqrstuvwxyz.", 12, L"abcdefghij~"},
        {PC_RELATIVE, L"abcdefghijklmnopqrstuvwxyz.txt", 20, L"abcdefghijklmno~.txt"},
        {PC_DRIVE, L"C:/d/abcdefghijklm", 12, L"abcdefghij~", L"C:"},
        {kUnknownCategory, L"abcdefghijklm", 12, L"abcdefghij~"},
        {PC_RELATIVE, L".abcdefghijklm", 13, L".abcdefghij~"},
    });
}

TEST(GetDisplayName, KeepsTheLargestRunOfWholeComponents)
{
    expectShown({
        {PC_RELATIVE, L"aa/bb/cc/dd/file", 13, L".../dd/file"},
        {PC_RELATIVE, L"aa/bb/cc/dd/file", 14, L".../dd/file"},
        {PC_RELATIVE, L"aa/bb/cc/dd/file", 15, L".../cc/dd/file"},
        {PC_ROOTED, L"/aaa/bb/cc/dd/file", 15, L".../cc/dd/file"},
        {PC_ROOTED, L"/a/12345678", 12, L"/a/12345678"},
        {PC_ROOTED, L"/ab/12345678x", 12, L"12345678x"},
        {PC_ROOTED, L"/abc/1234567", 12, L"/abc/1234567"},
        {PC_ROOTED, L"/abcd/1234567", 12, L".../1234567"},
        {PC_ROOTED, L"/abc/12345678", 12, L"..."},
        {PC_RELATIVE, L"abcd/12345678", 12, L"..."},
        {PC_RELATIVE, L"abcd/123456789", 12, L"123456789"},
        {PC_RELATIVE, L"abcd/123456789", 13, L"..."},
        {PC_ROOTED, L"/abc/123456789abc", 12, L"123456789abc"},
        {PC_ROOTED, L"/aaaa/bbbb/cccc/", 12, L".../cccc/"},
        {PC_ROOTED, L"/aaaaaaaa/bbbbbbbb/", 12, L".../"},
        {PC_ROOTED, L"/aaaaaaaa//b", 12, L"/aaaaaaaa//b"},
        {PC_ROOTED, L"/aaaaaaaaaa//b", 12, L"...//b"},
    });
}

TEST(GetDisplayName, KeepsTheVolumeWithABackslash)
{
    expectShown({
        {PC_DRIVE, L"C:/aa/bb/cc/dd/file", 14, L"C:\\.../dd/file", L"C:"},
        {PC_DRIVE, L"C:/aa/bb/cc/dd/file", 13, L"C:\\.../file", L"C:"},
        {PC_DRIVE, L"C:/aa/bb/cc/dd/file", 12, L"C:\\.../file", L"C:"},
        {PC_DRIVE, L"C:/aaaaaa/12345", 12, L"C:\\.../12345", L"C:"},
        {PC_DRIVE, L"C:/aaaaaa/123456", 12, L"123456", L"C:"},
        {PC_DRIVE, L"C:/aaaaaa/123456", 12, L"\\.../123456"},
        {PC_DRIVE, L"C:/aaaaaa/12345678", 12, L"12345678"},
        {PC_UNC, L"//s/d/aa/bb/cc/file", 15, L"//s/d\\.../file", L"//s/d"},
        {PC_UNC, L"//s/d/aa/bb/cc/file", 17, L"//s/d\\.../cc/file", L"//s/d"},
        {PC_UNC, L"//s/d/aa/bb/cc/file", 13, L"file", L"//s/d"},
    });
}

TEST(GetDisplayName, AsksTheVolumesOwnClassForTheName)
{
    const RenamedVolume volume(L"C:", L"C:/aa");
    HandMadePath name(PC_DRIVE, L"C:/aa/bb/cc/dd/file");
    name.m_pVolume = &volume;
    CStdStr<wchar_t> out;
    name.GetDisplayName(out, 18);
    EXPECT_EQ(std::wstring(out), L"C:/aa\\.../dd/file");
    name.GetDisplayName(out, 13);
    EXPECT_EQ(std::wstring(out), L"file");
}

TEST(GetDisplayName, StopsAtTheEndWhereNoSeparatorIsLeft)
{
    expectShown({
        {PC_RELATIVE, L"abcdefghijkl:mn", 12, L"..."},
        {PC_DRIVE, L"CDEFGHIJKL:file", 12, L"\\..."},
        {PC_DRIVE, L"CDEFGHIJKL:f", 12, L"CDEFGHIJKL:f", L"C:"},
        {PC_DRIVE, L"CDEFGHIJKLM:f", 12, L"CD\\...", L"C:"},
    });
}

TEST(GetDisplayName, GivesNothingForACategoryWithoutAName)
{
    expectShown({
        {kUnknownCategory, L"aa/bb/cc/dd/file", 12, L""},
        {static_cast<path_category>(4), L"aa/bb/cc/dd/file", 12, L"", L"C:"},
        {static_cast<path_category>(-1), L"aa/bb/cc/dd/file", 12, L""},
    });
}

TEST(GetDisplayName, GivesNothingWhereNothingIsParsed)
{
    for (path_type type : {PT_NONE, kTypeOfHost}) {
        CStdStr<wchar_t> out(L"poison");
        HandMadePath(PC_ROOTED, L"/tmp", type).GetDisplayName(out, -1);
        EXPECT_TRUE(out.empty());
    }
    CStdStr<wchar_t> out(L"poison");
    CRbUiPathname().GetDisplayName(out, 40);
    EXPECT_TRUE(out.empty());
}

TEST(GetDisplayName, WalksOverTheSeparatorOfTheName)
{
    HandMadePath name(PC_RELATIVE, L"aa|bb|cc|dd|file");
    name.m_separator = L'|';
    CStdStr<wchar_t> out;
    name.GetDisplayName(out, 12);
    EXPECT_EQ(std::wstring(out), L"...|dd|file");
}
