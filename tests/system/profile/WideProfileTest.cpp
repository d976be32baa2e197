// SPDX-License-Identifier: MIT
//
// The functions under Windows names: wide texts in, wide texts out.
#include "support/ScratchProfile.h"

#include <KtQtBase/windows/Profiles.h>

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cwchar>
#include <vector>

namespace {

constexpr wchar_t kWidePoison = L'\x5A5A';

struct WideAnswer
{
    unsigned int count;
    std::wstring text;
};

// Asks with a poisoned area of 1,100 characters and checks that nothing after the text's terminator
// is touched.
WideAnswer read(const wchar_t* section, const wchar_t* key, const wchar_t* defaultText,
                unsigned int size, const wchar_t* file)
{
    std::vector<wchar_t> area(1100, kWidePoison);
    const unsigned int count =
        GetPrivateProfileString(section, key, defaultText, area.data(), size, file);
    area.back() = L'\0';
    const std::wstring text = area.data();
    for (std::size_t at = text.size() + 1; at + 1 < area.size(); ++at) {
        if (area[at] != kWidePoison)
            ADD_FAILURE() << "written behind the text at " << at;
    }
    return {count, text};
}

class Utf8Locale
{
public:
    Utf8Locale() { std::setlocale(LC_CTYPE, "C.UTF-8"); }
    ~Utf8Locale() { std::setlocale(LC_CTYPE, "C"); }
};

} // namespace

TEST(GetPrivateProfileString, GivesTheValue)
{
    ScratchProfile profile("[Main]\nTitle = \"a b\"\nWidth=10\n");
    const std::wstring file = profile.wideName();
    EXPECT_EQ(read(L" Main ", L"Width", L"", 64, file.c_str()).text, L"10");
    EXPECT_EQ(read(L"Main", L"Width", L"", 64, file.c_str()).count, 2u);
    EXPECT_EQ(read(L"Main", L"Title", L"", 64, file.c_str()).text, L"a b");
    EXPECT_EQ(read(L"Main", L"Title", L"", 64, file.c_str()).count, 5u);
}

TEST(GetPrivateProfileString, GivesTheDefaultForWhatIsMissing)
{
    ScratchProfile profile("[Main]\nWidth=10\n");
    const std::wstring file = profile.wideName();
    EXPECT_EQ(read(L"main", L"Width", L"\"x\" ", 64, file.c_str()).text, L"x");
    EXPECT_EQ(read(L"Main", L"Height", L"x", 64, file.c_str()).text, L"x");
    EXPECT_EQ(read(L"Main", L"Width", L"\"x\" ", 64, L"/nowhere/app.ini").text, L"\"x\"");
    EXPECT_EQ(read(L"Main", L"Height", nullptr, 64, file.c_str()).text, L"");
}

TEST(GetPrivateProfileString, TakesNullAsTheEmptyTextAndGivesNoList)
{
    ScratchProfile profile("[Main]\nWidth=10\n[]\nk=5\n");
    const std::wstring file = profile.wideName();
    EXPECT_EQ(read(nullptr, L"k", L"x", 64, file.c_str()).text, L"5");
    EXPECT_EQ(read(nullptr, nullptr, L"x", 64, file.c_str()).text, L"x");
    EXPECT_EQ(read(L"Main", nullptr, L"x", 64, file.c_str()).text, L"x");
    EXPECT_EQ(read(L"Main", L"Width", L"x", 64, nullptr).text, L"x");
    EXPECT_EQ(read(nullptr, nullptr, nullptr, 64, nullptr).count, 0u);
}

TEST(GetPrivateProfileString, CutsTheValueToTheRoom)
{
    ScratchProfile profile("[S]\nk=abcdef\n");
    const std::wstring file = profile.wideName();
    EXPECT_EQ(read(L"S", L"k", L"", 7, file.c_str()).text, L"abcdef");
    EXPECT_EQ(read(L"S", L"k", L"", 6, file.c_str()).text, L"abcde");
    EXPECT_EQ(read(L"S", L"k", L"", 6, file.c_str()).count, 5u);
    EXPECT_EQ(read(L"S", L"k", L"", 2, file.c_str()).text, L"a");
    EXPECT_EQ(read(L"S", L"k", L"", 1, file.c_str()).text, L"");
}

