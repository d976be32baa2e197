// SPDX-License-Identifier: MIT
#include <KtOsBase/KtOsBase.h>

#include "support/LocaleScope.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using ktqtbase::test::LocaleScope;

constexpr wchar_t kPoison = 0x7E7E;

TEST(_wcsinc, GivesTheNextPosition)
{
    const wchar_t text[] = L"a\u00e9\U0001F600";
    EXPECT_EQ(_wcsinc(text), text + 1);
    EXPECT_EQ(_wcsinc(text + 1), text + 2);
    EXPECT_EQ(_wcsinc(text + 2), text + 3);
}

TEST(_wcsnextc, GivesTheCharacterAtThePosition)
{
    const wchar_t text[] = L"a\u00e9\U0001F600\x7fffffff";
    EXPECT_EQ(_wcsnextc(text), 0x61u);
    EXPECT_EQ(_wcsnextc(text + 1), 0xE9u);
    EXPECT_EQ(_wcsnextc(text + 2), 0x1F600u);
    EXPECT_EQ(_wcsnextc(text + 3), 0x7FFFFFFFu);
    EXPECT_EQ(_wcsnextc(text + 4), 0u);
}

TEST(_wcsnextc, WalksATextWithTheNextPosition)
{
    std::wstring seen;
    for (const wchar_t* p = L"name"; _wcsnextc(p) != 0; p = _wcsinc(p))
        seen += static_cast<wchar_t>(_wcsnextc(p));
    EXPECT_EQ(seen, L"name");
}

TEST(swprintf, WritesTheTextAndItsTerminator)
{
    wchar_t buffer[16];
    std::wmemset(buffer, kPoison, 16);
    EXPECT_EQ(swprintf(buffer, L"%ls%05d|%c", L"ab", 42, 'x'), 9);
    EXPECT_STREQ(buffer, L"ab00042|x");
    EXPECT_EQ(buffer[10], kPoison);
}

TEST(swprintf, WritesAnEmptyText)
{
    wchar_t buffer[] = L"poison";
    EXPECT_EQ(swprintf(buffer, L"%ls", L""), 0);
    EXPECT_STREQ(buffer, L"");
    EXPECT_EQ(buffer[1], L'o');
}

TEST(swprintf, WritesTextsOfEveryLength)
{
    for (std::size_t length : {1022u, 1023u, 1024u, 1025u, 4095u, 4096u, 100000u}) {
        const std::wstring text(length, L'\u00e9');
        std::wstring buffer(length + 4, kPoison);
        EXPECT_EQ(swprintf(buffer.data(), L"%ls", text.c_str()), static_cast<int>(length));
        EXPECT_EQ(buffer, text + L'\0' + std::wstring(3, kPoison)) << length;
    }
}

TEST(swprintf, GivesTheEmptyTextForAnArgumentThatDoesNotConvert)
{
    const LocaleScope utf8("C.UTF-8", LC_CTYPE);
    wchar_t buffer[] = L"poison";
    EXPECT_EQ(swprintf(buffer, L"a%s", "\xff"), -1);
    EXPECT_STREQ(buffer, L"");
    EXPECT_EQ(buffer[1], L'o');
}

TEST(IsDBCSLeadByte, IsNeverTrue)
{
    for (int byte = 0; byte <= 0xFF; ++byte)
        EXPECT_EQ(IsDBCSLeadByte(static_cast<unsigned char>(byte)), 0) << byte;
}

// An empty folder for one test, in which names are narrowed as UTF-8.
class Rename : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string name = (fs::temp_directory_path() / "osbase-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        m_folder = name;
    }
    void TearDown() override { fs::remove_all(m_folder); }

    std::wstring path(const std::wstring& name) const { return m_folder.wstring() + L'/' + name; }

    std::wstring makeFile(const char* name) const
    {
        std::ofstream(m_folder / name) << name;
        return path(fs::path(name).wstring());
    }

    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(m_folder))
            found.push_back(entry.path().filename().string());
        return found;
    }

    using Names = std::vector<std::string>;

    LocaleScope m_utf8{"C.UTF-8", LC_CTYPE};
    fs::path m_folder;
};

TEST_F(Rename, GivesAFileItsNewName)
{
    const std::wstring old = makeFile("old");
    EXPECT_EQ(_wrename(old.c_str(), path(L"new").c_str()), 0);
    EXPECT_EQ(names(), Names{"new"});
}

TEST_F(Rename, GivesAFolderItsNewName)
{
    fs::create_directory(m_folder / "old");
    EXPECT_EQ(_wrename(path(L"old").c_str(), path(L"new").c_str()), 0);
    EXPECT_EQ(names(), Names{"new"});
}

TEST_F(Rename, ConvertsNamesByTheProcessLocale)
{
    const std::wstring old = makeFile("old");
    const std::wstring accented = path(L"n\u00e9w\U0001F600");
    EXPECT_EQ(_wrename(old.c_str(), accented.c_str()), 0);
    EXPECT_EQ(names(), Names{"n\xc3\xa9w\xf0\x9f\x98\x80"});
    EXPECT_EQ(_wrename(accented.c_str(), old.c_str()), 0);
    EXPECT_EQ(names(), Names{"old"});
}

TEST_F(Rename, RefusesAMissingFile)
{
    EXPECT_EQ(_wrename(path(L"old").c_str(), path(L"new").c_str()), -1);
    EXPECT_EQ(names(), Names{});
}

TEST_F(Rename, RefusesAMissingFolder)
{
    const std::wstring old = makeFile("old");
    EXPECT_EQ(_wrename(old.c_str(), path(L"sub/new").c_str()), -1);
    EXPECT_EQ(names(), Names{"old"});
}

TEST_F(Rename, RefusesNamesThatDoNotConvert)
{
    const std::wstring old = makeFile("old");
    const std::wstring surrogate = path(std::wstring(L"new") + wchar_t{0xD800} + L"x");
    EXPECT_EQ(_wrename(old.c_str(), surrogate.c_str()), -1);
    EXPECT_EQ(_wrename(surrogate.c_str(), old.c_str()), -1);
    const LocaleScope plain("C", LC_CTYPE);
    EXPECT_EQ(_wrename(old.c_str(), path(L"n\u00e9w").c_str()), -1);
    EXPECT_EQ(names(), Names{"old"});
}

// Some C libraries write this value in more bytes than any code point takes, others refuse it.
TEST_F(Rename, NeverCutsAName)
{
    const std::wstring old = makeFile("old");
    const std::wstring odd(40, wchar_t{0x7FFFFFFF});
    std::string narrow(255, '\0');
    const std::size_t bytes = std::wcstombs(narrow.data(), odd.c_str(), narrow.size());
    const bool converts = bytes != static_cast<std::size_t>(-1);
    EXPECT_EQ(_wrename(old.c_str(), path(odd).c_str()), converts ? 0 : -1);
    EXPECT_EQ(names(), Names{converts ? narrow.substr(0, bytes) : "old"});
}

TEST_F(Rename, RefusesNull)
{
    const std::wstring old = makeFile("old");
    EXPECT_EQ(_wrename(nullptr, path(L"new").c_str()), -1);
    EXPECT_EQ(_wrename(old.c_str(), nullptr), -1);
    EXPECT_EQ(_wrename(nullptr, nullptr), -1);
    EXPECT_EQ(names(), Names{"old"});
}

} // namespace
