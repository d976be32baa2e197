// SPDX-License-Identifier: MIT
//
// Values: which line is found, what of it is given, and what the count says.
#include "support/ScratchProfile.h"

#include <KtQtBase/windows/Profiles.h>

#include <gtest/gtest.h>

#include <chrono>

namespace {

using std::string_literals::operator""s; // NOLINT(misc-unused-using-decls): it is used below.

struct ValueRow
{
    const char* name;
    std::string file;
    const char* section;
    const char* key;
    ProfileAnswer expected;
};

// Everything is asked with the default "none" and room for all.
void expectValues(std::initializer_list<ValueRow> rows)
{
    ScratchProfile profile("");
    for (const ValueRow& row : rows) {
        SCOPED_TRACE(row.name);
        profile.rewrite(row.file);
        const ProfileAnswer answer = profile.read({row.section, row.key, "none", 64});
        EXPECT_EQ(answer.text, row.expected.text);
        EXPECT_EQ(answer.count, row.expected.count);
    }
}

const ProfileAnswer kDefault{4, "none"};

} // namespace

TEST(ProfileValue, IsTheRestOfTheLineBehindTheFirstEqualsSign)
{
    expectValues({
        {"plain", "[S]\nk=5\n", "S", "k", {1, "5"}},
        {"blanks around both", "[S]\n \t k \t = \t 5 \t \n", "S", "k", {1, "5"}},
        {"all white space", "[S]\nk\v\f=\v\f5\v\f\n", "S", "k", {1, "5"}},
        {"inner blanks", "[S]\nk=a  b\n", "S", "k", {4, "a  b"}},
        {"more equals signs", "[S]\nk=a=b\n", "S", "k", {3, "a=b"}},
        {"equals signs only", "[S]\nk===\n", "S", "k", {2, "=="}},
        {"comment", "[S]\nk=5 ; five\n", "S", "k", {8, "5 ; five"}},
        {"empty", "[S]\nk=\nl=1\n", "S", "k", {0, ""}},
        {"blanks only", "[S]\nk= \t \nl=1\n", "S", "k", {0, ""}},
        {"no-break space and next line", "[S]\nk=\xA0\x85\n", "S", "k", {2, "\xA0\x85"}},
        {"bytes of UTF-8", "[S]\nk=\xC3\xA9\n", "S", "k", {2, "\xC3\xA9"}},
        {"first of two", "[S]\nk=1\nk=2\n", "S", "k", {1, "1"}},
        {"brackets", "[S]\nk=[T]\n", "S", "k", {3, "[T]"}},
    });
}

TEST(ProfileValue, LosesQuotesWhileItsCountKeepsThem)
{
    expectValues({
        {"pair", "[S]\nk=\"a b\"\n", "S", "k", {5, "a b"}},
        {"many", "[S]\nk=\"\"\"a\"\"\n", "S", "k", {6, "a"}},
        {"leading only", "[S]\nk=\"a\n", "S", "k", {2, "a"}},
        {"trailing only", "[S]\nk=a\"\n", "S", "k", {2, "a"}},
        {"nothing else", "[S]\nk=\"\"\"\n", "S", "k", {3, ""}},
        {"one", "[S]\nk=\"\n", "S", "k", {1, ""}},
        {"inner", "[S]\nk=a\"b\n", "S", "k", {3, "a\"b"}},
        {"blanks inside stay", "[S]\nk=\" a \"\n", "S", "k", {5, " a "}},
        {"single quotes stay", "[S]\nk='a'\n", "S", "k", {3, "'a'"}},
    });
}

TEST(ProfileValue, IsFoundWhateverEndsTheLines)
{
    expectValues({
        {"LF", "[S]\nj=1\nk=5\nl=2\n", "S", "k", {1, "5"}},
        {"CRLF", "[S]\r\nj=1\r\nk=5\r\nl=2\r\n", "S", "k", {1, "5"}},
        {"CR", "[S]\rj=1\rk=5\rl=2\r", "S", "k", {1, "5"}},
        {"LFCR", "[S]\n\rk=5\n\rl=2\n\r", "S", "k", {1, "5"}},
        {"no end at the last line", "[S]\nk=5", "S", "k", {1, "5"}},
        {"CR behind the last LF", "[S]\nj=1\nk=5\rl=2", "S", "k", {1, "5"}},
        {"LF last joins the CR lines before it", "[S]\rk=5\rl=2\n", "S", "k", kDefault},
        {"CR line joins the LF line behind it", "[S]\nk=5\rl=2\n", "S", "k", {5, "5\rl=2"}},
        {"empty lines", "\n\n[S]\n\n \n\t\nk=5\n", "S", "k", {1, "5"}},
        {"blanks before the header", " \t[S]\nk=5\n", "S", "k", {1, "5"}},
    });
}

