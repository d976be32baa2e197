// SPDX-License-Identifier: MIT
//
// Attributes of files and the current directory.
#include "support/LocaleScope.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/WindowsTypes.h>
#include <KtQtBase/windows/Files.h>
#include <KtQtBase/windows/SystemInformation.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cwchar>
#include <string>

#include <sys/socket.h>
#include <sys/un.h>

namespace {

using ktqtbase::test::LocaleScope;
using ktqtbase::test::RowName;
using ktqtbase::test::setMode;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::wide;
using ktqtbase::test::WorkingFolder;
using ktqtbase::test::writeFile;

unsigned int attributes(const std::filesystem::path& path)
{
    return GetFileAttributes(wide(path).c_str());
}

// ---- Attributes --------------------------------------------------------------------------------

TEST(GetFileAttributes, GivesTheModeOfAFile)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    for (const mode_t mode : {0000u, 0644u, 0664u, 0777u, 04755u, 02711u, 01000u}) {
        setMode(folder / "file", mode);
        EXPECT_EQ(attributes(folder / "file"), 0x8000u | mode) << mode;
    }
}

TEST(GetFileAttributes, GivesTheModeOfAFolder)
{
    const TemporaryFolder folder;
    for (const mode_t mode : {0700u, 0755u, 01777u}) {
        setMode(folder.path(), mode);
        EXPECT_EQ(attributes(folder.path()), 0x4000u | mode) << mode;
        EXPECT_EQ(attributes(folder.path() / ""), 0x4000u | mode) << mode;
    }
}

TEST(GetFileAttributes, GivesTheModeOfOtherFilesIn16Bits)
{
    EXPECT_EQ(attributes("/dev/null") & 0xFFFFF000u, 0x2000u);
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
    EXPECT_EQ(attributes(folder / "fifo"), 0x1180u);
}

TEST(GetFileAttributes, FollowsLinks)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    setMode(folder / "file", 0640);
    std::filesystem::create_symlink("file", folder / "link");
    std::filesystem::create_symlink("missing", folder / "broken");
    EXPECT_EQ(attributes(folder / "link"), 0x81A0u);
    EXPECT_EQ(attributes(folder / "broken"), 0xFFFFFFFFu);
}

TEST(GetFileAttributes, AreInvalidForAMissingName)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, 0xFFFFFFFFu);
    EXPECT_EQ(attributes(folder / "missing"), 0xFFFFFFFFu);
    EXPECT_EQ(attributes(folder / "file/below"), 0xFFFFFFFFu);
    EXPECT_EQ(attributes(std::string(5000, 'a')), 0xFFFFFFFFu);
    EXPECT_EQ(GetFileAttributes(L""), 0xFFFFFFFFu);
    EXPECT_EQ(GetFileAttributes(nullptr), 0xFFFFFFFFu);
}

TEST(GetFileAttributes, LeavesTheSystemsReasonForGetLastError)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    for (const auto get : {&::GetFileAttributes, &KtKernel32::GetFileAttributesW}) {
        errno = 0;
        get(wide(folder / "missing").c_str());
        EXPECT_EQ(GetLastError(), static_cast<unsigned int>(ENOENT));
        get(wide(folder / "file/below").c_str());
        EXPECT_EQ(GetLastError(), static_cast<unsigned int>(ENOTDIR));
    }
}

TEST(GetFileAttributes, TakesABackslashAsPartOfTheName)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "sub");
    writeFile(folder / "sub/file", "");
    EXPECT_EQ(attributes(folder / "sub\\file"), 0xFFFFFFFFu);
    writeFile(folder / "sub\\file", "");
    EXPECT_NE(attributes(folder / "sub\\file"), 0xFFFFFFFFu);
}

TEST(GetFileAttributes, TakesNamesOfMoreThan1024Bytes)
{
    const TemporaryFolder folder;
    std::string detour = folder.path();
    while (detour.size() < 3000)
        detour += "/.";
    setMode(folder.path(), 0700);
    EXPECT_EQ(attributes(detour), 0x41C0u);
}