TEST(GetPrivateProfileString, WritesNothingWithoutRoom)
{
    ScratchProfile profile("[S]\nk=abcdef\n");
    const std::wstring file = profile.wideName();
    wchar_t area[] = {kWidePoison};
    EXPECT_EQ(GetPrivateProfileString(L"S", L"k", L"", area, 0, file.c_str()), 0u);
    EXPECT_EQ(area[0], kWidePoison);
    EXPECT_EQ(GetPrivateProfileString(L"S", L"k", L"", nullptr, 64, file.c_str()), 6u);
}

TEST(GetPrivateProfileString, CountsRoomAbove1024As1024)
{
    ScratchProfile profile("[S]\nk=" + std::string(3000, 'v') + "\n");
    const std::wstring file = profile.wideName();
    for (const unsigned int size : {1024u, 1025u, 4096u, unsigned(INT_MAX), UINT_MAX}) {
        SCOPED_TRACE(size);
        const WideAnswer answer = read(L"S", L"k", L"", size, file.c_str());
        EXPECT_EQ(answer.count, 1023u);
        EXPECT_EQ(answer.text, std::wstring(1023, L'v'));
    }
}

TEST(GetPrivateProfileString, CountsBytesOfTheLocale)
{
    const Utf8Locale locale;
    ScratchProfile profile("[\xC3\xA9]\n\xE2\x82\xAC=\xC3\xA9\xF0\x9F\x98\x80\n");
    const std::wstring file = profile.wideName();
    const WideAnswer answer = read(L"\u00E9", L"\u20AC", L"", 64, file.c_str());
    EXPECT_EQ(answer.text, L"\u00E9\U0001F600");
    EXPECT_EQ(answer.count, 6u);
}

TEST(GetPrivateProfileString, EndsTheValueWhereItDoesNotConvertBack)
{
    const Utf8Locale locale;
    ScratchProfile profile("[S]\nbad=ab\xFF"
                           "c\nlong=ab\xC3\xA9\n");
    const std::wstring file = profile.wideName();
    EXPECT_EQ(read(L"S", L"bad", L"", 64, file.c_str()).text, L"ab");
    EXPECT_EQ(read(L"S", L"bad", L"", 64, file.c_str()).count, 4u);
    EXPECT_EQ(read(L"S", L"long", L"", 4, file.c_str()).text, L"ab");
    EXPECT_EQ(read(L"S", L"long", L"", 4, file.c_str()).count, 3u);
}

TEST(GetPrivateProfileString, FindsNothingUnderANameThatDoesNotConvert)
{
    std::setlocale(LC_CTYPE, "C");
    ScratchProfile profile("[]\nk=1\n[]]\n==2\n[S]\nk=5\n");
    const std::wstring file = profile.wideName();
    EXPECT_EQ(read(L"\u20AC", L"k", L"x", 64, file.c_str()).text, L"x");
    EXPECT_EQ(read(L"S", L"\u20AC", L"x", 64, file.c_str()).text, L"x");
    EXPECT_EQ(read(L"S", L"missing", L"\u20AC", 64, file.c_str()).text, L"");
    EXPECT_EQ(read(L"S", L"k", L"x", 64, L"\u20AC").text, L"x");
}

TEST(GetPrivateProfileString, FindsNothingUnderANameOf1024Bytes)
{
    const std::string longest(1023, 'n');
    const std::string tooLong(1024, 'n');
    ScratchProfile profile("[" + tooLong + "]\nk=1\n[" + longest + "]\n" + tooLong + "=2\n" +
                           longest + "=3\n");
    const std::wstring file = profile.wideName();
    const std::wstring wideLongest(1023, L'n');
    const std::wstring wideTooLong(1024, L'n');
    EXPECT_EQ(read(wideTooLong.c_str(), L"k", L"x", 64, file.c_str()).text, L"x");
    EXPECT_EQ(read(wideLongest.c_str(), wideTooLong.c_str(), L"x", 64, file.c_str()).text, L"x");
    EXPECT_EQ(read(wideLongest.c_str(), wideLongest.c_str(), L"x", 64, file.c_str()).text, L"3");
}