TEST(ProfileValue, IsReadUpToTheFirstZeroByte)
{
    expectValues({
        {"zero in the value", "[S]\nk=5\0006\n"s, "S", "k", {1, "5"}},
        {"zero before the key", "[S]\n\0k=5\n"s, "S", "k", kDefault},
        {"zero in the header", "[S\0]\nk=5\n"s, "S", "k", kDefault},
        {"zero first", "\0[S]\nk=5\n"s, "S", "k", kDefault},
        {"LF behind the zero", "[S]\rk=5\rl=2\0\n"s, "S", "k", {1, "5"}},
        {"byte-order mark", "\xEF\xBB\xBF[S]\nk=5\n", "S", "k", kDefault},
        {"UTF-16 mark before bytes", "\xFF\xFE[S]\nk=5\n", "S", "k", kDefault},
        {"UTF-16", "\xFF\xFE[\0S\0]\0\n\0k\0=\0005\0\n\0"s, "S", "k", kDefault},
    });
}

TEST(ProfileValue, TakesControlBytesForOrdinaryOnes)
{
    expectValues({
        {"0x1F is no white space", "[S]\nk=\x1F 5 \x1F\n", "S", "k", {5, "\x1F 5 \x1F"}},
        {"0x1F after the key", "[S]\nk\x1F=5\n", "S", "k", kDefault},
        {"0x1F in the argument", "[S]\nk\x1F=5\n", "S", "k\x1F", {1, "5"}},
        {"0x1F around the header", "\x1F[S]\nk=5\n", "S", "k", kDefault},
        {"Ctrl-Z does not end the file", "[S]\nj=\x1A\n\x1A\nk=5\n", "S", "k", {1, "5"}},
        {"Ctrl-Z in the value", "[S]\nk=5\x1A\n", "S", "k", {2, "5\x1A"}},
    });
}

TEST(ProfileSection, NameIsWhatStandsBetweenTheBrackets)
{
    expectValues({
        {"text behind it", "[S] x\nk=5\n", "S", "k", {1, "5"}},
        {"second bracket", "[S]]\nk=5\n", "S", "k", {1, "5"}},
        {"second bracket of a line that opens another", "[T [S]\nk=5\n", "S", "k", kDefault},
        {"second bracket of a line that begins alike", "[S x[S]\nk=5\n", "S", "k", kDefault},
        {"bracket inside", "[[S]\nk=5\n", "[S", "k", {1, "5"}},
        {"blanks inside count", "[ S ]\nk=5\n", "S", "k", kDefault},
        {"argument is trimmed", "[S]\nk=5\n", " \t\r\n\v\fS\f ", "k", {1, "5"}},
        {"argument keeps inner blanks", "[S T]\nk=5\n", " S T ", "k", {1, "5"}},
        {"case", "[s]\nk=5\n", "S", "k", kDefault},
        {"beginning of a longer name", "[ST]\nk=5\n", "S", "k", kDefault},
        {"longer than the name", "[S]\nk=5\n", "ST", "k", kDefault},
        {"empty name", "[]\nk=5\n", "", "k", {1, "5"}},
        {"empty name, blank argument", "[]\nk=5\n", " \t", "k", {1, "5"}},
        {"empty argument, named section", "[S]\nk=5\n", "", "k", kDefault},
    });
}

TEST(ProfileSection, GoesOnToTheEndOfTheFileOnceMet)
{
    expectValues({
        {"later section", "[Main]\nWidth = 10\n[Other]\nHeight=5\n", "Main", "Height", {1, "5"}},
        {"own key first", "[S]\nk=1\n[T]\nk=2\n", "S", "k", {1, "1"}},
        {"earlier section", "[T]\nk=2\n[S]\nl=1\n", "S", "k", kDefault},
        {"earlier key of that name", "[T]\nk=2\n[S]\nk=1\n", "S", "k", {1, "1"}},
        {"before any section", "k=2\n[S]\nl=1\n", "S", "k", kDefault},
        {"met twice", "[S]\nj=1\n[T]\n[S]\nk=5\n", "S", "k", {1, "5"}},
    });
}

TEST(ProfileSection, HeaderWithoutABracketIsAKeyLine)
{
    expectValues({
        {"key", "[S]\n[x=5\n", "S", "[x", {1, "5"}},
        {"header with an equals sign", "[S]\n[x=5]\n", "S", "[x", kDefault},
        {"opens nothing", "[S\nk=5\n", "S", "k", kDefault},
        {"bracket behind the first character", "[S]\nx[T]=5\n", "S", "x[T]", {1, "5"}},
    });
}

