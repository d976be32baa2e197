// SPDX-License-Identifier: MIT
//
// Files that are missing, empty, protected or no files at all.
#include "support/ScratchProfile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534;

const std::optional<std::string> kQuoted = "\"none\"  ";

void expectUnstrippedDefault(char* fileName)
{
    const ProfileAnswer answer = readProfile(fileName, {"S", "k", kQuoted, 64});
    EXPECT_EQ(answer.text, "\"none\"");
    EXPECT_EQ(answer.count, 6);
    EXPECT_EQ(readProfile(fileName, {"S", "k", kQuoted, 4}).text, "\"no");
    EXPECT_EQ(readProfile(fileName, {"S", std::nullopt, kQuoted, 64}).text, "\"none\"");
    EXPECT_EQ(readProfile(fileName, {"S", "k", std::nullopt, 64}).count, 0);
}

void expectNoSectionList(char* fileName)
{
    const ProfileAnswer answer = readProfile(fileName, {std::nullopt, "k", kQuoted, 64});
    EXPECT_EQ(answer.text, "");
    EXPECT_EQ(answer.count, 0);
}

// Root may write every file, so the file is read by somebody else.
void exitWithWhatOthersRead(ScratchProfile& profile)
{
    if (geteuid() == 0 && setuid(kNobody) != 0)
        std::_Exit(1);
    std::FILE* const readable = std::fopen(profile.name(), "r");
    if (!readable)
        std::_Exit(2);
    std::fclose(readable);
    std::_Exit(profile.read({"S", "k", kQuoted, 64}).text == "\"none\"" ? 0 : 3);
}

} // namespace

TEST(ProfileFile, GivesTheDefaultWithItsQuotesWhenMissing)
{
    ScratchProfile profile("");
    profile.remove();
    expectUnstrippedDefault(profile.name());
    expectNoSectionList(profile.name());
}

TEST(ProfileFile, IsAbsentWithoutAName)
{
    expectUnstrippedDefault(nullptr);
    expectNoSectionList(nullptr);
    char empty[] = "";
    expectUnstrippedDefault(empty);
}

TEST(ProfileFile, IsAbsentWhereAFolderStands)
{
    ScratchProfile profile("");
    std::string folder = profile.folder();
    expectUnstrippedDefault(folder.data());
    expectNoSectionList(folder.data());
}

TEST(ProfileFile, IsAbsentToThoseWhoMayOnlyReadIt)
{
    ScratchProfile profile("[S]\nk=5\n");
    ASSERT_EQ(chmod(profile.folder().c_str(), 0755), 0);
    ASSERT_EQ(chmod(profile.name(), 0444), 0);
    EXPECT_EXIT(exitWithWhatOthersRead(profile), ::testing::ExitedWithCode(0), "");
}

TEST(ProfileFile, GivesTheDefaultWithItsQuotesWhenEmpty)
{
    ScratchProfile profile("");
    expectUnstrippedDefault(profile.name());
    EXPECT_EQ(profile.read({std::nullopt, std::nullopt, kQuoted, 64}).text, "\"none\"");
}

TEST(ProfileFile, IsEmptyWhereItsLengthCannotBeTold)
{
    ScratchProfile profile("");
    profile.remove();
    ASSERT_EQ(mkfifo(profile.name(), 0600), 0);
    expectUnstrippedDefault(profile.name());
}

TEST(ProfileFile, OfOneLineFeedIsScanned)
{
    ScratchProfile profile("\n");
    EXPECT_EQ(profile.read({"S", "k", kQuoted, 64}).text, "none");
    EXPECT_EQ(profile.read({std::nullopt, "k", kQuoted, 64}).text, "");
}

TEST(ProfileFile, IsReadThroughALink)
{
    ScratchProfile profile("[S]\nk=5\n");
    std::string link = profile.folder() + "/link.ini";
    ASSERT_EQ(symlink("app.ini", link.c_str()), 0);
    EXPECT_EQ(readProfile(link.data(), {"S", "k", kQuoted, 64}).text, "5");
}

TEST(ProfileFile, IsReadWholeAbove4MiB)
{
    const std::string line = "a=" + std::string(98, 'v') + "\n";
    std::string bytes = "[S]\n";
    while (bytes.size() < std::size_t{5} * 1024 * 1024)
        bytes += line;
    ScratchProfile profile(bytes + "k=5\n");
    EXPECT_EQ(profile.read({"S", "k", kQuoted, 64}).text, "5");
}

TEST(ProfileFile, IsLookedForInTheWorkingFolderUnderABareName)
{
    ScratchProfile profile("[S]\nk=5\n");
    const ktqtbase::test::WorkingFolder working(profile.folder());
    char name[] = "app.ini";
    EXPECT_EQ(readProfile(name, {"S", "k", kQuoted, 64}).text, "5");
}

TEST(ProfileFile, IsNotInTheFolderBeforeABackslash)
{
    ScratchProfile profile("[S]\nk=5\n");
    std::string name = profile.folder() + "\\app.ini";
    expectUnstrippedDefault(name.data());
}

TEST(ProfileFile, IsLeftAsItWas)
{
    const std::string bytes = "[S]\r\nk=5\r\n";
    ScratchProfile profile(bytes);
    profile.read({"S", "k", "none", 64});
    EXPECT_EQ(profile.bytes(), bytes);
}
