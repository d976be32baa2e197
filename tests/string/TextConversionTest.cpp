// SPDX-License-Identifier: MIT
#include "string/TextConversion.h"

#include "platform/Platform.h"
#include "support/LocaleScope.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

namespace {

using ktqtbase::narrowAscii;
using ktqtbase::NarrowText;
using ktqtbase::widen;
using ktqtbase::test::LocaleScope;

struct PairRow
{
    const char* name;
    const wchar_t* wide;
    const char* narrow;
};

const PairRow kPairs[] = {
    {"empty", L"", ""},
    {"ASCII", L"report.txt", "report.txt"},
    {"accent", L"caf\u00e9", "caf\xc3\xa9"},
    {"CJK", L"\u4e2d\u6587", "\xe4\xb8\xad\xe6\x96\x87"},
    {"emoji", L"a\U0001F600", "a\xf0\x9f\x98\x80"},
    {"last code point", L"\U0010FFFF", "\xf4\x8f\xbf\xbf"},
};

TEST(NarrowAscii, TakesAsciiOfEveryLengthAndWritesNoMore)
{
    for (std::size_t length = 0; length <= 40; ++length) {
        std::wstring wide;
        std::string expected;
        for (std::size_t i = 0; i < length; ++i) {
            wide += static_cast<wchar_t>(0x7F - i);
            expected += static_cast<char>(0x7F - i);
        }
        std::string narrow(length + 1, '-');
        EXPECT_TRUE(narrowAscii(wide.data(), length, narrow.data()));
        EXPECT_EQ(narrow, expected + '-');
    }
}

TEST(NarrowAscii, RefusesAnyOtherCharacterAtAnyPlace)
{
    char narrow[40];
    for (const wchar_t other : {0x80, 0xFF, 0x100, 0x8041, 0x10041, 0x10FFFF, -1, -0x7FFFFFBF}) {
        for (std::size_t length = 1; length <= 40; ++length) {
            for (std::size_t place = 0; place < length; ++place) {
                std::wstring wide(length, L'a');
                wide[place] = other;
                EXPECT_FALSE(narrowAscii(wide.data(), length, narrow)) << other << ' ' << place;
            }
        }
    }
}

TEST(NarrowText, IsUtf8InAUtf8Locale)
{
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    for (const PairRow& row : kPairs) {
        NarrowText text(row.wide);
        ASSERT_TRUE(text.converted()) << row.name;
        EXPECT_STREQ(text.c_str(), row.narrow) << row.name;
        EXPECT_EQ(text.length(), std::strlen(row.narrow)) << row.name;
        EXPECT_EQ(text.data(), text.c_str()) << row.name;
    }
}

TEST(NarrowText, OfNullIsNotConverted)
{
    EXPECT_FALSE(NarrowText(nullptr).converted());
}

TEST(NarrowText, RefusesWhatTheLocaleCannotWrite)
{
    const std::wstring surrogate = {L'a', 0xD800, L'b'};
    const std::wstring negative = {L'a', static_cast<wchar_t>(-1)};
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    EXPECT_FALSE(NarrowText(surrogate.c_str()).converted());
    EXPECT_FALSE(NarrowText(negative.c_str()).converted());
    EXPECT_FALSE(NarrowText((std::wstring(2000, L'a') + surrogate).c_str()).converted());
}

TEST(NarrowText, FollowsTheProcessLocale)
{
    const LocaleScope plain("C", LC_CTYPE);
    EXPECT_STREQ(NarrowText(L"name").c_str(), "name");
    EXPECT_FALSE(NarrowText(L"caf\u00e9").converted());
    EXPECT_FALSE(NarrowText((std::wstring(2000, L'a') + L"\u00e9").c_str()).converted());
}

// Lengths on either side of each place where the room could come from elsewhere.
TEST(NarrowText, HoldsTextsOfEveryLength)
{
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    for (std::size_t length :
         {84u, 85u, 86u, 127u, 128u, 129u, 511u, 512u, 513u, 1023u, 1024u, 1025u, 5000u}) {
        const NarrowText ascii(std::wstring(length, L'x').c_str());
        ASSERT_TRUE(ascii.converted()) << length;
        EXPECT_EQ(ascii.c_str(), std::string(length, 'x'));
        EXPECT_EQ(ascii.length(), length);
        const NarrowText emoji(std::wstring(length, L'\U0001F600').c_str());
        ASSERT_TRUE(emoji.converted()) << length;
        EXPECT_EQ(std::strlen(emoji.c_str()), 4 * length);
        EXPECT_EQ(emoji.length(), 4 * length);
    }
}

// libc decides what it writes for a value beyond the last code point, but a long text must not be
// refused if a short one is accepted.
TEST(NarrowText, AgreesWithTheLocaleOnValuesBeyondTheLastCodePoint)
{
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    for (wchar_t ch : {0x110000, 0x1FFFFF, 0x200000, 0x7FFFFFFF}) {
        char one[16];
        const wchar_t text[] = {ch, 0};
        const std::size_t bytes = std::wcstombs(one, text, sizeof(one));
        const bool expected = bytes != static_cast<std::size_t>(-1);
        for (std::size_t length : {1u, 80u, 100u, 300u, 2000u}) {
            const NarrowText narrow(std::wstring(length, ch).c_str());
            ASSERT_EQ(narrow.converted(), expected) << ch << ' ' << length;
            EXPECT_EQ(narrow.length(), expected ? bytes * length : 0) << ch;
        }
    }
}

TEST(NarrowText, GivesTextThatMayBeWrittenInPlace)
{
    NarrowText text(L"abcXX");
    text.data()[3] = '-';
    EXPECT_STREQ(text.c_str(), "abc-X");
}

constexpr wchar_t kPoison = 0x7E7E;
using Area = std::array<wchar_t, 16>;

Area poisoned()
{
    Area area;
    area.fill(kPoison);
    return area;
}

// The area as it must be: a text, then poison.
Area holding(const std::wstring& text)
{
    Area area = poisoned();
    std::copy(text.begin(), text.end(), area.begin());
    return area;
}

TEST(widen, ReadsUtf8InAUtf8Locale)
{
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    for (const PairRow& row : kPairs) {
        Area area = poisoned();
        EXPECT_TRUE(widen(row.narrow, area.data(), area.size())) << row.name;
        EXPECT_EQ(area, holding(row.wide + std::wstring(1, L'\0'))) << row.name;
    }
}

struct SizeRow
{
    const char* name;
    std::size_t size;
    std::wstring written;
};

TEST(widen, WritesNoMoreThanItsRoom)
{
    const SizeRow rows[] = {
        {"none", 0, L""},
        {"one", 1, L"a"},
        {"one short of the text", 2, L"ab"},
        {"the text without its terminator", 3, L"ab\u00e9"},
        {"exact", 4, std::wstring(L"ab\u00e9\0", 4)},
        {"larger", 10, std::wstring(L"ab\u00e9\0", 4)},
    };
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    for (const SizeRow& row : rows) {
        Area area = poisoned();
        EXPECT_TRUE(widen("ab\xc3\xa9", area.data(), row.size)) << row.name;
        EXPECT_EQ(area, holding(row.written)) << row.name;
    }
}

struct BadRow
{
    const char* name;
    const char* narrow;
    std::wstring kept;
};

TEST(widen, StopsAtAByteThatDoesNotConvert)
{
    const BadRow rows[] = {
        {"in the middle",
         "ab\xff"
         "cd",
         L"ab"},
        {"at the start",
         "\xff"
         "ab",
         L""},
        {"at the end", "abc\x80", L"abc"},
        {"cut sequence at the end", "ab\xe4\xb8", L"ab"},
        {"cut sequence in the middle",
         "ab\xc3"
         "cd",
         L"ab"},
        {"surrogate", "a\xed\xa0\x80", L"a"},
        {"too long a form", "a\xc0\xaf", L"a"},
        {"behind a good sequence", "\xc3\xa9\xff", L"\u00e9"},
    };
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    for (const BadRow& row : rows) {
        Area area = poisoned();
        EXPECT_FALSE(widen(row.narrow, area.data(), area.size())) << row.name;
        EXPECT_EQ(area, holding(row.kept + L'\0')) << row.name;
    }
}

TEST(widen, PutsTheTerminatorOfABadTextIntoItsLastPlace)
{
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    Area area = poisoned();
    EXPECT_FALSE(widen("ab\xff", area.data(), 3));
    EXPECT_EQ(area, holding(std::wstring(L"ab\0", 3)));
}

TEST(widen, DoesNotLookBeyondItsRoom)
{
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    Area area = poisoned();
    EXPECT_TRUE(widen("ab\xff", area.data(), 2));
    EXPECT_EQ(area, holding(L"ab"));
}

TEST(widen, WritesNothingWithoutATarget)
{
    EXPECT_TRUE(widen("abc", nullptr, 0));
    EXPECT_TRUE(widen("abc", nullptr, 10));
}

TEST(useUtf8Locale, SetsTheCharacterTypeOnly)
{
    const LocaleScope plain("C", LC_CTYPE);
    const std::string numeric = std::setlocale(LC_NUMERIC, nullptr);
    ktqtbase::useUtf8Locale();
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), ktqtbase::platform::utf8LocaleName());
    EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), numeric);
    EXPECT_STREQ(NarrowText(L"\u00e9").c_str(), "\xc3\xa9");
}

} // namespace
