// SPDX-License-Identifier: MIT
//
// The free functions that a parse is made of, and the static helpers of texts.
#include "pathname/PathTestSupport.h"
#include "support/LocaleScope.h"
#include "support/RowName.h"

#include <KtQtBase/PathName.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

using ktqtbase::test::chars;
using ktqtbase::test::GlobalLocaleScope;
using ktqtbase::test::LocaleScope;
using ktqtbase::test::RowName;
using ktqtbase::test::Text;
using ktqtbase::test::UnderscoreIsSpace;

// ---- GetWorkString -----------------------------------------------------------------------------

struct WorkStringRow
{
    const char* name;
    const wchar_t* text;
    wchar_t separator;
    const wchar_t* result;
    wchar_t last, first, second;
};

class GetWorkStringRows : public testing::TestWithParam<WorkStringRow>
{};

TEST_P(GetWorkStringRows, ReplaceBackslashesAndReadCharacters)
{
    Text text(GetParam().text);
    wchar_t last = L'#';
    wchar_t first = L'#';
    wchar_t second = L'#';
    GetWorkString(&text, GetParam().separator, last, first, second);
    EXPECT_STREQ(text.c_str(), GetParam().result);
    EXPECT_EQ(last, GetParam().last);
    EXPECT_EQ(first, GetParam().first);
    EXPECT_EQ(second, GetParam().second);
}

const WorkStringRow kWorkStringRows[] = {
    {"Plain", L"abc", L'/', L"abc", L'c', L'a', L'b'},
    {"LastAsItWas", L"a\\b\\", L'/', L"a/b/", L'\\', L'a', L'/'},
    {"FirstAsItIsNow", L"\\\\a", L'/', L"//a", L'a', L'/', L'/'},
    {"OneCharacter", L"\\", L'/', L"/", L'\\', L'/', 0},
    {"Empty", L"", L'/', L"", L'#', 0, 0},
    {"OtherSeparator", L"a\\b/c", L'!', L"a!b/c", L'c', L'a', L'!'},
    {"SlashIsLeft", L"/a/", L'!', L"/a/", L'/', L'/', L'a'},
};

INSTANTIATE_TEST_SUITE_P(Table, GetWorkStringRows, testing::ValuesIn(kWorkStringRows), RowName());

TEST(GetWorkString, WalksPastTerminators)
{
    Text text(L"a\0\\b", 4);
    wchar_t last = 0;
    wchar_t first = 0;
    wchar_t second = L'#';
    GetWorkString(&text, L'/', last, first, second);
    EXPECT_EQ(text, Text(L"a\0/b", 4));
    EXPECT_EQ(last, L'b');
    EXPECT_EQ(second, 0);
}

// ---- GetPathCatType ----------------------------------------------------------------------------

struct CategoryRow
{
    const char* name;
    const wchar_t* text;
    bool hasBase;
    int result;
    path_category category;
    const wchar_t* textAfter;
};

class GetPathCatTypeRows : public testing::TestWithParam<CategoryRow>
{};

TEST_P(GetPathCatTypeRows, ClassifyTheText)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/b", nullptr, false), 0);
    Text text(GetParam().text);
    const wchar_t second = text.size() > 1 ? text[1] : L'\0';
    path_category category = PC_RELATIVE;
    EXPECT_EQ(GetPathCatType(text.c_str()[0], second, L'/', category, &text,
                             GetParam().hasBase ? &base : nullptr),
              GetParam().result);
    EXPECT_EQ(category, GetParam().category);
    EXPECT_STREQ(text.c_str(), GetParam().textAfter);
}

