// SPDX-License-Identifier: MIT
//
// A program with a function of its own in place of one that the library calls. The tests of path objects
// replace the others.
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr unsigned int kFolder = 0x10;

std::vector<std::wstring> g_asked;
unsigned int g_answer = 0;

} // namespace

unsigned int GetFileAttributes(const wchar_t* lpFileName)
{
    g_asked.emplace_back(lpFileName);
    return g_answer;
}

namespace {

path_type typeWhereTheAnswerIs(unsigned int answer)
{
    g_answer = answer;
    CRnUiPathname path;
    path.ParseRelative(L"c:\\dir\\name", nullptr, false);
    return path.m_type;
}

TEST(OwnGetFileAttributes, IsAskedByAParse)
{
    g_asked.clear();
    EXPECT_EQ(typeWhereTheAnswerIs(kFolder), PT_DIRECTORY);
    EXPECT_EQ(typeWhereTheAnswerIs(0), PT_FILE);
    EXPECT_EQ(typeWhereTheAnswerIs(INVALID_FILE_ATTRIBUTES), PT_NOT_FOUND);
    EXPECT_EQ(g_asked, std::vector<std::wstring>(3, L"C:/dir/name"));
}

TEST(OwnGetFileAttributes, IsAskedByExists)
{
    CRnUiPathname path;
    g_answer = INVALID_FILE_ATTRIBUTES;
    path.ParseRelative(L"c:\\name", nullptr, false);
    g_asked.clear();
    EXPECT_FALSE(path.Exists());
    g_answer = 0;
    EXPECT_TRUE(path.Exists());
    EXPECT_EQ(g_asked, std::vector<std::wstring>(2, L"C:/name"));
}

} // namespace