TEST(GetFileAttributes, ConvertsTheNameByTheLocaleAsItIs)
{
    const TemporaryFolder folder;
    writeFile(folder / "a", "");
    writeFile(folder / "a\u00e9\U0001F600", "");
    {
        const LocaleScope scope("C.UTF-8");
        EXPECT_NE(attributes(folder / "a\u00e9\U0001F600"), 0xFFFFFFFFu);
    }
    const LocaleScope scope("C");
    EXPECT_EQ(attributes(folder / "a\u00e9\U0001F600"), 0xFFFFFFFFu);
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C");
}

TEST(GetFileAttributes, TakesARelativeNameAsLyingInTheWorkingFolder)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "");
    setMode(folder / "file", 0600);
    const WorkingFolder working(folder.path());
    EXPECT_EQ(GetFileAttributes(L"file"), 0x8180u);
}

TEST(KtKernel32, GivesAttributesAsTheGlobalFunctionDoes)
{
    const TemporaryFolder folder;
    setMode(folder.path(), 0711);
    const std::wstring path = wide(folder.path());
    EXPECT_EQ(KtKernel32::GetFileAttributes(path.c_str()), 0x41C9u);
    EXPECT_EQ(KtKernel32::GetFileAttributesW(path.c_str()), 0x41C9u);
    EXPECT_EQ(KtKernel32::GetFileAttributes(nullptr), 0xFFFFFFFFu);
    EXPECT_EQ(KtKernel32::GetFileAttributesW(L"/missing"), 0xFFFFFFFFu);
}

// ---- The current directory ---------------------------------------------------------------------

struct DirectoryFunctions
{
    const char* name;
    unsigned int (*get)(unsigned int, wchar_t*);
    int (*set)(const wchar_t*);
};

class CurrentDirectory : public testing::TestWithParam<DirectoryFunctions>
{
protected:
    const LocaleScope anyName{"C.UTF-8"};
    const std::wstring executableFolder =
        wide(std::filesystem::read_symlink("/proc/self/exe").parent_path());
};

TEST_P(CurrentDirectory, IsTheExecutablesFolderWhateverTheWorkingOne)
{
    const WorkingFolder working("/");
    wchar_t buffer[1024];
    std::wmemset(buffer, L'#', 1024);
    EXPECT_EQ(GetParam().get(1024, buffer), 1024u);
    EXPECT_EQ(buffer, executableFolder);
    EXPECT_EQ(buffer[executableFolder.size() + 1], L'#');
}

TEST_P(CurrentDirectory, IsGivenWholeWhateverTheLength)
{
    for (const unsigned int length : {0u, 1u, 10u, 0xFFFFFFFFu}) {
        wchar_t buffer[1024];
        std::wmemset(buffer, L'#', 1024);
        EXPECT_EQ(GetParam().get(length, buffer), 1024u);
        EXPECT_EQ(buffer, executableFolder);
    }
}

TEST_P(CurrentDirectory, IsNotChanged)
{
    const TemporaryFolder folder;
    const auto before = std::filesystem::current_path();
    EXPECT_EQ(GetParam().set(wide(folder.path()).c_str()), 0);
    EXPECT_EQ(GetParam().set(nullptr), 0);
    EXPECT_EQ(std::filesystem::current_path(), before);
    wchar_t buffer[1024];
    GetParam().get(1024, buffer);
    EXPECT_EQ(buffer, executableFolder);
}

TEST_P(CurrentDirectory, GoesIntoNoNullBuffer)
{
    EXPECT_EQ(GetParam().get(1024, nullptr), 1024u);
}

const DirectoryFunctions kDirectoryFunctions[] = {
    {"Global", GetCurrentDirectoryW, SetCurrentDirectoryW},
    {"KtKernel32", KtKernel32::GetCurrentDirectoryW, KtKernel32::SetCurrentDirectoryW},
};

INSTANTIATE_TEST_SUITE_P(Functions, CurrentDirectory, testing::ValuesIn(kDirectoryFunctions),
                         RowName());

} // namespace
