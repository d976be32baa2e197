// SPDX-License-Identifier: MIT
#include "pathname/PathTestSupport.h"
#include "support/LocaleScope.h"
#include "support/RowName.h"

#include <KtQtBase/PathName.h>

#include <gtest/gtest.h>

namespace {

using ktqtbase::test::chars;
using ktqtbase::test::GlobalLocaleScope;
using ktqtbase::test::LocaleScope;
using ktqtbase::test::RowName;
using ktqtbase::test::Text;
using ktqtbase::test::UnderscoreIsSpace;

// ---- Results -----------------------------------------------------------------------------------

struct ParseRow
{
    const char* name;
    const wchar_t* input;
    path_category category;
    const wchar_t* work;
    const wchar_t* prefix;
};

class ParseRelativeRows : public testing::TestWithParam<ParseRow>
{};

TEST_P(ParseRelativeRows, GiveCategoryWorkStringAndPrefix)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/home/u/", nullptr, false), 0);
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(GetParam().input, &base, false), 0);
    EXPECT_EQ(name.m_category, GetParam().category);
    EXPECT_STREQ(chars(name.m_pWork), GetParam().work);
    EXPECT_STREQ(chars(name.m_pRelPath), GetParam().prefix);
    EXPECT_EQ(name.m_pVolume, nullptr);
    EXPECT_EQ(name.m_separator, L'/');
}

const ParseRow kParseRows[] = {
    {"QuotedRooted", L"  \"/tmp/a b.txt\"  ", PC_ROOTED, L"/tmp/a b.txt", L""},
    {"Drive", L"c:\\dir\\f.abc", PC_DRIVE, L"C:/dir/f.abc", nullptr},
    {"Relative", L"docs\\f.txt", PC_RELATIVE, L"docs/f.txt", L"/home/u/"},
    {"DriveAlone", L"x:", PC_DRIVE, L"X:", nullptr},
    {"DriveInCapitals", L"Z:a", PC_DRIVE, L"Z:a", nullptr},
    {"DriveWithSlashes", L"d:/a/b", PC_DRIVE, L"D:/a/b", nullptr},
    {"DriveKeepsTheCaseOfTheRest", L"c:\\Dir\\fILE", PC_DRIVE, L"C:/Dir/fILE", nullptr},
    {"Root", L"/", PC_ROOTED, L"/", L""},
    {"RootAsBackslash", L"\\", PC_ROOTED, L"/", L""},
    {"RootedWithBackslashes", L"\\a\\b", PC_ROOTED, L"/a/b", L""},
    {"RepeatedSeparatorsStayInside", L"/a//b\\\\c", PC_ROOTED, L"/a//b//c", L""},
    {"OpeningQuoteOnly", L"\"open", PC_RELATIVE, L"\"open", L"/home/u/"},
    {"ClosingQuoteOnly", L"open\"", PC_RELATIVE, L"open\"", L"/home/u/"},
    {"OneQuote", L"\"", PC_RELATIVE, L"\"", L"/home/u/"},
    {"OnePairOfQuotesOnly", L"\"\"a\"\"", PC_RELATIVE, L"\"a\"", L"/home/u/"},
    {"QuotesInside", L"a\"b\"c", PC_RELATIVE, L"a\"b\"c", L"/home/u/"},
    {"BlanksInsideQuotes", L"\" a \"", PC_RELATIVE, L"a", L"/home/u/"},
    {"QuotedDrive", L"\"c:\\x\"", PC_DRIVE, L"C:/x", nullptr},
    {"AllKindsOfBlanks", L" \t\n\v\f\ra b \t\n\v\f\r", PC_RELATIVE, L"a b", L"/home/u/"},
    {"Dots", L"..\\.\\a", PC_RELATIVE, L".././a", L"/home/u/"},
    {"OneCharacter", L"a", PC_RELATIVE, L"a", L"/home/u/"},
    {"BeyondAscii", L"d\u00f3cs\\\U0001F600", PC_RELATIVE, L"d\u00f3cs/\U0001F600", L"/home/u/"},
};

