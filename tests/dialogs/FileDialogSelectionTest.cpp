// SPDX-License-Identifier: MIT
//
// What the file dialog makes of a selection, without showing it.
#include "support/RowName.h"

#include <KtQtBase/FileDialog.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <gtest/gtest.h>

namespace {

using ktqtbase::test::RowName;

void select(KtQtFileDialog& dialog, const QStringList& files)
{
    dialog.m_listSelectedFiles = files;
    dialog.m_nSelectedCount = static_cast<std::uintptr_t>(files.size());
}

POSITION position(std::uintptr_t value)
{
    return reinterpret_cast<POSITION>(value);
}

struct NameRow
{
    const char* name;
    const char* file;
    const wchar_t* path;
    const wchar_t* fileName;
    const wchar_t* extension;
};

class PraseFileInfo : public testing::TestWithParam<NameRow>
{};

TEST_P(PraseFileInfo, TakesTheFirstFileApart)
{
    KtQtFileDialog dialog(true);
    select(dialog, {QString::fromUtf8(GetParam().file), QStringLiteral("/tmp/second.dat")});
    dialog.PraseFileInfo();
    EXPECT_EQ(dialog.GetPathName(), GetParam().path);
    EXPECT_EQ(dialog.GetFileName(), GetParam().fileName);
    EXPECT_EQ(dialog.GetFileExt(), GetParam().extension);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PraseFileInfo,
    testing::Values(NameRow{"TwoDots", "/tmp/a.b.txt", L"/tmp/a.b.txt", L"a.b.txt", L"txt"},
                    NameRow{"NoExtension", "/tmp/noext", L"/tmp/noext", L"noext", L""},
                    NameRow{"DotAtTheEnd", "/tmp/end.", L"/tmp/end.", L"end.", L""},
                    NameRow{"DotAtTheStart", "/tmp/.hidden", L"/tmp/.hidden", L".hidden",
                            L"hidden"},
                    NameRow{"DotInTheFolder", "/tmp/d.x/file", L"/tmp/d.x/file", L"file", L""},
                    NameRow{"Folder", "/tmp/folder/", L"/tmp/folder/", L"", L""},
                    NameRow{"BeyondSixteenBits", "/\xF0\x9F\x98\x80/\xC3\xA4.\xE4\xB8\xAD",
                            L"/\U0001F600/\u00e4.\u4e2d", L"\u00e4.\u4e2d", L"\u4e2d"}),
    RowName());

TEST(PraseFileInfoOf, NoSelectionChangesNothing)
{
    KtQtFileDialog dialog(true);
    select(dialog, {QStringLiteral("/tmp/a.txt")});
    dialog.PraseFileInfo();
    dialog.GetOFN().nFilterIndex = 77;
    select(dialog, {});
    dialog.PraseFileInfo();
    EXPECT_EQ(dialog.GetPathName(), L"/tmp/a.txt");
    EXPECT_EQ(dialog.GetFileName(), L"a.txt");
    EXPECT_EQ(dialog.GetFileExt(), L"txt");
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, 77u);
}

TEST(PraseFileInfoOf, NamesAreCutAtTheFirstNul)
{
    KtQtFileDialog dialog(true);
    select(dialog, {QString::fromLatin1("/tmp/a\0b.txt", 12)});
    dialog.PraseFileInfo();
    EXPECT_EQ(dialog.GetPathName(), L"/tmp/a");
    POSITION pos = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(pos), L"/tmp/a");
}

TEST(PraseFileInfoOf, FileNameAndExtensionAreCutAtTheirFirstNul)
{
    KtQtFileDialog dialog(true);
    select(dialog, {QString::fromLatin1("/tmp/a.t\0xt", 11)});
    dialog.PraseFileInfo();
    EXPECT_EQ(dialog.GetFileName(), L"a.t");
    EXPECT_EQ(dialog.GetFileExt(), L"t");
}

struct FilterRow
{
    const char* name;
    const char* filters;
    const char* chosen;
    DWORD index;
};

class PraseFileInfoFilter : public testing::TestWithParam<FilterRow>
{};

TEST_P(PraseFileInfoFilter, NumbersTheFirstEqualFilterFromOne)
{
    KtQtFileDialog dialog(true);
    select(dialog, {QStringLiteral("/tmp/a.txt")});
    dialog.m_attri.m_listNameFilter = QString::fromUtf8(GetParam().filters).split(u'|');
    dialog.m_strSelectedNameFilter = QString::fromUtf8(GetParam().chosen);
    dialog.GetOFN().nFilterIndex = 77;
    dialog.PraseFileInfo();
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PraseFileInfoFilter,
    testing::Values(FilterRow{"First", "a|b|c", "a", 1}, FilterRow{"Last", "a|b|c", "c", 3},
                    FilterRow{"Twice", "a|b|b", "b", 2}, FilterRow{"OtherCase", "a|b|c", "B", 0},
                    FilterRow{"PartOfOne", "abc|b", "bc", 0}, FilterRow{"Unknown", "a|b|c", "d", 0},
                    FilterRow{"EmptyAmongThem", "a||c", "", 2}),
    RowName());

TEST(GetNextPathName, VisitsEachFileInOrder)
{
    KtQtFileDialog dialog(true);
    select(dialog, {QStringLiteral("/c"), QStringLiteral("/a"), QStringLiteral("/b")});
    POSITION pos = dialog.GetStartPosition();
    EXPECT_EQ(pos, position(3));
    EXPECT_EQ(dialog.GetNextPathName(pos), L"/c");
    EXPECT_EQ(pos, position(2));
    EXPECT_EQ(dialog.GetNextPathName(pos), L"/a");
    EXPECT_EQ(pos, position(1));
    EXPECT_EQ(dialog.GetNextPathName(pos), L"/b");
    EXPECT_EQ(pos, nullptr);
}

TEST(GetNextPathName, IsEmptyAndStaysAtTheEnd)
{
    KtQtFileDialog dialog(true);
    select(dialog, {QStringLiteral("/a")});
    POSITION pos = nullptr;
    EXPECT_EQ(dialog.GetNextPathName(pos), L"");
    EXPECT_EQ(pos, nullptr);
}

TEST(GetNextPathName, LeavesThePositionWithoutASelection)
{
    const KtQtFileDialog dialog(true);
    EXPECT_EQ(dialog.GetStartPosition(), nullptr);
    POSITION pos = position(2);
    EXPECT_EQ(dialog.GetNextPathName(pos), L"");
    EXPECT_EQ(pos, position(2));
}

TEST(GetNextPathName, IsEmptyWhereALongerSelectionHadItsFiles)
{
    KtQtFileDialog dialog(true);
    select(dialog, {QStringLiteral("/a")});
    POSITION pos = position(2);
    EXPECT_EQ(dialog.GetNextPathName(pos), L"");
    EXPECT_EQ(dialog.GetNextPathName(pos), L"/a");
    EXPECT_EQ(pos, nullptr);
    pos = position(UINTPTR_MAX);
    EXPECT_EQ(dialog.GetNextPathName(pos), L"");
    pos = position((std::uintptr_t(1) << 32) + 1);
    EXPECT_EQ(dialog.GetNextPathName(pos), L"");
    EXPECT_EQ(pos, position(std::uintptr_t(1) << 32));
}

} // namespace
