// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

#include <stdexcept>

namespace {

const auto kInvalidHandle = reinterpret_cast<void*>(-1);

struct OpenRow
{
    path_type type;
    void* handle;
};

struct FileSystemRow
{
    const wchar_t* name;
    int result;
    const wchar_t* after;
};

struct WildcardRow
{
    const wchar_t* name;
    bool result;
};

void openInsideACatchBlock(const char* exception)
{
    try {
        throw std::runtime_error(exception);
    } catch (const std::runtime_error&) {
        CRbUiPathname().Open(nullptr, L"r");
    }
}

} // namespace

TEST(OpenFile, GivesANullHandleForEveryParsedName)
{
    for (const OpenRow& row : std::initializer_list<OpenRow>{
             {PT_NONE, kInvalidHandle},
             {PT_NOT_FOUND, nullptr},
             {PT_WILDCARD, nullptr},
             {PT_FILE, nullptr},
             {PT_DIRECTORY, nullptr},
             {kTypeOfHost, nullptr},
             {kUnknownType, kInvalidHandle},
             {static_cast<path_type>(-1), kInvalidHandle},
         }) {
        SCOPED_TRACE(row.type);
        HandMadePath name(PC_ROOTED, L"/no/such/name", row.type);
        int poison = 0;
        void* handle = &poison;
        EXPECT_EQ(name.OpenReadOnly(handle), row.handle == nullptr);
        EXPECT_EQ(handle, row.handle);
        handle = &poison;
        EXPECT_EQ(name.OpenWriteOnly(handle), row.handle == nullptr);
        EXPECT_EQ(handle, row.handle);
    }
}

TEST(OpenFileDeathTest, EndsTheProcessWithoutAnException)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    HandMadePath name(PC_ROOTED, L"/tmp");
    EXPECT_EXIT(name.Open(nullptr, L"r"), testing::KilledBySignal(SIGABRT), "");
}

TEST(OpenFile, RethrowsTheExceptionInFlight)
{
    EXPECT_THROW(openInsideACatchBlock("in flight"), std::runtime_error);
}

TEST(Rename, RenamesAnAbsoluteName)
{
    const ScratchFolder folder;
    folder.addFile("a");
    HandMadePath name(PC_ROOTED, folder.widePath("a"));
    name.setPrefix(L"");
    EXPECT_TRUE(name.Rename(folder.widePath("b").c_str()));
    EXPECT_TRUE(folder.holds("b"));
    EXPECT_FALSE(folder.holds("a"));
    EXPECT_EQ(workOf(name), folder.widePath("b"));
    EXPECT_EQ(prefixOf(name), L"");
    EXPECT_EQ(name.m_type, PT_FILE);
}

TEST(Rename, WorksInTheWorkingFolderWhateverThePrefix)
{
    const ScratchFolder folder;
    const WorkingFolder inside(folder.path());
    folder.addFile("a");
    folder.addFolder("prefix");
    folder.addFile("prefix/a");
    HandMadePath name(PC_RELATIVE, L"a", PT_DIRECTORY);
    name.setPrefix(folder.widePath("prefix"));
    EXPECT_TRUE(name.Rename(L"b"));
    EXPECT_TRUE(folder.holds("b"));
    EXPECT_TRUE(folder.holds("prefix/a"));
    EXPECT_EQ(workOf(name), L"b");
    EXPECT_EQ(prefixOf(name), folder.widePath("prefix"));
    EXPECT_EQ(name.m_type, PT_DIRECTORY);
}

TEST(Rename, WorksInTheWorkingFolderWithoutAPrefix)
{
    const ScratchFolder folder;
    const WorkingFolder inside(folder.path());
    folder.addFile("a");
    HandMadePath name(PC_DRIVE, L"a", PT_NOT_FOUND);
    EXPECT_TRUE(name.Rename(L"sub\\b"));
    EXPECT_TRUE(folder.holds("sub\\b"));
    EXPECT_EQ(workOf(name), L"sub\\b");
    EXPECT_EQ(name.m_type, PT_NOT_FOUND);
}

