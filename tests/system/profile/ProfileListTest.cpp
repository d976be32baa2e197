// SPDX-License-Identifier: MIT
//
// The lists of sections and of keys.
#include "support/ScratchProfile.h"

#include <gtest/gtest.h>

namespace {

struct ListRow
{
    const char* name;
    std::string file;
    std::optional<std::string> section;
    int size;
    ProfileAnswer expected;
};

void expectLists(std::initializer_list<ListRow> rows)
{
    ScratchProfile profile("");
    for (const ListRow& row : rows) {
        SCOPED_TRACE(row.name);
        profile.rewrite(row.file);
        const ProfileAnswer answer = profile.read({row.section, std::nullopt, "none", row.size});
        EXPECT_EQ(answer.text, row.expected.text);
        EXPECT_EQ(answer.count, row.expected.count);
    }
}

} // namespace

TEST(ProfileSectionList, HoldsEveryHeaderWithATabBehindIt)
{
    expectLists({
        {"two", "[A]\n[Bc]\n", std::nullopt, 64, {5, "A\tBc\t"}},
        {"twice the same", "[A]\n[A]\n", std::nullopt, 64, {4, "A\tA\t"}},
        {"untrimmed", "[ A ]\n", std::nullopt, 64, {4, " A \t"}},
        {"empty name", "[]\n[A]\n", std::nullopt, 64, {3, "\tA\t"}},
        {"unterminated", "[A\n[B]\n", std::nullopt, 64, {2, "B\t"}},
        {"keys left out", "k=1\n[A]\nk=1\n", std::nullopt, 64, {2, "A\t"}},
        {"none", "k=1\n", std::nullopt, 64, {0, ""}},
        {"quote at the beginning", "[\"A]\n", std::nullopt, 64, {3, "A\t"}},
        {"quote before the last tab", "[A\"]\n", std::nullopt, 64, {3, "A\"\t"}},
        {"quote at a full list's end", "[A\"]\n", std::nullopt, 4, {2, "A"}},
    });
}

TEST(ProfileSectionList, IsTheAnswerWhateverTheKey)
{
    ScratchProfile profile("[A]\nk=5\n[B]\n");
    EXPECT_EQ(profile.read({std::nullopt, "k", "none", 64}).text, "A\tB\t");
    EXPECT_EQ(profile.read({std::nullopt, "", "none", 64}).text, "A\tB\t");
}

TEST(ProfileKeyList, HoldsTheKeysUpToTheNextBracket)
{
    expectLists({
        {"two", "[S]\na=1\nbc=2\n", "S", 64, {5, "a\tbc\t"}},
        {"other sections", "x=0\n[R]\ny=1\n[S]\na=1\n[T]\nb=2\n", "S", 64, {2, "a\t"}},
        {"twice the same", "[S]\na=1\na=2\n", "S", 64, {4, "a\ta\t"}},
        {"section met again", "[S]\na=1\n[S]\nb=2\n", "S", 64, {2, "a\t"}},
        {"unterminated header ends it", "[S]\na=1\n[x=1\nb=2\n", "S", 64, {2, "a\t"}},
        {"unterminated header before it", "[x=1\n[S]\na=1\n", "S", 64, {2, "a\t"}},
        {"no equals sign, no name", "[S]\na\n=1\nb=2\n", "S", 64, {2, "b\t"}},
        {"trimmed", "[S]\n a b\t = 1\n", "S", 64, {4, "a b\t"}},
        {"comment", "[S]\n;a=1\n", "S", 64, {3, ";a\t"}},
        {"quotes", "[S]\n\"a\"=1\n", "S", 64, {4, "a\"\t"}},
        {"none in the section", "[S]\n[T]\na=1\n", "S", 64, {0, ""}},
        {"section missing", "[T]\na=1\n", "S", 64, {4, "none"}},
    });
}

TEST(ProfileList, IsClosedByTheNameThatLeavesNoByteToSpare)
{
    const std::string file = "[abc]\n[de]\n[f]\n";
    expectLists({
        {"spare byte behind all", file, std::nullopt, 11, {9, "abc\tde\tf\t"}},
        {"no spare byte", file, std::nullopt, 10, {8, "abc\tde\tf"}},
        {"room for the last name", file, std::nullopt, 9, {7, "abc\tde\t"}},
        {"second name just fits", file, std::nullopt, 9, {7, "abc\tde\t"}},
        {"second name without a spare byte", file, std::nullopt, 8, {6, "abc\tde"}},
        {"second name cut", file, std::nullopt, 7, {5, "abc\td"}},
        {"second name gone", file, std::nullopt, 6, {4, "abc\t"}},
        {"first name without a spare byte", file, std::nullopt, 5, {3, "abc"}},
        {"first name cut", file, std::nullopt, 4, {2, "ab"}},
        {"first name gone", file, std::nullopt, 2, {0, ""}},
        {"size one", file, std::nullopt, 1, {0, ""}},
    });
}

TEST(ProfileList, LetsNoShorterNameInOnceClosed)
{
    expectLists({
        {"sections", "[a]\n[long]\n[b]\n", std::nullopt, 6, {4, "a\tlo"}},
        {"keys", "[S]\na=1\nlong=1\nb=1\n", "S", 6, {4, "a\tlo"}},
        {"after a name of which nothing fits", "[a]\n[long]\n[]\n", std::nullopt, 4, {2, "a\t"}},
    });
}
