// SPDX-License-Identifier: MIT
#include "support/LocaleScope.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"
#include "system/GlobalScope.h"

#include <KtQtBase/windows/Files.h>

#include <gtest/gtest.h>

#include <cctype>
#include <cwchar>
#include <string>

namespace {

namespace fs = std::filesystem;

using ktqtbase::test::lastFormat;
using ktqtbase::test::lastTemplate;
using ktqtbase::test::localeOfLastFormat;
using ktqtbase::test::LocaleScope;
using ktqtbase::test::mktempEnd;
using ktqtbase::test::MktempEnd;
using ktqtbase::test::RowName;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::wide;
using ktqtbase::test::WorkingFolder;

// A buffer full of rubbish, as a caller may bring it.
struct Buffer
{
    Buffer()
    {
        std::wmemset(text, L'#', 2047);
        text[2047] = L'\0';
    }
    wchar_t text[2048];
};

struct TempRow
{
    const char* name;
    const wchar_t* path;
    const wchar_t* prefix;
    unsigned int unique;
    const wchar_t* result;
};

class GetTempFileNameRows : public testing::TestWithParam<TempRow>
{};

TEST_P(GetTempFileNameRows, JoinPathPrefixNumberAndSuffix)
{
    const TempRow& row = GetParam();
    Buffer buffer;
    const unsigned int length = GetTempFileName(row.path, row.prefix, row.unique, buffer.text);
    EXPECT_STREQ(buffer.text, row.result);
    EXPECT_EQ(length, std::wcslen(row.result));
    EXPECT_EQ(buffer.text[length + 1], L'#');
}

const TempRow kTempRows[] = {
    {"Plain", L"/tmp/", L"ktTmp", 42, L"/tmp/ktTmp42.tmp"},
    {"NoSlashIsAdded", L"/tmp", L"kt", 1, L"/tmpkt1.tmp"},
    {"WholePrefix", L"", L"prefixprefix", 7, L"prefixprefix7.tmp"},
    {"EmptyPrefix", L"/tmp/", L"", 7, L"/tmp/7.tmp"},
    {"SixDigits", L"", L"", 999999, L"999999.tmp"},
    {"SevenDigits", L"", L"", 1234567, L"1234567.tmp"},
    {"GreatestPositive", L"", L"", 0x7FFFFFFF, L"2147483647.tmp"},
    {"LeastNegative", L"", L"", 0x80000000, L"-2147483648.tmp"},
    {"MinusOne", L"/tmp/", L"kt", 0xFFFFFFFF, L"/tmp/kt-1.tmp"},
    {"BeyondAscii", L"/d\u00f3c/", L"\U0001F600", 5, L"/d\u00f3c/\U0001F6005.tmp"},
    {"PercentSigns", L"/%d/", L"%s%ls", 5, L"/%d/%s%ls5.tmp"},
    {"NullPath", nullptr, L"kt", 5, L"kt5.tmp"},
    {"NullPrefix", L"/tmp/", nullptr, 5, L"/tmp/5.tmp"},
};

INSTANTIATE_TEST_SUITE_P(Table, GetTempFileNameRows, testing::ValuesIn(kTempRows), RowName());

TEST(GetTempFileName, GivesTheLengthOfTheNameNotTheNumber)
{
    Buffer buffer;
    EXPECT_EQ(GetTempFileName(L"/tmp/", L"ktTmp", 42, buffer.text), 16u);
}

TEST(GetTempFileName, MakesNoFile)
{
    const TemporaryFolder folder;
    const WorkingFolder working(folder.path());
    const std::wstring path = wide(folder.path()) + L"/";
    Buffer buffer;
    GetTempFileName(path.c_str(), L"kt", 42, buffer.text);
    GetTempFileName(path.c_str(), L"kt", 0, buffer.text);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(GetTempFileName, PutsSixCharactersInForTheNumber0)
{
    Buffer buffer;
    EXPECT_EQ(GetTempFileName(L"/tmp/", L"kt", 0, buffer.text), 17u);
    const std::wstring name = buffer.text;
    EXPECT_EQ(name.substr(0, 7), L"/tmp/kt");
    EXPECT_EQ(name.substr(13), L".tmp");
    const std::wstring unique = name.substr(7, 6);
    EXPECT_NE(unique, L"XXXXXX");
    for (const wchar_t ch : unique)
        EXPECT_TRUE(ch < 128 && std::isalnum(static_cast<int>(ch)));
}

// A template without a folder is one for the working directory.
TEST(GetTempFileName, AsksForCharactersThatNameNothingInTheWorkingFolder)
{
    Buffer buffer;
    lastTemplate.clear();
    GetTempFileName(L"/tmp/", L"kt", 42, buffer.text);
    EXPECT_EQ(lastTemplate, "");
    GetTempFileName(L"/tmp/", L"kt", 0, buffer.text);
    EXPECT_EQ(lastTemplate, "XXXXXX");
}

TEST(GetTempFileName, HasNoUniquePartWhereNoneCanBeFound)
{
    for (const MktempEnd end : {MktempEnd::EmptyText, MktempEnd::Null}) {
        Buffer buffer;
        mktempEnd = end;
        EXPECT_EQ(GetTempFileName(L"/tmp/", L"kt", 0, buffer.text), 11u);
        mktempEnd = MktempEnd::Name;
        EXPECT_STREQ(buffer.text, L"/tmp/kt.tmp");
    }
}

TEST(GetTempFileName, LeavesTheLocaleOfUtf8)
{
    const LocaleScope scope("C");
    Buffer buffer;
    GetTempFileName(L"/tmp/", L"kt", 1, buffer.text);
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C.UTF-8");
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

TEST(GetTempFileName, JoinsTheNameByTheOsBaseLibraryBeforeItSetsTheLocale)
{
    const LocaleScope scope("C");
    Buffer buffer;
    lastFormat.clear();
    GetTempFileName(L"/tmp/", L"kt", 1, buffer.text);
    EXPECT_EQ(lastFormat, L"%ls%ls");
    EXPECT_EQ(localeOfLastFormat, "C");
}

TEST(GetTempFileName, NeedsNoFolder)
{
    const TemporaryFolder folder;
    const std::wstring missing = wide(folder / "missing/");
    Buffer buffer;
    GetTempFileName(missing.c_str(), L"kt", 9, buffer.text);
    EXPECT_EQ(buffer.text, missing + L"kt9.tmp");
}

TEST(GetTempFileName, WritesLongNamesWhole)
{
    const std::wstring path(1500, L'd');
    Buffer buffer;
    EXPECT_EQ(GetTempFileName(path.c_str(), L"kt", 9, buffer.text), 1507u);
    EXPECT_EQ(buffer.text, path + L"kt9.tmp");
}

TEST(GetTempFileName, Is0WithoutABuffer)
{
    EXPECT_EQ(GetTempFileName(L"/tmp/", L"kt", 9, nullptr), 0u);
}

} // namespace