const CategoryRow kCategoryRows[] = {
    {"Rooted", L"/a", false, 0, PC_ROOTED, L"/a"},
    {"RootAlone", L"/", false, 0, PC_ROOTED, L"/"},
    {"RootedWithColon", L"/a:", false, 1, PC_ROOTED, L"/a:"},
    {"Share", L"//a", false, 0, PC_UNC, L"//a"},
    {"ShareWithColon", L"//a:", false, 1, PC_UNC, L"//a:"},
    {"Drive", L"c:x", false, 0, PC_DRIVE, L"C:x"},
    {"DriveWithTwoColons", L"c:x:y", false, 0, PC_DRIVE, L"C:x:y"},
    {"DigitAndColon", L"1:", true, 1, PC_RELATIVE, L"1:"},
    {"Relative", L"a", true, 0, PC_RELATIVE, L"a"},
    {"RelativeWithColon", L"ab:c", true, 1, PC_RELATIVE, L"ab:c"},
    {"RelativeWithoutBase", L"a", false, 1, PC_RELATIVE, L"a"},
    {"BackslashIsNoSeparator", L"\\a", true, 0, PC_RELATIVE, L"\\a"},
};

INSTANTIATE_TEST_SUITE_P(Table, GetPathCatTypeRows, testing::ValuesIn(kCategoryRows), RowName());

TEST(GetPathCatType, RaisesTheTextsOwnLetterWhateverTheFirstItIsGiven)
{
    Text text(L"qz:");
    path_category category = PC_RELATIVE;
    EXPECT_EQ(GetPathCatType(L'x', L':', L'/', category, &text, nullptr), 0);
    EXPECT_EQ(category, PC_DRIVE);
    EXPECT_STREQ(text.c_str(), L"Qz:");
}

TEST(GetPathCatType, RaisesNothingInAnEmptyText)
{
    Text text;
    path_category category = PC_RELATIVE;
    EXPECT_EQ(GetPathCatType(L'x', L':', L'/', category, &text, nullptr), 0);
    EXPECT_EQ(category, PC_DRIVE);
    EXPECT_EQ(text, L"");
}

TEST(GetPathCatType, RefusesARelativeNameWithAnUnparsedBase)
{
    const CRbUiPathname base;
    Text text(L"a");
    path_category category = PC_RELATIVE;
    EXPECT_EQ(GetPathCatType(L'a', 0, L'/', category, &text, &base), 1);
}

TEST(GetPathCatType, AsksForABaseOnlyWhereTheCategoryIsRelative)
{
    Text text(L"a");
    path_category category = PC_DRIVE;
    EXPECT_EQ(GetPathCatType(L'a', 0, L'/', category, &text, nullptr), 0);
    EXPECT_EQ(category, PC_DRIVE);
}

TEST(GetPathCatType, TakesTheSeparatorFromItsArgument)
{
    Text text(L"!!a");
    path_category category = PC_RELATIVE;
    EXPECT_EQ(GetPathCatType(L'!', L'!', L'!', category, &text, nullptr), 0);
    EXPECT_EQ(category, PC_UNC);
}

TEST(GetPathCatType, PutsADriveBeyondAsciiInUpperCase)
{
    const LocaleScope scope("C.UTF-8");
    Text text(L"\u0436:");
    path_category category = PC_RELATIVE;
    EXPECT_EQ(GetPathCatType(L'\u0436', L':', L'/', category, &text, nullptr), 0);
    EXPECT_EQ(category, PC_DRIVE);
    EXPECT_STREQ(text.c_str(), L"\u0416:");
}

// ---- The other steps ---------------------------------------------------------------------------

TEST(GetUNCScount, WritesNothing)
{
    Text text(L"//a/b");
    int index = 7;
    unsigned int count = 8;
    int length = 9;
    GetUNCScount(&text, &index, count, length, L'/');
    EXPECT_STREQ(text.c_str(), L"//a/b");
    EXPECT_EQ(index, 7);
    EXPECT_EQ(count, 8u);
    EXPECT_EQ(length, 9);
}

struct TailRow
{
    const char* name;
    path_category category;
    const wchar_t* text;
    int index;
    const wchar_t* result;
};