TEST(Rename, ChangesNothingOnFailure)
{
    const ScratchFolder folder;
    folder.addFile("a");
    HandMadePath name(PC_ROOTED, folder.widePath("a"));
    const auto before = fieldsOf(name);
    EXPECT_FALSE(name.Rename(nullptr));
    EXPECT_FALSE(name.Rename(L""));
    EXPECT_FALSE(name.Rename(L"\xD800"));
    EXPECT_FALSE(name.Rename(folder.widePath("no/such").c_str()));
    EXPECT_EQ(fieldsOf(name), before);
    EXPECT_TRUE(folder.holds("a"));
    HandMadePath missing(PC_ROOTED, folder.widePath("missing"));
    EXPECT_FALSE(missing.Rename(folder.widePath("b").c_str()));
    EXPECT_EQ(workOf(missing), folder.widePath("missing"));
}

TEST(Rename, RefusesANameThatIsNotParsed)
{
    const ScratchFolder folder;
    folder.addFile("a");
    for (path_type type : {PT_NONE, kTypeOfHost}) {
        HandMadePath name(PC_ROOTED, folder.widePath("a"), type);
        EXPECT_FALSE(name.Rename(folder.widePath("b").c_str()));
    }
    EXPECT_FALSE(CRbUiPathname().Rename(folder.widePath("b").c_str()));
    EXPECT_TRUE(folder.holds("a"));
}

TEST(Rename, MayBeGivenATextOfTheNameItself)
{
    const ScratchFolder folder;
    const WorkingFolder inside(folder.path());
    folder.addFile("a");
    HandMadePath name(PC_ROOTED, folder.widePath("a"));
    EXPECT_TRUE(name.Rename(name.m_pWork->c_str() + name.m_pWork->size() - 1));
    EXPECT_EQ(workOf(name), L"a");
    EXPECT_TRUE(folder.holds("a"));
}

TEST(Rename, ToABareNameLeavesARootedNameWithoutAParent)
{
    const ScratchFolder folder;
    const WorkingFolder inside(folder.path());
    folder.addFile("a");
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(folder.widePath("a").c_str(), false), 0);
    ASSERT_TRUE(name.Rename(L"b"));
    CRbUiPathname parent;
    EXPECT_THROW(name.GetParent(parent), std::out_of_range);
    EXPECT_THROW(name.Status(), std::out_of_range);
    EXPECT_EQ(workOf(name), L"b");
    EXPECT_EQ(prefixOf(name), L"");
}

TEST(Remove, RemovesNothing)
{
    const ScratchFolder folder;
    folder.addFile("a");
    HandMadePath name(PC_ROOTED, folder.widePath("a"));
    EXPECT_EQ(name.Remove(), 0);
    EXPECT_TRUE(folder.holds("a"));
    EXPECT_EQ(name.m_type, PT_FILE);
    EXPECT_EQ(CRbUiPathname().Remove(), 0);
}

TEST(GetFileSystem, EndsItsArgumentWithTheSeparator)
{
    for (const FileSystemRow& row : std::initializer_list<FileSystemRow>{
             {L"", 1, L""},
             {L"C:", 0, L"C:/"},
             {L"C:/", 0, L"C:/"},
             {L"/", 0, L"/"},
             {L"C:\\", 0, L"C:\\/"},
         }) {
        SCOPED_TRACE(row.name);
        CStdStr<wchar_t> name(row.name);
        EXPECT_EQ(CRbUiPathname().GetFileSystem(name), row.result);
        EXPECT_EQ(std::wstring(name), row.after);
    }
}

TEST(GetFileSystem, AppendsTheSeparatorOfTheObject)
{
    CRbUiPathname path;
    path.m_separator = L'|';
    for (const wchar_t* text : {L"C:/", L"C:/|"}) {
        CStdStr<wchar_t> name(text);
        EXPECT_EQ(path.GetFileSystem(name), 0);
        EXPECT_EQ(std::wstring(name), L"C:/|");
    }
}

TEST(IsPathType, TellsAPatternFromAName)
{
    for (const WildcardRow& row : std::initializer_list<WildcardRow>{
             {L"*.txt", true}, {L"a?", true}, {L"a.txt", false}, {L"", false}}) {
        SCOPED_TRACE(row.name);
        path_type type = kUnknownType;
        EXPECT_EQ(IsPathType(CStdStr<wchar_t>(row.name), &type), row.result);
        EXPECT_EQ(type, row.result ? PT_WILDCARD : kUnknownType);
    }
}