INSTANTIATE_TEST_SUITE_P(Table, ParseRelativeRows, testing::ValuesIn(kParseRows), RowName());

struct RefusedRow
{
    const char* name;
    const wchar_t* input;
};

class ParseRelativeRefusals : public testing::TestWithParam<RefusedRow>
{};

TEST_P(ParseRelativeRefusals, Give1AndLeaveTheNameUnparsed)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/home/u/", nullptr, false), 0);
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"old/name", &base, false), 0);
    EXPECT_EQ(name.ParseRelative(GetParam().input, &base, false), 1);
    EXPECT_EQ(name.m_type, PT_NONE);
    EXPECT_EQ(name.m_pWork, nullptr);
    EXPECT_EQ(name.m_pRelPath, nullptr);
    EXPECT_EQ(name.m_pVolume, nullptr);
}

const RefusedRow kRefusedRows[] = {
    {"Share", L"\\\\srv\\share"},
    {"TwoSlashes", L"//"},
    {"TwoBackslashes", L"\\\\"},
    {"SlashAndBackslash", L"/\\srv"},
    {"TwoColons", L"a:b:c"},
    {"TwoColonsAtTheStart", L"a::"},
    {"ColonBehindTheDrivePlace", L"dir:file"},
    {"ColonInARootedName", L"/a/b:c"},
    {"ColonInAShare", L"//a:b"},
    {"ColonFirst", L":a"},
    {"DigitAndColon", L"1:"},
    {"SeparatorAndColon", L"/:"},
    {"BackslashAndColon", L"\\:"},
    {"Empty", L""},
    {"BlanksOnly", L" \t "},
    {"TwoQuotesOnly", L"\"\""},
    {"QuotedBlanks", L" \"  \" "},
};

INSTANTIATE_TEST_SUITE_P(Table, ParseRelativeRefusals, testing::ValuesIn(kRefusedRows), RowName());

TEST(ParseRelative, RecordsTheCategoryOfARefusedShare)
{
    CRbUiPathname name;
    EXPECT_EQ(name.ParseRelative(L"\\\\srv\\share", nullptr, false), 1);
    EXPECT_EQ(name.m_category, PC_UNC);
}

TEST(ParseRelative, IgnoresItsFlag)
{
    CRbUiPathname name;
    EXPECT_EQ(name.ParseRelative(L" c:\\X", nullptr, true), 0);
    EXPECT_STREQ(name.GetPathString(), L"C:/X");
}

TEST(ParseRelative, LeavesTheObjectUntouchedForNull)
{
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"/a/b", nullptr, false), 0);
    const Text* const work = name.m_pWork;
    const Text* const prefix = name.m_pRelPath;
    const path_type type = name.m_type;
    EXPECT_EQ(name.ParseRelative(nullptr, nullptr, false), 1);
    EXPECT_EQ(name.m_pWork, work);
    EXPECT_EQ(name.m_pRelPath, prefix);
    EXPECT_EQ(name.m_type, type);
}

TEST(ParseRelative, TrimsWhatTheGlobalLocaleCallsWhiteSpace)
{
    const GlobalLocaleScope scope(std::locale(std::locale::classic(), new UnderscoreIsSpace));
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"__\"_/a b _\"__", nullptr, false), 0);
    EXPECT_STREQ(name.GetPathString(), L"/a b ");
}

TEST(ParseRelative, UsesTheSeparatorOfTheObject)
{
    CRbUiPathname name;
    name.m_separator = L'!';
    ASSERT_EQ(name.ParseRelative(L"\\a\\b/c", nullptr, false), 0);
    EXPECT_EQ(name.m_category, PC_ROOTED);
    EXPECT_STREQ(name.GetPathString(), L"!a!b/c");
    EXPECT_TRUE(name.m_bQualified);
}

// ---- Drive letters -----------------------------------------------------------------------------