TEST(GetPrivateProfileString, FindsNoFileUnderANameOf1024Bytes)
{
    ScratchProfile profile("[S]\nk=5\n");
    const std::string& folder = profile.folder();
    const std::wstring start(folder.begin(), folder.end());
    const std::wstring end = L"app.ini";
    for (const std::size_t length : {1023u, 1024u, 1025u}) {
        const std::wstring slashes(length - start.size() - end.size(), L'/');
        const WideAnswer answer = read(L"S", L"k", L"\"x\"", 64, (start + slashes + end).c_str());
        EXPECT_EQ(answer.text, length < 1024 ? L"5" : L"\"x\"") << length;
    }
}

TEST(GetPrivateProfileString, CountsTheQuotesOfAValueThatHoldsNothingElse)
{
    ScratchProfile profile("[S]\nk=\"\"\"\"\n");
    const WideAnswer answer = read(L"S", L"k", L"x", 64, profile.wideName().c_str());
    EXPECT_EQ(answer.text, L"");
    EXPECT_EQ(answer.count, 4u);
}

TEST(GetPrivateProfileString, TakesADefaultUpTo1023Bytes)
{
    ScratchProfile profile("[S]\n");
    const std::wstring file = profile.wideName();
    const std::wstring longest(1023, L'd');
    EXPECT_EQ(read(L"S", L"k", longest.c_str(), 1024, file.c_str()).text, longest);
    EXPECT_EQ(read(L"S", L"k", (longest + L"d").c_str(), 1024, file.c_str()).text, L"");
}

TEST(GetPrivateProfileInt, ReadsTheNumberAtTheValuesBeginning)
{
    struct
    {
        const char* value;
        int expected;
    } const rows[] = {
        {"42", 42},
        {"12abc", 12},
        {"-5", -5},
        {"+5", 5},
        {"\"7\"", 7},
        {"abc", 0},
        {"", 0},
        {"1.9", 1},
        {"0x10", 0},
        {"010", 10},
        {"- 5", 0},
        {"2147483647", INT_MAX},
        {"-2147483648", INT_MIN},
        {"000000000000000000000000000000000000000000000000000000000000012", 12},
        {"0000000000000000000000000000000000000000000000000000000000000012", 1},
    };
    ScratchProfile profile("");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        profile.rewrite(std::string("[S]\nk=") + row.value + "\n");
        EXPECT_EQ(GetPrivateProfileInt(L"S", L"k", 99, profile.wideName().c_str()), row.expected);
    }
}

TEST(GetPrivateProfileInt, GivesZeroAndNeverItsDefault)
{
    ScratchProfile profile("[S]\nk=5\n");
    const std::wstring file = profile.wideName();
    EXPECT_EQ(GetPrivateProfileInt(L"S", L"missing", 7, file.c_str()), 0);
    EXPECT_EQ(GetPrivateProfileInt(L"T", L"k", 7, file.c_str()), 0);
    EXPECT_EQ(GetPrivateProfileInt(L"S", L"k", 7, L"/nowhere/app.ini"), 0);
    EXPECT_EQ(GetPrivateProfileInt(nullptr, nullptr, 7, file.c_str()), 0);
    EXPECT_EQ(GetPrivateProfileInt(L"S", L"k", 7, nullptr), 0);
}

TEST(WritePrivateProfileString, SaysSuccessAndLeavesTheFile)
{
    const std::string bytes = "[S]\nk=5\n";
    ScratchProfile profile(bytes);
    const std::wstring file = profile.wideName();
    EXPECT_EQ(WritePrivateProfileString(L"S", L"k", L"6", file.c_str()), 1);
    EXPECT_TRUE(WritePrivateProfileString(nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(profile.bytes(), bytes);
}

TEST(WritePrivateProfileString, MakesNoFile)
{
    ScratchProfile profile("");
    profile.remove();
    EXPECT_TRUE(WritePrivateProfileString(L"S", L"k", L"6", profile.wideName().c_str()));
    std::FILE* const file = std::fopen(profile.name(), "r");
    EXPECT_EQ(file, nullptr);
}

TEST(GetPrivateProfileSectionNames, TouchesNothing)
{
    ScratchProfile profile("[S]\nk=5\n");
    wchar_t area[] = {kWidePoison, kWidePoison};
    EXPECT_EQ(GetPrivateProfileSectionNames(area, 2, profile.wideName().c_str()), 0u);
    EXPECT_EQ(area[0], kWidePoison);
    EXPECT_EQ(GetPrivateProfileSectionNames(nullptr, 0, nullptr), 0u);
}