class GetWorkPtrByIndexRows : public testing::TestWithParam<TailRow>
{};

TEST_P(GetWorkPtrByIndexRows, CloseOnlyAShareWithNothingBehindIt)
{
    Text text(GetParam().text);
    GetWorkPtrByIndex(GetParam().category, &text, L'!', GetParam().index);
    EXPECT_STREQ(text.c_str(), GetParam().result);
}

const TailRow kTailRows[] = {
    {"ShareAtItsEnd", PC_UNC, L"//a", 3, L"//a!"},
    {"ShareBeyondItsEnd", PC_UNC, L"//a", 9, L"//a!"},
    {"ShareWithATail", PC_UNC, L"//a", 2, L"//a"},
    {"ShareFromTheStart", PC_UNC, L"//a", 0, L"//a"},
    {"ShareFromBeforeTheStart", PC_UNC, L"//a", -1, L"//a"},
    {"EmptyShare", PC_UNC, L"", 0, L"!"},
    {"EmptyShareFromBeforeTheStart", PC_UNC, L"", -1, L"!"},
    {"Drive", PC_DRIVE, L"C:", 2, L"C:"},
    {"DriveWithATail", PC_DRIVE, L"C:/x", 2, L"C:/x"},
    {"Rooted", PC_ROOTED, L"/", 1, L"/"},
    {"Relative", PC_RELATIVE, L"", 0, L""},
};

INSTANTIATE_TEST_SUITE_P(Table, GetWorkPtrByIndexRows, testing::ValuesIn(kTailRows), RowName());

TEST(GetRelPath, GivesARelativeNameTheFullPathOfItsBase)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/home/u", nullptr, false), 0);
    const CRbUiPathname* basePointer = &base;
    const Text unused(L"unused");
    Text* out = nullptr;
    GetRelPath(PC_RELATIVE, &unused, &out, &basePointer);
    const std::unique_ptr<Text> owned(out);
    EXPECT_STREQ(chars(out), L"/home/u");
}

TEST(GetRelPath, GivesNullForABaseWithoutAPath)
{
    const CRbUiPathname base;
    const CRbUiPathname* basePointer = &base;
    Text before;
    Text* out = &before;
    GetRelPath(PC_RELATIVE, nullptr, &out, &basePointer);
    EXPECT_EQ(out, nullptr);
}

TEST(GetRelPath, GivesNullWithoutABase)
{
    const CRbUiPathname* none = nullptr;
    for (const CRbUiPathname** base : {&none, static_cast<const CRbUiPathname**>(nullptr)}) {
        Text before;
        Text* out = &before;
        GetRelPath(PC_RELATIVE, nullptr, &out, base);
        EXPECT_EQ(out, nullptr);
    }
}

TEST(GetRelPath, GivesARootedNameACopyOfTheText)
{
    const CRbUiPathname* none = nullptr;
    const Text text(L"text");
    Text* out = nullptr;
    GetRelPath(PC_ROOTED, &text, &out, &none);
    const std::unique_ptr<Text> owned(out);
    EXPECT_NE(out, &text);
    EXPECT_STREQ(chars(out), L"text");
}

TEST(GetRelPath, LeavesTheOutputOfOtherCategories)
{
    const CRbUiPathname* none = nullptr;
    const Text text(L"text");
    Text before;
    Text* out = &before;
    GetRelPath(PC_DRIVE, &text, &out, &none);
    EXPECT_EQ(out, &before);
    GetRelPath(PC_UNC, &text, &out, &none);
    EXPECT_EQ(out, &before);
}

TEST(GetPathBuffer, IsTrueAndWritesNothing)
{
    Text prefix(L"/a");
    Text work(L"b");
    Text* prefixPointer = &prefix;
    Text* noPrefix = nullptr;
    EXPECT_TRUE(GetPathBuffer(&prefixPointer, false, &work, L'/'));
    EXPECT_TRUE(GetPathBuffer(&noPrefix, true, &work, L'/', nullptr));
    EXPECT_TRUE(GetPathBuffer(nullptr, false, &work, L'/', nullptr));
    EXPECT_EQ(prefixPointer, &prefix);
    EXPECT_STREQ(prefix.c_str(), L"/a");
    EXPECT_STREQ(work.c_str(), L"b");
}

