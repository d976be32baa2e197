// SPDX-License-Identifier: MIT
//
// Which locale each operation asks.
#include <KtQtBase/WideString.h>

#include "support/LocaleScope.h"

#include <gtest/gtest.h>

namespace {

using Text = CStdStr<wchar_t>;
using ktqtbase::test::GlobalLocaleScope;
using ktqtbase::test::LocaleScope;
using ktqtbase::test::oddLocale;

TEST(TrimLeft, AsksTheGlobalLocaleForWhiteSpace)
{
    const GlobalLocaleScope odd(oddLocale());
    EXPECT_EQ(Text(L"xx xax").TrimLeft(), L" xax");
    EXPECT_EQ(Text(L" a").TrimLeft(), L" a");
    EXPECT_EQ(Text(L"xxx").TrimLeft(), L"");
}

TEST(TrimRight, AsksTheGlobalLocaleForWhiteSpace)
{
    const GlobalLocaleScope odd(oddLocale());
    EXPECT_EQ(Text(L"xax xx").TrimRight(), L"xax ");
    EXPECT_EQ(Text(L"a ").TrimRight(), L"a ");
    EXPECT_EQ(Text(L"xxx").TrimRight(), L"");
}

TEST(TrimLeft, TakesTheWhiteSpaceOfTheClassicFacet)
{
    const auto& facet = std::use_facet<std::ctype<wchar_t>>(std::locale::classic());
    for (wchar_t ch = 1; ch < 0x3100; ++ch) {
        const bool isSpace = facet.is(std::ctype_base::space, ch);
        EXPECT_EQ(Text({ch, L'a'}).TrimLeft().size(), isSpace ? 1u : 2u) << ch;
        EXPECT_EQ(Text({L'a', ch}).TrimRight().size(), isSpace ? 1u : 2u) << ch;
    }
}

TEST(TrimLeft, AsksTheGlobalLocaleAtEveryCall)
{
    Text text = L" xa";
    {
        const GlobalLocaleScope odd(oddLocale());
        EXPECT_EQ(text.TrimLeft(), L" xa");
    }
    EXPECT_EQ(text.TrimLeft(), L"xa");
}

TEST(TrimLeft, DoesNotAskTheProcessLocale)
{
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    EXPECT_EQ(Text(L"\u2003a\u2003").TrimLeft(), L"\u2003a\u2003");
    EXPECT_EQ(Text(L"\u2003a\u2003").TrimRight(), L"\u2003a\u2003");
}

TEST(TrimLeft, TakesTheWideBlanksOfAUtf8GlobalLocale)
{
    const GlobalLocaleScope utf8(std::locale("C.UTF-8"));
    EXPECT_EQ(Text(L"\u2003a\u2003").TrimLeft(), L"a\u2003");
    EXPECT_EQ(Text(L"\u2003a\u2003").TrimRight(), L"\u2003a");
}

struct CaseRow
{
    const char* name;
    std::locale locale;
    Text text;
    Text upper;
    Text lower;
};

TEST(toUpper, AsksTheGivenLocale)
{
    const CaseRow rows[] = {
        {"classic", std::locale::classic(), L"aZ1\u00e9", L"AZ1\u00e9", L"az1\u00e9"},
        {"UTF-8", std::locale("C.UTF-8"), L"aZ\u00e9\u0416", L"AZ\u00c9\u0416", L"az\u00e9\u0436"},
        {"odd", oddLocale(), L"ab@B", L"@b@B", L"abaB"},
        {"empty", std::locale::classic(), L"", L"", L""},
        {"across a terminator", std::locale::classic(), Text(L"a\0B", 3), Text(L"A\0B", 3),
         Text(L"a\0b", 3)},
    };
    for (const CaseRow& row : rows) {
        EXPECT_EQ(Text(row.text).toUpper(row.locale), row.upper) << row.name;
        EXPECT_EQ(Text(row.text).ToLower(row.locale), row.lower) << row.name;
    }
}

TEST(toUpper, DoesNotAskTheGlobalLocale)
{
    const GlobalLocaleScope odd(oddLocale());
    EXPECT_EQ(Text(L"ab").toUpper(std::locale::classic()), L"AB");
    EXPECT_EQ(Text(L"A@").ToLower(std::locale::classic()), L"a@");
}

TEST(toUpper, GivesTheStringItself)
{
    Text text = L"aB";
    EXPECT_EQ(&text.toUpper(std::locale::classic()), &text);
    EXPECT_EQ(text, L"AB");
    EXPECT_EQ(&text.ToLower(std::locale::classic()), &text);
    EXPECT_EQ(text, L"ab");
}

TEST(strMakeUpper, ChangesInPlaceByTheGlobalLocale)
{
    Text text = L"ab\u00e9";
    KtErrorEat::strMakeUpper(text);
    EXPECT_EQ(text, L"AB\u00e9");
    const GlobalLocaleScope odd(oddLocale());
    text = L"ab";
    KtErrorEat::strMakeUpper(text);
    EXPECT_EQ(text, L"@b");
}

TEST(strMakeLower, ChangesInPlaceByTheGlobalLocale)
{
    Text text = L"AB\u00c9";
    KtErrorEat::strMakeLower(text);
    EXPECT_EQ(text, L"ab\u00c9");
    const GlobalLocaleScope odd(oddLocale());
    text = L"@B";
    KtErrorEat::strMakeLower(text);
    EXPECT_EQ(text, L"aB");
}

} // namespace