TEST(ProfileKey, IsComparedExactly)
{
    expectValues({
        {"case", "[S]\nK=5\n", "S", "k", kDefault},
        {"beginning of a longer name", "[S]\nkey=5\n", "S", "k", kDefault},
        {"longer than the name", "[S]\nk=5\n", "S", "key", kDefault},
        {"argument is trimmed", "[S]\nk=5\n", "S", "\t k \n", {1, "5"}},
        {"inner blanks", "[S]\na b=5\n", "S", "a b", {1, "5"}},
        {"semicolon", "[S]\n;x=1\n", "S", ";x", {1, "1"}},
        {"no comments", "[S]\n; x\n#y=2\n", "S", "#y", {1, "2"}},
        {"no equals sign", "[S]\nk\n", "S", "k", kDefault},
        {"no name", "[S]\n=5\n", "S", "", kDefault},
        {"blank name", "[S]\n =5\n", "S", " ", kDefault},
        {"empty argument", "[S]\nk=5\n", "S", "", kDefault},
        {"quotes count", "[S]\n\"k\"=5\n", "S", "k", kDefault},
    });
}

TEST(ProfileName, MayBeLongerThanAnyBuffer)
{
    const std::string section(3000, 's');
    const std::string key(2000, 'k');
    ScratchProfile profile("[" + section + "]\n" + key + "=5\n");
    EXPECT_EQ(profile.read({section, key, "none", 64}).text, "5");
    EXPECT_EQ(profile.read({section, key.substr(0, 1023), "none", 64}).text, "none");
    EXPECT_EQ(profile.read({section.substr(0, 1023), key, "none", 64}).text, "none");
}

TEST(ProfileValue, IsCutToTheRoom)
{
    ScratchProfile profile("[S]\nk=abcdef\nq=\"abcd\"\n");
    struct
    {
        const char* name;
        const char* key;
        int size;
        ProfileAnswer expected;
    } const rows[] = {
        {"larger", "k", 8, {6, "abcdef"}},
        {"exact", "k", 7, {6, "abcdef"}},
        {"one short", "k", 6, {5, "abcde"}},
        {"two", "k", 2, {1, "a"}},
        {"one", "k", 1, {0, ""}},
        {"none", "k", 0, {0, ""}},
        {"negative", "k", -1, {0, ""}},
        {"closing quote cut off", "q", 6, {5, "abcd"}},
        {"opening quote alone", "q", 2, {1, ""}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const ProfileAnswer answer = profile.read({"S", row.key, "none", row.size});
        EXPECT_EQ(answer.text, row.expected.text);
        EXPECT_EQ(answer.count, row.expected.count);
    }
}

TEST(ProfileValue, WithoutAnAreaIsNotRead)
{
    ScratchProfile profile("[S]\nk=5\n");
    char key[] = "k";
    for (const int size : {0, 1, 2, 64})
        EXPECT_EQ(read_profile_string("S", key, nullptr, nullptr, size, profile.name()), 0);
}

TEST(ProfileDefault, LosesSpacesAtItsEndButNotItsFirstCharacter)
{
    struct
    {
        const char* name;
        std::optional<std::string> text;
        int size;
        ProfileAnswer expected;
    } const rows[] = {
        {"plain", "ab", 64, {2, "ab"}},
        {"spaces behind", "ab   ", 64, {2, "ab"}},
        {"spaces before", "  ab", 64, {4, "  ab"}},
        {"spaces only", "   ", 64, {1, " "}},
        {"tab stays", "ab\t", 64, {3, "ab\t"}},
        {"spaces before a tab stay", "ab \t ", 64, {4, "ab \t"}},
        {"empty", "", 64, {0, ""}},
        {"null", std::nullopt, 64, {0, ""}},
        {"quotes", "\"a b\"", 64, {5, "a b"}},
        {"quotes and spaces", "\"a\"  ", 64, {3, "a"}},
        {"cut", "abcdef", 4, {3, "abc"}},
        {"exact", "abc", 4, {3, "abc"}},
        {"cut after spaces", "a    b", 4, {3, "a  "}},
    };
    ScratchProfile profile("[S]\nk=5\n");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const ProfileAnswer answer = profile.read({"S", "missing", row.text, row.size});
        EXPECT_EQ(answer.text, row.expected.text);
        EXPECT_EQ(answer.count, row.expected.count);
    }
}

TEST(ProfileArguments, AreNotChanged)
{
    ScratchProfile profile("[S]\nj=5\n");
    char key[] = " k ";
    char defaultText[] = "\"none\"  ";
    char out[64];
    read_profile_string(" S ", key, defaultText, out, sizeof out, profile.name());
    EXPECT_STREQ(key, " k ");
    EXPECT_STREQ(defaultText, "\"none\"  ");
    EXPECT_STREQ(out, "none");
}

TEST(ProfileValue, IsFoundInOneWalkThroughCarriageReturns)
{
    std::string text = "[S]\r";
    for (int line = 0; line < 500000; ++line)
        text += "a=\r";
    ScratchProfile profile(text + "k=5");
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(profile.read({"S", "k", "none", 64}).text, "5");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}
