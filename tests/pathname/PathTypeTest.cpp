// SPDX-License-Identifier: MIT
#include "pathname/PathTestSupport.h"
#include "support/LocaleScope.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/PathName.h>

#include <gtest/gtest.h>

namespace {

using ktqtbase::test::LocaleScope;
using ktqtbase::test::setMode;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::Text;
using ktqtbase::test::wide;
using ktqtbase::test::WorkingFolder;
using ktqtbase::test::writeFile;

// What a parse says of a name.
path_type typeOf(const std::filesystem::path& path)
{
    CRbUiPathname name;
    EXPECT_EQ(name.ParseRelative(wide(path).c_str(), nullptr, false), 0);
    return name.m_type;
}

// ---- The group's write permission --------------------------------------------------------------

TEST(PathType, IsDirectoryForAnythingTheGroupMayWrite)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    std::filesystem::create_directory(folder / "folder");
    setMode(folder / "file", 0620);
    setMode(folder / "folder", 0720);
    EXPECT_EQ(typeOf(folder / "file"), PT_DIRECTORY);
    EXPECT_EQ(typeOf(folder / "folder"), PT_DIRECTORY);
}

TEST(PathType, IsFileForAnythingTheGroupMayNotWrite)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    std::filesystem::create_directory(folder / "folder");
    setMode(folder / "file", 0757);
    setMode(folder / "folder", 0757);
    EXPECT_EQ(typeOf(folder / "file"), PT_FILE);
    EXPECT_EQ(typeOf(folder / "folder"), PT_FILE);
}

TEST(PathType, IsNotFoundForAMissingName)
{
    const TemporaryFolder folder;
    EXPECT_EQ(typeOf(folder / "missing"), PT_NOT_FOUND);
}

TEST(PathType, IsNotFoundForANameThatDoesNotConvert)
{
    const TemporaryFolder folder;
    writeFile(folder / "\u00e9", "");
    const LocaleScope scope("C");
    EXPECT_EQ(typeOf(folder / "\u00e9"), PT_NOT_FOUND);
}

TEST(PathType, IsTakenAnewByEveryParse)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    setMode(folder / "file", 0600);
    CRbUiPathname name;
    const std::wstring path = wide(folder / "file");
    ASSERT_EQ(name.ParseRelative(path.c_str(), nullptr, false), 0);
    EXPECT_EQ(name.m_type, PT_FILE);
    setMode(folder / "file", 0660);
    ASSERT_EQ(name.ParseRelative(path.c_str(), nullptr, false), 0);
    EXPECT_EQ(name.m_type, PT_DIRECTORY);
}

// ---- Where the name is looked for --------------------------------------------------------------

TEST(PathType, OfARelativeNameIsFoundBelowItsBase)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "sub");
    writeFile(folder / "sub/file", "");
    setMode(folder / "sub/file", 0600);
    CRbUiPathname base;
    CRbUiPathname name;
    ASSERT_EQ(base.ParseRelative(wide(folder.path()).c_str(), nullptr, false), 0);
    ASSERT_EQ(name.ParseRelative(L"sub\\file", &base, false), 0);
    EXPECT_EQ(name.m_type, PT_FILE);
}

TEST(PathType, OfADriveNameIsLookedForUnderItsText)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "C:");
    writeFile(folder / "C:/file", "");
    setMode(folder / "C:/file", 0600);
    const WorkingFolder working(folder.path());
    EXPECT_EQ(typeOf("c:\\file"), PT_FILE);
    EXPECT_EQ(typeOf("d:\\file"), PT_NOT_FOUND);
}

// ---- Wildcards ---------------------------------------------------------------------------------

TEST(PathType, IsWildcardForAPatternInTheLastComponent)
{
    EXPECT_EQ(typeOf("/tmp/*.txt"), PT_WILDCARD);
    EXPECT_EQ(typeOf("/tmp/a?"), PT_WILDCARD);
    EXPECT_EQ(typeOf("c:*"), PT_WILDCARD);
    EXPECT_EQ(typeOf("/*/"), PT_NOT_FOUND);
}

TEST(PathType, IsWildcardEvenWhereAFileOfThatNameExists)
{
    const TemporaryFolder folder;
    writeFile(folder / "a*b", "");
    EXPECT_EQ(typeOf(folder / "a*b"), PT_WILDCARD);
}

