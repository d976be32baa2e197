// SPDX-License-Identifier: MIT
#include "string/CaseFolding.h"

#include "support/LocaleScope.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using ktqtbase::equalFolded;
using ktqtbase::isLetter;
using ktqtbase::upperCase;
using ktqtbase::test::GlobalLocaleScope;
using ktqtbase::test::LocaleScope;
using ktqtbase::test::oddLocale;

constexpr wchar_t kLeast = std::numeric_limits<wchar_t>::min();
constexpr wchar_t kGreatest = std::numeric_limits<wchar_t>::max();

// Values that are no letters' code points, whether or not wchar_t has a sign.
constexpr wchar_t kMinusOne = static_cast<wchar_t>(-1);
constexpr wchar_t kNoCodePoints[] = {kLeast, kMinusOne - 1, kMinusOne, 0xD800,
                                     0xDFFF, 0x110000,      kGreatest};

struct FoldRow
{
    const char* name;
    const wchar_t* a;
    const wchar_t* b;
    bool equal;
};

const FoldRow kFoldRows[] = {
    {"same", L"name", L"name", true},
    {"other case", L"NaMe", L"nAmE", true},
    {"first and last letter", L"AZ", L"az", true},
    {"neighbours of the letters", L"@[", L"`{", false},
    {"both empty", L"", L"", true},
    {"first is shorter", L"ab", L"abc", false},
    {"second is shorter", L"abc", L"ab", false},
    {"second is empty", L"a", L"", false},
    {"first is empty", L"", L"a", false},
    {"different at the start", L"xbc", L"abc", false},
    {"what follows a terminator does not count", L"ab\0c", L"AB\0d", true},
    {"letters beyond ASCII keep their case", L"\u00c9", L"\u00e9", false},
    {"same letters beyond ASCII", L"\u00e9\U0001F600", L"\u00e9\U0001F600", true},
    {"no code points", L"\x7fffffff", L"\x7fffffff", true},
};

TEST(equalFolded, ComparesWithoutRegardToAsciiCase)
{
    for (const FoldRow& row : kFoldRows)
        EXPECT_EQ(equalFolded(row.a, row.b), row.equal) << row.name;
}

TEST(equalFolded, AsksNoLocaleOfTheHost)
{
    const GlobalLocaleScope odd(oddLocale());
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    EXPECT_FALSE(equalFolded(L"@", L"a"));
    for (const FoldRow& row : kFoldRows)
        EXPECT_EQ(equalFolded(row.a, row.b), row.equal) << row.name;
}

TEST(equalFolded, IgnoresAUtf8GlobalLocale)
{
    const GlobalLocaleScope utf8(std::locale("C.UTF-8"));
    EXPECT_FALSE(equalFolded(L"\u00c9", L"\u00e9"));
    EXPECT_TRUE(equalFolded(L"C:", L"c:"));
}

TEST(isLetter, KnowsTheAsciiLettersInEveryLocale)
{
    for (const char* name : {"C", "C.UTF-8"}) {
        const LocaleScope locale(name, LC_CTYPE);
        for (wchar_t ch = 0; ch < 128; ++ch) {
            const bool letter = (ch >= L'A' && ch <= L'Z') || (ch >= L'a' && ch <= L'z');
            EXPECT_EQ(isLetter(ch), letter) << name << ' ' << ch;
        }
    }
}

TEST(upperCase, ChangesTheSmallAsciiLettersInEveryLocale)
{
    for (const char* name : {"C", "C.UTF-8"}) {
        const LocaleScope locale(name, LC_CTYPE);
        for (wchar_t ch = 0; ch < 128; ++ch) {
            const bool isSmall = ch >= L'a' && ch <= L'z';
            EXPECT_EQ(upperCase(ch), isSmall ? ch - 32 : ch) << name << ' ' << ch;
        }
    }
}

struct LetterRow
{
    const char* name;
    wchar_t ch;
    bool letter;
    wchar_t upper;
};

const LetterRow kUtf8Rows[] = {
    {"Latin with accent", 0xE9, true, 0xC9},    {"Cyrillic", 0x436, true, 0x416},
    {"capital Cyrillic", 0x416, true, 0x416},   {"CJK", 0x4E2D, true, 0x4E2D},
    {"Deseret", 0x10428, true, 0x10400},        {"no-break space", 0xA0, false, 0xA0},
    {"multiplication sign", 0xD7, false, 0xD7}, {"emoji", 0x1F600, false, 0x1F600},
};

TEST(isLetter, FollowsTheProcessLocale)
{
    for (const LetterRow& row : kUtf8Rows) {
        const LocaleScope plain("C", LC_CTYPE);
        EXPECT_FALSE(isLetter(row.ch)) << row.name;
        const LocaleScope utf8("C.UTF-8", LC_CTYPE);
        EXPECT_EQ(isLetter(row.ch), row.letter) << row.name;
    }
}

TEST(upperCase, FollowsTheProcessLocale)
{
    for (const LetterRow& row : kUtf8Rows) {
        const LocaleScope plain("C", LC_CTYPE);
        EXPECT_EQ(upperCase(row.ch), row.ch) << row.name;
        const LocaleScope utf8("C.UTF-8", LC_CTYPE);
        EXPECT_EQ(upperCase(row.ch), row.upper) << row.name;
    }
}

TEST(isLetter, AsksTheProcessLocaleNotTheGlobalOne)
{
    const GlobalLocaleScope odd(oddLocale());
    EXPECT_TRUE(isLetter(L'b'));
    EXPECT_EQ(upperCase(L'a'), L'A');
}

TEST(isLetter, RefusesWhatIsNoCodePoint)
{
    for (const char* name : {"C", "C.UTF-8"}) {
        const LocaleScope locale(name, LC_CTYPE);
        for (wchar_t ch : kNoCodePoints) {
            EXPECT_FALSE(isLetter(ch)) << name << ' ' << static_cast<int>(ch);
            EXPECT_EQ(upperCase(ch), ch) << name;
        }
    }
}

} // namespace
