// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

#include <KtQtBase/windows/Files.h>

namespace {

// The folder of this program may have any letters, which convert in such a locale.
struct AnyFolder
{
    const ktqtbase::test::LocaleScope utf8{"C.UTF-8", LC_CTYPE};
};

std::wstring executablesFolder()
{
    wchar_t folder[1024] = {};
    EXPECT_NE(GetCurrentDirectoryW(1024, folder), 0u);
    return folder;
}

std::wstring fullPathOf(const CRbUiPathname& name)
{
    CStdStr<wchar_t> path;
    name.GetFullPath(path);
    return path;
}

} // namespace

TEST(ApplicationPathName, ParsesRelativeNamesOnlyInsideAPrefix)
{
    const PrefixScope unparsed;
    CRnUiPathname name;
    EXPECT_EQ(name.Parse(L"docs\\f.txt", false), 1);
    expectUnparsed(name);
    EXPECT_EQ(name.Parse(L"/no/such/f.txt", false), 0);
    EXPECT_EQ(name.Parse(L"q:f.txt", true), 0);
    EXPECT_EQ(workOf(name), L"Q:f.txt");
}

TEST(ApplicationPathName, ParsesRelativeNamesInThePrefix)
{
    const AnyFolder folder;
    const PrefixScope unparsed;
    ASSERT_TRUE(ktuiSetCurrentDirPrefix());
    CRnUiPathname name;
    EXPECT_EQ(name.Parse(L"docs\\f.txt", false), 0);
    EXPECT_EQ(workOf(name), L"docs/f.txt");
    EXPECT_EQ(prefixOf(name), executablesFolder() + L"/");
    EXPECT_EQ(fullPathOf(name), executablesFolder() + L"/docs/f.txt");
}

TEST(ApplicationPathName, RefusesNullAndStaysAsItWas)
{
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(L"/no/such/f.txt", false), 0);
    const auto before = fieldsOf(name);
    EXPECT_EQ(name.Parse(nullptr, false), 1);
    EXPECT_EQ(fieldsOf(name), before);
    EXPECT_EQ(name.Parse(L"a:b:c", false), 1);
    expectUnparsed(name);
}

TEST(ApplicationPathName, IsParsedThroughItsBase)
{
    const AnyFolder folder;
    const PrefixScope unparsed;
    CRnUiPathname name;
    CRbUiPathname& base = name;
    EXPECT_EQ(base.Parse(L"f.txt", false), 1);
    EXPECT_EQ(CRbUiPathname().Parse(L"f.txt", false), 0);
}

TEST(ApplicationPathName, IsCopiedWithStringsOfItsOwn)
{
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(L"/no/such/f.txt", false), 0);
    const CRnUiPathname copy(name);
    EXPECT_EQ(fieldsOf(copy), fieldsOf(name));
    EXPECT_NE(copy.m_pWork, name.m_pWork);
    EXPECT_NE(copy.m_pRelPath, name.m_pRelPath);
    const CRnUiPathname unparsed;
    expectUnparsed(CRnUiPathname(unparsed));
}

TEST(ApplicationPathName, AssignsFromBothClasses)
{
    const HandMadePath base(PC_DRIVE, L"C:/x");
    CRnUiPathname derived;
    ASSERT_EQ(derived.Parse(L"/no/such/f.txt", false), 0);
    CRnUiPathname name;
    name.AssignCopy(base);
    EXPECT_EQ(fieldsOf(name), fieldsOf(base));
    name.AssignCopy(derived);
    EXPECT_EQ(fieldsOf(name), fieldsOf(derived));
}

TEST(ApplicationPathName, OpensNothing)
{
    auto* const poison = reinterpret_cast<IKtFile*>(0x5A5A);
    IKtFile* file = poison;
    CRnUiPathname name;
    EXPECT_EQ(name.Open(&file, L"r"), 0);
    EXPECT_EQ(name.Open(nullptr, nullptr), 0);
    EXPECT_EQ(file, poison);
}

TEST(SetCurrentDirPrefix, TakesTheExecutablesFolderWithASeparator)
{
    const AnyFolder folder;
    const PrefixScope unparsed;
    EXPECT_TRUE(ktuiSetCurrentDirPrefix());
    EXPECT_EQ(workOf(g_CurrentDirPrefix), executablesFolder() + L"/");
    EXPECT_EQ(prefixOf(g_CurrentDirPrefix), L"");
    EXPECT_EQ(g_CurrentDirPrefix.m_category, PC_ROOTED);
}

TEST(SetCurrentDirPrefix, ReplacesAnEarlierPrefix)
{
    const AnyFolder folder;
    const PrefixScope unparsed;
    ASSERT_EQ(g_CurrentDirPrefix.ParseRelative(L"/somewhere/else/", nullptr, false), 0);
    EXPECT_TRUE(ktuiSetCurrentDirPrefix());
    EXPECT_EQ(workOf(g_CurrentDirPrefix), executablesFolder() + L"/");
    EXPECT_TRUE(ktuiSetCurrentDirPrefix());
    EXPECT_EQ(workOf(g_CurrentDirPrefix), executablesFolder() + L"/");
}
