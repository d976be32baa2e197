// SPDX-License-Identifier: MIT
#include <KtQtBase/WideString.h>

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace {

using Text = CStdStr<wchar_t>;

// "ab", a terminator, "cd".
const Text kHoldsTerminator(L"ab\0cd", 5);

struct FindRow
{
    const char* name;
    Text text;
    const wchar_t* sub;
    int position;
};

const FindRow kFindRows[] = {
    {"at the start", L"abcabc", L"ab", 0},
    {"first of two", L"xabcabc", L"abc", 1},
    {"across a repeat", L"abcabc", L"ca", 2},
    {"at the end", L"abc", L"c", 2},
    {"whole text", L"abc", L"abc", 0},
    {"other case", L"abc", L"B", -1},
    {"other case of a letter with an accent", L"\u00e9", L"\u00c9", -1},
    {"beyond the basic plane", L"a\U0001F600b", L"\U0001F600", 1},
    {"absent", L"abc", L"x", -1},
    {"empty", L"abc", L"", 0},
    {"empty in empty", L"", L"", 0},
    {"null counts as empty", L"abc", nullptr, 0},
    {"absent from empty", L"", L"x", -1},
    {"longer than the text", L"ab", L"abc", -1},
    {"behind a terminator", kHoldsTerminator, L"cd", 3},
};

TEST(Find, GivesTheFirstPosition)
{
    for (const FindRow& row : kFindRows)
        EXPECT_EQ(row.text.Find(row.sub), row.position) << row.name;
}

TEST(Find, AnswersWithASignedInt)
{
    static_assert(std::is_same_v<decltype(std::declval<const Text&>().Find(L"")), int>);
    EXPECT_LT(Text(L"a").Find(L"b"), 0);
}

struct MidRow
{
    const char* name;
    int first;
    int count;
    const wchar_t* result;
};

const MidRow kMidRows[] = {
    {"inside", 1, 3, L"bcd"},
    {"whole", 0, 6, L"abcdef"},
    {"last character", 5, 1, L"f"},
    {"negative first counts as 0", -3, 2, L"ab"},
    {"least first", INT_MIN, 2, L"ab"},
    {"negative count counts as 0", 2, -1, L""},
    {"least count", 2, INT_MIN, L""},
    {"both negative", -1, -1, L""},
    {"count 0", 3, 0, L""},
    {"count past the end", 4, 10, L"ef"},
    {"greatest count", 4, INT_MAX, L"ef"},
    {"greatest count from the start", 0, INT_MAX, L"abcdef"},
    {"first at the length", 6, 1, L""},
    {"first beyond the length", 10, 2, L""},
    {"greatest first and count", INT_MAX, INT_MAX, L""},
};

TEST(Mid, GivesThePart)
{
    const Text text = L"abcdef";
    for (const MidRow& row : kMidRows)
        EXPECT_EQ(text.Mid(row.first, row.count), row.result) << row.name;
}

TEST(Mid, OfAnEmptyTextIsEmpty)
{
    EXPECT_EQ(Text().Mid(0, 5), L"");
    EXPECT_EQ(Text().Mid(1, 1), L"");
}

TEST(Mid, CountsAcrossATerminator)
{
    EXPECT_EQ(kHoldsTerminator.Mid(1, 3), std::wstring(L"b\0c", 3));
}

TEST(Mid, GivesANewStringAndKeepsItsOwn)
{
    const Text text = L"abcdef";
    Text part = text.Mid(1, 2);
    part[0] = L'X';
    EXPECT_EQ(part, L"Xc");
    EXPECT_EQ(text, L"abcdef");
}

struct LeftRow
{
    const char* name;
    Text text;
    int count;
    Text result;
};

const LeftRow kLeftRows[] = {
    {"part", L"abc", 2, L"ab"},
    {"whole", L"abc", 3, L"abc"},
    {"one more than the length", L"abc", 4, L"abc"},
    {"far more than the length", L"abc", 99, L"abc"},
    {"greatest count", L"abc", INT_MAX, L"abc"},
    {"count 0", L"abc", 0, L""},
    {"count -1", L"abc", -1, L""},
    {"least count", L"abc", INT_MIN, L""},
    {"empty text", L"", 2, L""},
    {"across a terminator", kHoldsTerminator, 4, Text(L"ab\0c", 4)},
};

TEST(Left, GivesTheBeginning)
{
    for (const LeftRow& row : kLeftRows)
        EXPECT_EQ(row.text.Left(row.count), row.result) << row.name;
}

struct TrimRow
{
    const char* name;
    Text text;
    Text withoutLeft;
    Text withoutRight;
};

const TrimRow kTrimRows[] = {
    {"blanks at both ends", L"  a b ", L"a b ", L"  a b"},
    {"every white space of the classic locale", L" \t\n\v\f\ra \t\n\v\f\r", L"a \t\n\v\f\r",
     L" \t\n\v\f\ra"},
    {"nothing to remove", L"a b", L"a b", L"a b"},
    {"one character", L"a", L"a", L"a"},
    {"white space only", L" \t ", L"", L""},
    {"one blank", L" ", L"", L""},
    {"empty", L"", L"", L""},
    {"a terminator is no white space", Text(L" \0 ", 3), Text(L"\0 ", 2), Text(L" \0", 2)},
    {"no-break space stays in the classic locale", L"\u00a0a\u00a0", L"\u00a0a\u00a0",
     L"\u00a0a\u00a0"},
};

TEST(TrimLeft, RemovesLeadingWhiteSpaceOnly)
{
    for (const TrimRow& row : kTrimRows)
        EXPECT_EQ(Text(row.text).TrimLeft(), row.withoutLeft) << row.name;
}

TEST(TrimRight, RemovesTrailingWhiteSpaceOnly)
{
    for (const TrimRow& row : kTrimRows)
        EXPECT_EQ(Text(row.text).TrimRight(), row.withoutRight) << row.name;
}

TEST(TrimLeft, GivesTheStringItself)
{
    Text text = L" a ";
    EXPECT_EQ(&text.TrimLeft(), &text);
    EXPECT_EQ(&text.TrimRight(), &text);
    EXPECT_EQ(text, L"a");
}

TEST(CStdStr, IsAStandardStringAndNothingMore)
{
    static_assert(sizeof(Text) == sizeof(std::wstring));
    static_assert(alignof(Text) == alignof(std::wstring));
    static_assert(std::is_convertible_v<Text*, std::wstring*>);
    Text text = L"abc";
    std::wstring& standard = text;
    standard += L"d";
    EXPECT_EQ(text, L"abcd");
}

TEST(CStdStr, IsMadeInEveryWayOfAStandardString)
{
    const std::wstring standard = L"abc";
    EXPECT_EQ(Text(), L"");
    EXPECT_EQ(Text(standard), L"abc");
    EXPECT_EQ(Text(L"abcd", 3), L"abc");
    EXPECT_EQ(Text(3, L'x'), L"xxx");
    EXPECT_EQ(Text(standard.begin() + 1, standard.end()), L"bc");
    EXPECT_EQ(Text({L'a', L'b'}), L"ab");
}

TEST(CStdStr, TakesTheResultsOfStandardOperations)
{
    Text text = L"a";
    text = text + L"b";
    text = std::wstring(L"x") + text;
    EXPECT_EQ(text, L"xab");
    text = text.substr(1);
    EXPECT_EQ(text, L"ab");
    text = L'c';
    EXPECT_EQ(text, L"c");
}

TEST(CStdStr, ConvertsWhereAStringIsPassed)
{
    const auto length = [](const Text& text) { return text.size(); };
    EXPECT_EQ(length(std::wstring(L"abc")), 3u);
    EXPECT_EQ(length(L"ab"), 2u);
}

TEST(CStdStr, CopiesAndMovesItsText)
{
    Text text(40, L'a');
    const Text copy = text;
    text[0] = L'b';
    EXPECT_EQ(copy[0], L'a');
    const Text moved = std::move(text);
    EXPECT_EQ(moved, L'b' + std::wstring(39, L'a'));
}

// The leak checker tests that the string is freed, too.
TEST(ReleaseCStrPtr, DeletesAndForgetsTheString)
{
    auto* text = new Text(100, L'a');
    ReleaseCStrPtr(&text);
    EXPECT_EQ(text, nullptr);
}

TEST(ReleaseCStrPtr, LeavesNullAlone)
{
    Text* text = nullptr;
    ReleaseCStrPtr(&text);
    EXPECT_EQ(text, nullptr);
    EXPECT_NO_FATAL_FAILURE(ReleaseCStrPtr(nullptr));
}

} // namespace
