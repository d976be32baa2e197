// SPDX-License-Identifier: MIT
#include "support/LocaleScope.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/windows/Files.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

using ktqtbase::test::LocaleScope;
using ktqtbase::test::readFile;
using ktqtbase::test::setMode;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::wide;
using ktqtbase::test::writeFile;

bool copyFile(const fs::path& from, const fs::path& to, bool failIfExists = false)
{
    return CopyFile(wide(from).c_str(), wide(to).c_str(), failIfExists);
}

// ---- Copies ------------------------------------------------------------------------------------

TEST(CopyFile, CopiesEveryByte)
{
    const TemporaryFolder folder;
    std::string content;
    for (int byte = 0; byte < 256; ++byte)
        content += static_cast<char>(byte);
    content += "\r\n\n\r\x1a tail";
    writeFile(folder / "from", content);
    EXPECT_TRUE(copyFile(folder / "from", folder / "to"));
    EXPECT_EQ(readFile(folder / "to"), content);
    EXPECT_EQ(readFile(folder / "from"), content);
}

TEST(CopyFile, CopiesMoreThanAnyBufferHolds)
{
    const TemporaryFolder folder;
    std::string content(300'001, '\0');
    for (std::size_t i = 0; i < content.size(); ++i)
        content[i] = static_cast<char>(i * i >> 3);
    writeFile(folder / "from", content);
    EXPECT_TRUE(copyFile(folder / "from", folder / "to"));
    EXPECT_TRUE(readFile(folder / "to") == content);
}

TEST(CopyFile, OverwritesWhetherOrNotItIsToFail)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "new");
    for (const bool failIfExists : {false, true}) {
        writeFile(folder / "to", "old and longer");
        EXPECT_TRUE(copyFile(folder / "from", folder / "to", failIfExists));
        EXPECT_EQ(readFile(folder / "to"), "new");
    }
}

TEST(CopyFile, CopiesAnEmptyFile)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "");
    writeFile(folder / "to", "old");
    EXPECT_TRUE(copyFile(folder / "from", folder / "to"));
    EXPECT_EQ(readFile(folder / "to"), "");
}

TEST(CopyFile, TakesNamesOfFourBytesACharacter)
{
    const LocaleScope scope("C.UTF-8");
    const TemporaryFolder folder;
    std::string smiles;
    for (int i = 0; i < 60; ++i)
        smiles += "\U0001F600";
    writeFile(folder / "from", "content");
    EXPECT_TRUE(copyFile(folder / "from", folder / smiles));
    EXPECT_TRUE(copyFile(folder / smiles, folder / "to"));
    EXPECT_EQ(readFile(folder / "to"), "content");
}

TEST(CopyFile, TakesNamesOfMoreThan1024Bytes)
{
    const TemporaryFolder folder;
    std::string detour = folder.path();
    while (detour.size() < 3000)
        detour += "/.";
    writeFile(folder / "from", "content");
    EXPECT_TRUE(copyFile(detour + "/from", detour + "/to"));
    EXPECT_EQ(readFile(folder / "to"), "content");
}

TEST(CopyFile, GivesAMadeFileTheModeAndTimeOfANewOne)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    setMode(folder / "from", 0700);
    const auto now = fs::file_time_type::clock::now();
    fs::last_write_time(folder / "from", now - std::chrono::hours(24));
    const mode_t before = umask(022);
    copyFile(folder / "from", folder / "to");
    umask(before);
    EXPECT_EQ(fs::status(folder / "to").permissions(), fs::perms(0644));
    EXPECT_GT(fs::last_write_time(folder / "to"), fs::last_write_time(folder / "from"));
}

TEST(CopyFile, LeavesTheModeOfAnExistingDestination)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    writeFile(folder / "to", "old");
    setMode(folder / "from", 0755);
    setMode(folder / "to", 0640);
    EXPECT_TRUE(copyFile(folder / "from", folder / "to"));
    EXPECT_EQ(readFile(folder / "to"), "content");
    EXPECT_EQ(fs::status(folder / "to").permissions(), fs::perms(0640));
}

TEST(CopyFile, CopiesTheFileThatALinkLeadsTo)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    fs::create_symlink("from", folder / "link");
    EXPECT_TRUE(copyFile(folder / "link", folder / "to"));
    EXPECT_FALSE(fs::is_symlink(folder / "to"));
    EXPECT_EQ(readFile(folder / "to"), "content");
}

