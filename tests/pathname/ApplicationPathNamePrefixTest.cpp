// SPDX-License-Identifier: MIT
//
// An invented folder of the executable: this program's own definition replaces the library's
// GetCurrentDirectoryW.
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

#include <KtQtBase/windows/Files.h>

#include <cwchar>

namespace {

const wchar_t* g_folder = nullptr;

} // namespace

unsigned int GetCurrentDirectoryW(unsigned int size, wchar_t* buffer)
{
    if (!g_folder)
        return 0;
    std::wcscpy(buffer, g_folder);
    return size;
}

TEST(SetCurrentDirPrefix, EmptiesThePrefixWhereThereIsNoFolder)
{
    const PrefixScope unparsed;
    for (const wchar_t* folder : {static_cast<const wchar_t*>(nullptr), L"", L"  ", L"/a:b",
                                  L"//server/share", L"relative"}) {
        SCOPED_TRACE(testing::Message() << folder);
        ASSERT_EQ(g_CurrentDirPrefix.ParseRelative(L"/earlier/", nullptr, false), 0);
        g_folder = folder;
        EXPECT_FALSE(ktuiSetCurrentDirPrefix());
        expectUnparsed(g_CurrentDirPrefix);
    }
}

TEST(SetCurrentDirPrefix, EndsThePrefixWithOneSeparator)
{
    const PrefixScope unparsed;
    for (const auto& [folder, prefix] :
         {std::make_pair(L"/opt/bin", L"/opt/bin/"), std::make_pair(L"/opt/bin/", L"/opt/bin/"),
          std::make_pair(L"/", L"/"), std::make_pair(L"q:\\bin", L"Q:/bin/"),
          std::make_pair(L"q:", L"Q:")}) {
        SCOPED_TRACE(folder);
        g_folder = folder;
        EXPECT_TRUE(ktuiSetCurrentDirPrefix());
        EXPECT_EQ(workOf(g_CurrentDirPrefix), prefix);
    }
}

TEST(SetCurrentDirPrefix, ServesNamesOfADriveToo)
{
    const PrefixScope unparsed;
    const ListedVolume volume(L"Q:");
    g_folder = L"q:\\bin";
    ASSERT_TRUE(ktuiSetCurrentDirPrefix());
    CRnUiPathname name;
    EXPECT_EQ(name.Parse(L"docs\\f.txt", false), 0);
    EXPECT_EQ(prefixOf(name), L"Q:/bin/");
    EXPECT_EQ(name.m_pVolume, &volume);
}

TEST(BaseParse, RefusesOnlyRelativeNamesWithoutAFolder)
{
    g_folder = nullptr;
    CRbUiPathname name;
    EXPECT_EQ(name.Parse(L"f.txt", false), 1);
    EXPECT_EQ(name.Parse(L"/no/such/f.txt", false), 0);
    EXPECT_EQ(name.Parse(L"q:f.txt", false), 0);
}

TEST(BaseParse, AnswersFourForABadFolderAndStaysAsItWas)
{
    CRbUiPathname name;
    g_folder = L"/opt";
    ASSERT_EQ(name.Parse(L"f.txt", false), 0);
    EXPECT_EQ(prefixOf(name), L"/opt/");
    const auto before = fieldsOf(name);
    g_folder = L"/a:b";
    EXPECT_EQ(name.Parse(L"/no/such/f.txt", false), 4);
    EXPECT_EQ(fieldsOf(name), before);
}