TEST(PathType, IsAskedForBelowAFolderWithAWildcardInItsName)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "a*b");
    writeFile(folder / "a*b/file", "");
    setMode(folder / "a*b/file", 0600);
    EXPECT_EQ(typeOf(folder / "a*b/file"), PT_FILE);
    EXPECT_EQ(typeOf(folder / "a*b/missing"), PT_NOT_FOUND);
}

// ---- GetAttributes -----------------------------------------------------------------------------

TEST(GetAttributes, FindsNoWildcardForAnUnparsedNameWithATypeElsewhere)
{
    CRbUiPathname name;
    name.m_pWork = new Text(L"/missing/*");
    path_type type = PT_FILE;
    name.GetAttributes(name.m_pWork, nullptr, &type);
    EXPECT_EQ(type, PT_NOT_FOUND);
    EXPECT_EQ(name.m_type, PT_NONE);
}

TEST(GetAttributes, FindsNothingWithoutAText)
{
    CRbUiPathname name;
    name.m_type = PT_FILE;
    path_type type = PT_DIRECTORY;
    name.GetAttributes(nullptr, nullptr, &type);
    EXPECT_EQ(type, PT_NOT_FOUND);
    name.GetAttributes(nullptr, nullptr, &name.m_type);
    EXPECT_EQ(name.m_type, PT_NOT_FOUND);
}

TEST(GetAttributes, FindsAWildcardForAnUnparsedNameInItsOwnType)
{
    CRbUiPathname name;
    name.m_pWork = new Text(L"/missing/*");
    name.GetAttributes(name.m_pWork, nullptr, &name.m_type);
    EXPECT_EQ(name.m_type, PT_WILDCARD);
}

TEST(GetAttributes, LooksForTheWildcardInTheObjectAndForTheFileInTheArguments)
{
    CRbUiPathname pattern;
    ASSERT_EQ(pattern.ParseRelative(L"/tmp/*", nullptr, false), 0);
    const Text plain(L"/missing/plain");
    path_type type = PT_NONE;
    pattern.GetAttributes(&plain, nullptr, &type);
    EXPECT_EQ(type, PT_WILDCARD);
}

TEST(GetAttributes, JoinsPrefixAndNameByASlash)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    setMode(folder / "file", 0660);
    CRbUiPathname name;
    const Text prefix(wide(folder.path()));
    const Text work(L"file");
    path_type type = PT_NONE;
    name.GetAttributes(&work, &prefix, &type);
    EXPECT_EQ(type, PT_DIRECTORY);
}

// ---- GetAttByPath ------------------------------------------------------------------------------

path_type attByPath(const Text& work, const Text* prefix)
{
    const Text* workPointer = &work;
    path_type type = PT_NONE;
    path_type* typePointer = &type;
    GetAttByPath(&workPointer, &prefix, &typePointer);
    return type;
}

TEST(GetAttByPath, TellsTheThreeTypesApart)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    const Text path(wide(folder / "file"));
    setMode(folder / "file", 0020);
    EXPECT_EQ(attByPath(path, nullptr), PT_DIRECTORY);
    setMode(folder / "file", 0757);
    EXPECT_EQ(attByPath(path, nullptr), PT_FILE);
    EXPECT_EQ(attByPath(path + L"x", nullptr), PT_NOT_FOUND);
}

TEST(GetAttByPath, PutsASlashBehindAnEmptyPrefixToo)
{
    const TemporaryFolder folder;
    setMode(folder.path(), 0700);
    const Text empty;
    const Text withoutRoot(wide(folder.path()).substr(1));
    EXPECT_EQ(attByPath(withoutRoot, &empty), PT_FILE);
    const WorkingFolder working(folder.path());
    EXPECT_EQ(attByPath(withoutRoot, nullptr), PT_NOT_FOUND);
}

TEST(GetAttByPath, TakesTheNameAloneWithoutAPrefix)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    setMode(folder / "file", 0600);
    const WorkingFolder working(folder.path());
    const Text work(L"file");
    const Text* workPointer = &work;
    path_type type = PT_NONE;
    path_type* typePointer = &type;
    GetAttByPath(&workPointer, nullptr, &typePointer);
    EXPECT_EQ(type, PT_FILE);
}

TEST(GetAttByPath, TakesAWildcardForAName)
{
    EXPECT_EQ(attByPath(Text(L"/missing/*"), nullptr), PT_NOT_FOUND);
}

} // namespace