TEST(CopyFile, WritesThroughALinkAndLeavesIt)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    writeFile(folder / "old", "old and longer");
    fs::create_symlink("old", folder / "link");
    fs::create_symlink("new", folder / "broken");
    EXPECT_TRUE(copyFile(folder / "from", folder / "link"));
    EXPECT_TRUE(copyFile(folder / "from", folder / "broken"));
    EXPECT_TRUE(fs::is_symlink(folder / "link") && fs::is_symlink(folder / "broken"));
    EXPECT_EQ(readFile(folder / "old"), "content");
    EXPECT_EQ(readFile(folder / "new"), "content");
}

TEST(CopyFile, TakesABackslashAsPartOfTheName)
{
    const TemporaryFolder folder;
    fs::create_directory(folder / "sub");
    writeFile(folder / "from", "content");
    EXPECT_TRUE(copyFile(folder / "from", folder / "sub\\to"));
    EXPECT_EQ(readFile(folder / "sub\\to"), "content");
    EXPECT_TRUE(fs::is_empty(folder / "sub"));
}

// ---- What is not reported ----------------------------------------------------------------------

TEST(CopyFile, LeavesAnEmptyDestinationForAMissingSource)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(copyFile(folder / "missing", folder / "made"));
    EXPECT_TRUE(fs::exists(folder / "made"));
    EXPECT_EQ(readFile(folder / "made"), "");
    writeFile(folder / "to", "old");
    EXPECT_TRUE(copyFile(folder / "missing", folder / "to", true));
    EXPECT_EQ(readFile(folder / "to"), "");
}

TEST(CopyFile, LeavesAnEmptyDestinationForAFolderAsSource)
{
    const TemporaryFolder folder;
    writeFile(folder / "to", "old");
    EXPECT_TRUE(copyFile(folder.path(), folder / "to"));
    EXPECT_EQ(readFile(folder / "to"), "");
}

TEST(CopyFile, LeavesAnEmptyFileForSourceAndDestinationOfOneName)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "content");
    EXPECT_TRUE(copyFile(folder / "file", folder / "file"));
    EXPECT_EQ(readFile(folder / "file"), "");
}

TEST(CopyFile, IsTrueForADestinationThatCannotBeWritten)
{
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    EXPECT_TRUE(copyFile(folder / "from", folder / "from/below"));
    EXPECT_TRUE(copyFile(folder / "from", folder / "missing/below"));
    EXPECT_TRUE(copyFile(folder / "from", folder.path()));
    EXPECT_EQ(readFile(folder / "from"), "content");
    EXPECT_FALSE(fs::exists(folder / "missing"));
}

// ---- Names that do not convert -----------------------------------------------------------------

TEST(CopyFile, MakesAndCutsNothingForADestinationThatDoesNotConvert)
{
    const LocaleScope scope("C");
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    writeFile(folder / "to", "old");
    EXPECT_TRUE(copyFile(folder / "from", folder / "to\u00e9"));
    EXPECT_TRUE(copyFile(folder / "from", folder / "new\u00e9"));
    EXPECT_EQ(readFile(folder / "to"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2);
}

TEST(CopyFile, LeavesAnEmptyDestinationForASourceThatDoesNotConvert)
{
    const LocaleScope scope("C");
    const TemporaryFolder folder;
    writeFile(folder / "from", "content");
    writeFile(folder / "to", "old");
    EXPECT_TRUE(copyFile(folder / "from\u00e9", folder / "to"));
    EXPECT_EQ(readFile(folder / "to"), "");
}

TEST(CopyFile, TakesANullNameForOneThatDoesNotConvert)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", "content");
    const std::wstring file = wide(folder / "file");
    EXPECT_TRUE(CopyFile(file.c_str(), nullptr, false));
    EXPECT_EQ(readFile(folder / "file"), "content");
    EXPECT_TRUE(CopyFile(nullptr, file.c_str(), false));
    EXPECT_EQ(readFile(folder / "file"), "");
    EXPECT_TRUE(CopyFile(nullptr, nullptr, true));
}

TEST(CopyFile, LeavesTheLocale)
{
    const LocaleScope scope("C");
    const TemporaryFolder folder;
    copyFile(folder / "from", folder / "to");
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C");
}

} // namespace
