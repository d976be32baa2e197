// SPDX-License-Identifier: MIT
//
// Names whose separator is not the slash: a slash is then a character as any other.
#include "pathname/HandMadePath.h"

namespace {

struct EditRow
{
    path_category category;
    const wchar_t* work;
    int result;
    const wchar_t* after;
};

void expectEdits(int (CRbUiPathname::*edit)(), std::initializer_list<EditRow> rows)
{
    for (const EditRow& row : rows) {
        SCOPED_TRACE(testing::Message() << "category " << row.category << ": " << row.work);
        const CRbUiNTFSVolumeDescriptor share(L"!!s!d");
        HandMadePath name(row.category, row.work);
        name.m_separator = L'!';
        name.m_pVolume = row.category == PC_UNC ? &share : nullptr;
        EXPECT_EQ((name.*edit)(), row.result);
        EXPECT_EQ(workOf(name), row.after);
    }
}

} // namespace

TEST(Separator, IsTakenOffByTrimSlash)
{
    expectEdits(&CRbUiPathname::TrimSlash, {
                                               {PC_RELATIVE, L"a!", 0, L"a"},
                                               {PC_RELATIVE, L"a/", 0, L"a/"},
                                               {PC_ROOTED, L"!a/!", 0, L"!a/"},
                                               {PC_ROOTED, L"!", 3, L"!"},
                                               {PC_DRIVE, L"C:!", 3, L"C:!"},
                                               {PC_DRIVE, L"C:/", 0, L"C:/"},
                                               {PC_UNC, L"!!s!d!", 3, L"!!s!d!"},
                                           });
}

TEST(Separator, IsWhereTrimCuts)
{
    expectEdits(&CRbUiPathname::Trim, {
                                          {PC_RELATIVE, L"a!b/c", 0, L"a!"},
                                          {PC_RELATIVE, L"a!b/", 0, L"a!"},
                                          {PC_RELATIVE, L"a/b!", 0, L"a/b!"},
                                          {PC_RELATIVE, L"a/b", 3, L"a/b"},
                                          {PC_ROOTED, L"!a/b", 0, L"!"},
                                          {PC_ROOTED, L"/a/b", 4, L"/a/b"},
                                          {PC_DRIVE, L"C:!a!b/c", 0, L"C:!a!"},
                                          {PC_DRIVE, L"C:a/b", 0, L"C:!"},
                                          {PC_UNC, L"!!s!d!x/y", 0, L"!!s!d!"},
                                          {PC_UNC, L"!!s!d/x", 3, L"!!s!d/x"},
                                      });
}

TEST(Separator, IsCutOffByTrimComponent)
{
    expectEdits(&CRbUiPathname::TrimComponent, {
                                                   {PC_RELATIVE, L"a!b/c", 0, L"a"},
                                                   {PC_RELATIVE, L"a!b!", 0, L"a!b"},
                                                   {PC_RELATIVE, L"a/b", 3, L"a/b"},
                                                   {PC_ROOTED, L"!a/b", 0, L"!"},
                                                   {PC_ROOTED, L"/a/b", 4, L"/a/b"},
                                                   {PC_DRIVE, L"C:!a!b/c", 0, L"C:!a"},
                                                   {PC_DRIVE, L"C:!a", 0, L"C:!"},
                                                   {PC_DRIVE, L"C:a/b", 0, L"C:!"},
                                                   {PC_UNC, L"!!s!d!x/y", 0, L"!!s!d"},
                                               });
}

TEST(Separator, IsPutBeforeAComponent)
{
    for (const auto& [work, after] : {std::make_pair(L"a", L"a!x"), std::make_pair(L"a!", L"a!x"),
                                      std::make_pair(L"a/", L"a/!x"), std::make_pair(L"", L"!x")}) {
        HandMadePath name(PC_RELATIVE, work);
        name.m_separator = L'!';
        EXPECT_EQ(name.AppendComponent(L"x"), 0);
        EXPECT_EQ(workOf(name), after);
    }
}

TEST(Separator, BeginsTheComponentWhoseSpacesGo)
{
    for (const auto& [work, after] :
         {std::make_pair(L"a ! b / c .txt", L"a !b / c.txt"),
          std::make_pair(L" a/ b.txt", L"a/ b.txt"), std::make_pair(L" a.b! c ", L" a.b!c"),
          std::make_pair(L"C: a/b", L"C:a/b")}) {
        SCOPED_TRACE(work);
        HandMadePath name(PC_RELATIVE, work);
        name.m_separator = L'!';
        name.RemoveSpaces();
        EXPECT_EQ(workOf(name), after);
    }
}

TEST(Separator, AtTheEndDoesNotCountInAMatch)
{
    HandMadePath open(PC_ROOTED, L"!a");
    HandMadePath closed(PC_ROOTED, L"!a!");
    open.m_separator = closed.m_separator = L'!';
    EXPECT_TRUE(open.PathMatch(L"!A!"));
    EXPECT_TRUE(closed.PathMatch(L"!A"));
    EXPECT_TRUE(open.PathMatch(&closed));
    EXPECT_FALSE(open.PathMatch(L"!a/"));
    EXPECT_FALSE(closed.PathMatch(L"!a/"));
}

TEST(Separator, JoinsAPrefixThatDoesNotEndWithIt)
{
    for (const auto& [prefix, full] :
         {std::make_pair(L"p", L"p!f"), std::make_pair(L"p!", L"p!f"),
          std::make_pair(L"p/", L"p/!f"), std::make_pair(L"", L"!f")}) {
        SCOPED_TRACE(prefix);
        HandMadePath name(PC_RELATIVE, L"f");
        name.setPrefix(prefix);
        name.m_separator = L'!';
        CStdStr<wchar_t> out;
        EXPECT_TRUE(name.GetFullPath(out));
        EXPECT_EQ(std::wstring(out), full);
    }
}

TEST(Separator, TellsWhatAPrefixIsAsAParent)
{
    for (const auto& [prefix, category] :
         {std::make_pair(L"!home!", PC_ROOTED), std::make_pair(L"!!s!d!", PC_UNC),
          std::make_pair(L"/home/", PC_RELATIVE), std::make_pair(L"!/home/", PC_ROOTED),
          std::make_pair(L"c:!home", PC_DRIVE)}) {
        SCOPED_TRACE(prefix);
        HandMadePath name(PC_RELATIVE, L"a/b");
        name.setPrefix(prefix);
        name.m_separator = L'!';
        CRbUiPathname parent;
        name.GetParent(parent);
        EXPECT_EQ(parent.m_category, category);
        EXPECT_EQ(parent.m_type, PT_DIRECTORY);
    }
}

TEST(Separator, BeginsTheComponentWhoseExtensionCounts)
{
    HandMadePath inFolder(PC_RELATIVE, L"d.x!a");
    HandMadePath inName(PC_RELATIVE, L"d!a.x/b");
    inFolder.m_separator = inName.m_separator = L'!';
    CStdStr<wchar_t> out(L"untouched");
    inFolder.GetExtension(out);
    EXPECT_EQ(std::wstring(out), L"untouched");
    inName.GetExtension(out);
    EXPECT_EQ(std::wstring(out), L"x/b");
    inName.GetFilename(out);
    EXPECT_EQ(std::wstring(out), L"a");
}