TEST(IsPathType, IsTrueForNamesWithAWildcard)
{
    for (const wchar_t* name : {L"*", L"?", L"a*", L"?b", L"dir*/file"}) {
        path_type type = PT_NONE;
        EXPECT_TRUE(IsPathType(Text(name), &type)) << testing::PrintToString(name);
        EXPECT_EQ(type, PT_WILDCARD) << testing::PrintToString(name);
    }
}

TEST(IsPathType, LeavesTheTypeOfOtherNames)
{
    for (const wchar_t* name : {L"", L"a", L"[a]", L"a.b"}) {
        path_type type = PT_FILE;
        EXPECT_FALSE(IsPathType(Text(name), &type)) << testing::PrintToString(name);
        EXPECT_EQ(type, PT_FILE) << testing::PrintToString(name);
    }
}

// ---- Texts -------------------------------------------------------------------------------------

struct TextRow
{
    const char* name;
    const wchar_t* text;
    const wchar_t* unquoted;
    const wchar_t* stripped;
};

class TextRows : public testing::TestWithParam<TextRow>
{};

TEST_P(TextRows, AreUnquoted)
{
    Text text(GetParam().text);
    CRbUiPathname::Unquote(text);
    EXPECT_STREQ(text.c_str(), GetParam().unquoted);
}

TEST_P(TextRows, AreStripped)
{
    CRbUiPathname name;
    Text text(GetParam().text);
    name.StripSpaces(text);
    EXPECT_STREQ(text.c_str(), GetParam().stripped);
}

const TextRow kTextRows[] = {
    {"QuotedWithBlanks", L" \"a b\" ", L"a b", L"\"a b\""},
    {"BlanksInsideQuotes", L"\" a \"", L" a ", L"\" a \""},
    {"PairInsideAPair", L"\"\"\"a\"\"", L"\"\"a\"", L"\"\"\"a\"\""},
    {"UnquotedStaysUntrimmed", L" a ", L" a ", L"a"},
    {"OpeningOnly", L" \"a ", L" \"a ", L"\"a"},
    {"ClosingOnly", L" a\" ", L" a\" ", L"a\""},
    {"QuotesOnly", L"\"\"", L"", L"\"\""},
    {"OneQuote", L" \" ", L" \" ", L"\""},
    {"QuotesInside", L"a\"b\"c", L"a\"b\"c", L"a\"b\"c"},
    {"Empty", L"", L"", L""},
    {"Blanks", L" \t\n", L" \t\n", L""},
};

INSTANTIATE_TEST_SUITE_P(Table, TextRows, testing::ValuesIn(kTextRows), RowName());

TEST(Unquote, TrimsWhatTheGlobalLocaleCallsWhiteSpace)
{
    const GlobalLocaleScope scope(std::locale(std::locale::classic(), new UnderscoreIsSpace));
    Text underscores(L"__\"a\"_");
    Text blanks(L" \"a\" ");
    CRbUiPathname::Unquote(underscores);
    CRbUiPathname::Unquote(blanks);
    EXPECT_STREQ(underscores.c_str(), L"a");
    EXPECT_STREQ(blanks.c_str(), L" \"a\" ");
}

TEST(StripSpaces, TrimsWhatTheGlobalLocaleCallsWhiteSpace)
{
    const GlobalLocaleScope scope(std::locale(std::locale::classic(), new UnderscoreIsSpace));
    Text text(L"_ a _");
    CRbUiPathname().StripSpaces(text);
    EXPECT_STREQ(text.c_str(), L" a ");
}

} // namespace