TEST(ParseRelative, TakesLettersBeyondAsciiAsDrives)
{
    const LocaleScope scope("C.UTF-8");
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"\u00e9:x", nullptr, false), 0);
    EXPECT_EQ(name.m_category, PC_DRIVE);
    EXPECT_STREQ(name.GetPathString(), L"\u00c9:x");
    ASSERT_EQ(name.ParseRelative(L"\u4e2d:\\", nullptr, false), 0);
    EXPECT_EQ(name.m_category, PC_DRIVE);
    EXPECT_STREQ(name.GetPathString(), L"\u4e2d:/");
}

TEST(ParseRelative, AsksTheLocaleWhetherACharacterIsALetter)
{
    const LocaleScope scope("C");
    CRbUiPathname name;
    EXPECT_EQ(name.ParseRelative(L"\u00e9:x", nullptr, false), 1);
    EXPECT_EQ(name.ParseRelative(L"e:x", nullptr, false), 0);
}

TEST(ParseRelative, TakesNoSymbolBeyondAsciiAsADrive)
{
    const LocaleScope scope("C.UTF-8");
    CRbUiPathname name;
    EXPECT_EQ(name.ParseRelative(L"\u20ac:", nullptr, false), 1);
    EXPECT_EQ(name.ParseRelative(L"\U0001F600:", nullptr, false), 1);
}

TEST(ParseRelative, CountsAColonThatASeparatorBecame)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/home/u/", nullptr, false), 0);
    CRbUiPathname name;
    name.m_separator = L':';
    // One colon belongs to a drive; any other refuses the name.
    EXPECT_EQ(name.ParseRelative(L"\\ab", &base, false), 1);
    EXPECT_EQ(name.ParseRelative(L"ab\\c", &base, false), 1);
    // The test for several colons comes before the backslashes are replaced.
    ASSERT_EQ(name.ParseRelative(L"a\\b\\c", &base, false), 0);
    EXPECT_EQ(name.m_category, PC_DRIVE);
    EXPECT_STREQ(name.GetPathString(), L"A:b:c");
}

// ---- Bases -------------------------------------------------------------------------------------

TEST(ParseRelative, RefusesARelativeNameWithoutAParsedBase)
{
    CRbUiPathname name;
    const CRbUiPathname unparsed;
    EXPECT_EQ(name.ParseRelative(L"a", nullptr, false), 1);
    EXPECT_EQ(name.ParseRelative(L"a", &unparsed, false), 1);
    EXPECT_EQ(name.m_type, PT_NONE);
}

TEST(ParseRelative, NeedsNoBaseForRootedAndDriveNames)
{
    CRbUiPathname name;
    const CRbUiPathname unparsed;
    EXPECT_EQ(name.ParseRelative(L"/a", nullptr, false), 0);
    EXPECT_EQ(name.ParseRelative(L"/a", &unparsed, false), 0);
    EXPECT_EQ(name.ParseRelative(L"c:a", nullptr, false), 0);
    EXPECT_EQ(name.ParseRelative(L"c:a", &unparsed, false), 0);
}

TEST(ParseRelative, ResetsItselfBeforeItLooksAtItselfAsBase)
{
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"/a", nullptr, false), 0);
    EXPECT_EQ(name.ParseRelative(L"/b", &name, false), 0);
    EXPECT_STREQ(name.GetPathString(), L"/b");
    EXPECT_EQ(name.ParseRelative(L"c", &name, false), 1);
    EXPECT_EQ(name.m_pWork, nullptr);
}

TEST(ParseRelative, TakesTheFullPathOfARelativeBaseAsPrefix)
{
    CRbUiPathname root;
    CRbUiPathname base;
    CRbUiPathname name;
    ASSERT_EQ(root.ParseRelative(L"/home/u", nullptr, false), 0);
    ASSERT_EQ(base.ParseRelative(L"docs", &root, false), 0);
    ASSERT_EQ(name.ParseRelative(L"f.txt", &base, false), 0);
    EXPECT_STREQ(chars(name.m_pRelPath), L"/home/u/docs");
    EXPECT_STREQ(name.GetPathString(), L"f.txt");
}

