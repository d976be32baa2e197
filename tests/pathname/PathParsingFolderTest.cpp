// SPDX-License-Identifier: MIT
//
// Parses against the executable's folder.
#include "pathname/PathTestSupport.h"
#include "support/LocaleScope.h"
#include "support/WhereAmI.h"

#include <KtQtBase/PathName.h>

#include <gtest/gtest.h>

namespace {

using ktqtbase::test::Answers;
using ktqtbase::test::answersFrom;
using ktqtbase::test::answersFromWorkingFolder;
using ktqtbase::test::chars;
using ktqtbase::test::folderForPathOf;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::wide;
using ktqtbase::test::WorkingFolder;

std::wstring executableFolder()
{
    return wide(std::filesystem::read_symlink("/proc/self/exe").parent_path());
}

// The folder of this program may have any letters, which convert in such a locale.
struct AnyFolder
{
    const ktqtbase::test::LocaleScope utf8{"C.UTF-8", LC_CTYPE};
};

// ---- This executable ---------------------------------------------------------------------------

TEST(Parse, TakesARelativeNameAsLyingInTheExecutablesFolder)
{
    const AnyFolder folder;
    const WorkingFolder working("/");
    CRbUiPathname name;
    ASSERT_EQ(name.Parse(L" \"a\\b\" ", false), 0);
    EXPECT_EQ(name.m_category, PC_RELATIVE);
    EXPECT_STREQ(name.GetPathString(), L"a/b");
    EXPECT_STREQ(chars(name.m_pRelPath), (executableFolder() + L"/").c_str());
    EXPECT_EQ(name.m_pVolume, nullptr);
}

TEST(Parse, FindsAFileOfTheExecutablesFolder)
{
    const AnyFolder folder;
    const WorkingFolder working("/");
    CRbUiPathname name;
    ASSERT_EQ(name.Parse(L"pathname-tests", true), 0);
    EXPECT_TRUE(name.m_type == PT_FILE || name.m_type == PT_DIRECTORY);
    ASSERT_EQ(name.Parse(L"missing", true), 0);
    EXPECT_EQ(name.m_type, PT_NOT_FOUND);
}

TEST(Parse, TakesRootedAndDriveNamesAsTheyAre)
{
    const AnyFolder folder;
    CRbUiPathname name;
    ASSERT_EQ(name.Parse(L"/a", false), 0);
    EXPECT_STREQ(chars(name.m_pRelPath), L"");
    ASSERT_EQ(name.Parse(L"c:\\a", false), 0);
    EXPECT_STREQ(name.GetPathString(), L"C:/a");
    EXPECT_EQ(name.m_pRelPath, nullptr);
}

TEST(Parse, Is1ForABadNameAndLeavesTheNameUnparsed)
{
    const AnyFolder folder;
    CRbUiPathname name;
    ASSERT_EQ(name.Parse(L"/a", false), 0);
    EXPECT_EQ(name.Parse(L"\\\\srv\\share", false), 1);
    EXPECT_EQ(name.m_pWork, nullptr);
    EXPECT_EQ(name.Parse(L"", false), 1);
}

TEST(Parse, Is1ForNullAndLeavesTheNameAlone)
{
    const AnyFolder folder;
    CRbUiPathname name;
    ASSERT_EQ(name.Parse(L"/a", false), 0);
    EXPECT_EQ(name.Parse(nullptr, false), 1);
    EXPECT_STREQ(name.GetPathString(), L"/a");
}

TEST(Parse, TakesANameOutOfItsOwnStrings)
{
    const AnyFolder folder;
    CRbUiPathname name;
    ASSERT_EQ(name.Parse(L"/first/second/a/name/that/takes/memory/of/its/own", false), 0);
    ASSERT_EQ(name.Parse(name.GetPathString() + 7, false), 0);
    EXPECT_STREQ(name.GetPathString(), L"second/a/name/that/takes/memory/of/its/own");
}

TEST(Parse, IsCalledThroughTheDispatchTable)
{
    struct Derived : CRbUiPathname
    {
        int Parse(const wchar_t*, bool) override { return 77; }
    } derived;
    CRbUiPathname& name = derived;
    EXPECT_EQ(name.Parse(L"/a", false), 77);
}

// ---- Executables elsewhere ---------------------------------------------------------------------

TEST(ParseElsewhere, FindsTheExecutableItself)
{
    const TemporaryFolder folder;
    Answers answers = answersFrom(folder / "ordin\u00e1rio");
    EXPECT_EQ(answers["relative.result"], "0");
    EXPECT_EQ(answers["relative"], "where_am_i");
    EXPECT_EQ(answers["relative.prefix"], (folder / "ordin\u00e1rio/").string());
    EXPECT_NE(answers["relative.type"], "1");
}

TEST(ParseElsewhere, Is4WhereTheExecutablesPathIsTooLong)
{
    const TemporaryFolder folder;
    Answers answers = answersFrom(folderForPathOf(1024, folder));
    for (const std::string name : {"relative", "rooted", "drive"}) {
        EXPECT_EQ(answers[name + ".result"], "4") << name;
        EXPECT_EQ(answers[name], "/kept") << name;
        EXPECT_EQ(answers[name + ".prefix"], "") << name;
    }
    EXPECT_EQ(answers["null.result"], "1");
    EXPECT_EQ(answers["null"], "/kept");
}

TEST(ParseElsewhere, WorksWhereTheExecutablesPathJustFits)
{
    const TemporaryFolder folder;
    const std::filesystem::path place = folderForPathOf(1023, folder);
    Answers answers = answersFrom(place);
    EXPECT_EQ(answers["relative.result"], "0");
    EXPECT_EQ(answers["relative.prefix"], place.string() + "/");
}

TEST(ParseElsewhere, Is4WhereTheExecutablesPathDoesNotConvert)
{
    const TemporaryFolder folder;
    Answers answers = answersFrom(folder / "a\xff");
    EXPECT_EQ(answers["relative.result"], "4");
    EXPECT_EQ(answers["relative"], "/kept");
    EXPECT_EQ(answers["rooted.result"], "4");
    EXPECT_EQ(answers["null.result"], "1");
}

// A folder so deep that the system has no path for the executable.
TEST(ParseElsewhere, RefusesRelativeNamesOnlyWhereTheExecutablesPathIsUnknown)
{
    const TemporaryFolder folder;
    const WorkingFolder working(folder.path());
    for (int level = 0; level < 25; ++level) {
        const std::string name(200, 'a');
        std::filesystem::create_directory(name);
        std::filesystem::current_path(name);
    }
    Answers answers = answersFromWorkingFolder();
    EXPECT_EQ(answers["directory.result"], "0");
    EXPECT_EQ(answers["relative.result"], "1");
    EXPECT_EQ(answers["rooted.result"], "0");
    EXPECT_EQ(answers["rooted"], "/x");
    EXPECT_EQ(answers["drive.result"], "0");
    EXPECT_EQ(answers["drive"], "C:x");
}

} // namespace