TEST(ParseRelative, AcceptsBasesOfTypes1To4Only)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/b", nullptr, false), 0);
    for (int type = 0; type <= 6; ++type) {
        base.m_type = static_cast<path_type>(type);
        CRbUiPathname name;
        EXPECT_EQ(name.ParseRelative(L"a", &base, false), type >= 1 && type <= 4 ? 0 : 1) << type;
    }
    base.m_type = PT_NONE;
}

TEST(ParseRelative, HasNoPrefixForABaseWithAnEmptyPath)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/b", nullptr, false), 0);
    base.m_pWork->clear();
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"a", &base, false), 0);
    EXPECT_EQ(name.m_pRelPath, nullptr);
}

// ---- Names inside the object -------------------------------------------------------------------

TEST(ParseRelative, TakesANameOutOfItsOwnWorkString)
{
    CRbUiPathname name;
    ASSERT_EQ(
        name.ParseRelative(L"/first/second/third/a/name/too/long/for/the/string", nullptr, false),
        0);
    ASSERT_EQ(name.ParseRelative(name.GetPathString() + 6, nullptr, false), 0);
    EXPECT_STREQ(name.GetPathString(), L"/second/third/a/name/too/long/for/the/string");
}

TEST(ParseRelative, TakesANameOutOfItsOwnPrefix)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/home/u/a/prefix/that/is/long", nullptr, false), 0);
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"f", &base, false), 0);
    ASSERT_EQ(name.ParseRelative(name.m_pRelPath->c_str(), nullptr, false), 0);
    EXPECT_STREQ(name.GetPathString(), L"/home/u/a/prefix/that/is/long");
}

// ---- m_bQualified ------------------------------------------------------------------------------

struct QualifiedRow
{
    const char* name;
    const wchar_t* input;
    bool qualified;
};

class Qualified : public testing::TestWithParam<QualifiedRow>
{};

TEST_P(Qualified, FollowsSeparatorAndColon)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/home/u/", nullptr, false), 0);
    CRbUiPathname name;
    name.ParseRelative(GetParam().input, &base, false);
    EXPECT_EQ(name.m_bQualified, GetParam().qualified);
}

const QualifiedRow kQualifiedRows[] = {
    {"Plain", L"ab", false},
    {"Backslash", L"a\\b", true},
    {"Slash", L"a/b", true},
    {"Drive", L"c:", true},
    {"QuotedDrive", L"\"c:\"", true},
    {"Root", L"/", true},
    {"RefusedColon", L"dir:file", false},
    {"RefusedShare", L"//srv/share", false},
};

INSTANTIATE_TEST_SUITE_P(Table, Qualified, testing::ValuesIn(kQualifiedRows), RowName());

TEST(ParseRelative, LooksForTheColonBeforeItOverwritesTheNameGiven)
{
    CRbUiPathname name;
    name.m_type = PT_FILE;
    name.m_pWork = new Text(L"xxc:abcdefgh");
    ASSERT_EQ(name.ParseRelative(name.GetPathString() + 2, nullptr, false), 0);
    EXPECT_STREQ(name.GetPathString(), L"C:abcdefgh");
    EXPECT_TRUE(name.m_bQualified);
}

TEST(ParseRelative, QualifiesANameByTheSeparatorOfTheObject)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/home/u/", nullptr, false), 0);
    CRbUiPathname name;
    name.m_separator = L'!';
    ASSERT_EQ(name.ParseRelative(L"a/b", &base, false), 0);
    EXPECT_FALSE(name.m_bQualified);
    ASSERT_EQ(name.ParseRelative(L"a\\b", &base, false), 0);
    EXPECT_TRUE(name.m_bQualified);
}

TEST(ParseRelative, NeverClearsQualified)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/home/u/", nullptr, false), 0);
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"a\\b", &base, false), 0);
    ASSERT_EQ(name.ParseRelative(L"ab", &base, false), 0);
    EXPECT_TRUE(name.m_bQualified);
    ASSERT_EQ(name.ParseRelative(L"", &base, false), 1);
    EXPECT_TRUE(name.m_bQualified);
}

} // namespace
