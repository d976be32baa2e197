// SPDX-License-Identifier: MIT
//
// The profile reader over files that are none, that change and that cannot be read.
#include "faults/Places.h"
#include "faults/SystemCalls.h"
#include "support/RowName.h"
#include "support/ScratchProfile.h"

#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>

namespace {

using faults::inChild;

const ProfileQuestion kQuestion{"S", "k", "none", 64};

int openFiles()
{
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return static_cast<int>(std::distance(files, {}));
}

// ---- System calls -------------------------------------------------------------------------------

struct ProfileCallRow
{
    const char* name;
    const char* call;
    int error;
    const char* answer;
    int failures;
};

class ProfileSystemCall : public testing::TestWithParam<ProfileCallRow>
{};

TEST_P(ProfileSystemCall, ThatFailsGivesWhatIsKnown)
{
    ScratchProfile profile("[S]\nk=5\n");
    const int before = openFiles();
    int n = 0;
    for (;; ++n) {
        faults::at({GetParam().call, n + 1, GetParam().error, profile.folder().c_str()});
        const std::string answer = profile.read(kQuestion).text;
        if (!faults::done())
            break;
        EXPECT_EQ(answer, GetParam().answer);
        EXPECT_EQ(profile.read(kQuestion).text, "5");
    }
    EXPECT_EQ(n, GetParam().failures);
    EXPECT_EQ(openFiles(), before);
}

// A file that is smaller than it was said to be is not asked for its end.
const ProfileCallRow kProfileCallRows[] = {
    {"OpenInterrupted", "open", EINTR, "none", 1},
    {"OpenWithoutFiles", "open", EMFILE, "none", 1},
    {"OpenWithoutRights", "open", EACCES, "none", 1},
    {"StatFailing", "stat", EIO, "none", 1},
    {"ReadInterrupted", "read", EINTR, "5", 1},
    {"ReadFailing", "read", EIO, "", 1},
    {"ReadWithoutMemory", "read", ENOMEM, "", 1},
    {"CloseInterrupted", "close", EINTR, "5", 1},
    {"CloseFailing", "close", EIO, "5", 1},
};

INSTANTIATE_TEST_SUITE_P(Calls, ProfileSystemCall, testing::ValuesIn(kProfileCallRows),
                         ktqtbase::test::RowName());

// ---- Files that change --------------------------------------------------------------------------

std::string g_file;

TEST(FaultyProfile, ThatShrinksWhileItIsReadIsTakenAsFarAsItGoes)
{
    ScratchProfile profile("[S]\nk=5\nl=6\n");
    g_file = profile.name();
    const auto shrink = [] { std::filesystem::resize_file(g_file, 8); };
    faults::at({"read", 1, 0, profile.folder().c_str(), shrink});
    EXPECT_EQ(profile.read(kQuestion).text, "5");
    EXPECT_TRUE(faults::done());
    EXPECT_EQ(profile.read({"S", "l", "none", 64}).text, "none");
}

TEST(FaultyProfile, ThatIsEmptiedWhileItIsReadGivesTheEmptyText)
{
    ScratchProfile profile("[S]\nk=5\n");
    g_file = profile.name();
    const auto empty = [] { std::filesystem::resize_file(g_file, 0); };
    faults::at({"read", 1, 0, profile.folder().c_str(), empty});
    EXPECT_EQ(profile.read(kQuestion).text, "");
    EXPECT_TRUE(faults::done());
    EXPECT_EQ(profile.read(kQuestion).text, "none");
}

TEST(FaultyProfile, ThatGrowsWhileItIsReadIsTakenInItsFormerLength)
{
    ScratchProfile profile("[S]\nk=5");
    g_file = profile.name();
    const auto grow = [] { std::ofstream(g_file, std::ios::app) << "67\n"; };
    faults::at({"read", 1, 0, profile.folder().c_str(), grow});
    EXPECT_EQ(profile.read(kQuestion).text, "5");
    EXPECT_TRUE(faults::done());
    EXPECT_EQ(profile.read(kQuestion).text, "567");
}

// ---- Files that are none ------------------------------------------------------------------------

TEST(FaultyProfile, IsAbsentWhereASocketStands)
{
    ScratchProfile profile("");
    profile.remove();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, profile.name(), sizeof address.sun_path - 1);
    const int file = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(file, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(profile.read(kQuestion).text, "none");
    close(file);
}

TEST(FaultyProfile, IsEmptyWhereADeviceStands)
{
    for (const char* device : {"/dev/null", "/dev/zero", "/dev/full"}) {
        std::string name = device;
        EXPECT_EQ(readProfile(name.data(), kQuestion).text, "none") << device;
    }
}

// What a large file holds no disk for: its text, and zeros behind that.
void lengthen(ScratchProfile& profile, off_t size)
{
    ASSERT_EQ(truncate(profile.name(), size), 0);
}

TEST(FaultyProfile, WithAHoleIsTextUpToTheHole)
{
    ScratchProfile profile("[S]\nk=5\n");
    lengthen(profile, off_t{8} << 20);
    EXPECT_EQ(profile.read(kQuestion).text, "5");
    EXPECT_EQ(profile.read({"S", "l", "none", 64}).text, "none");
}

// A sanitizer reserves more than any limit.
#ifndef KTQTBASE_UNDER_SANITIZERS
TEST(FaultyProfile, OfTwoGigabytesIsEmptyWhereMemoryIsShort)
{
    ScratchProfile profile("[S]\nk=5\n");
    lengthen(profile, off_t{2} << 30);
    EXPECT_EQ(inChild([&] {
                  const rlimit limit = {rlim_t{1} << 30, rlim_t{1} << 30};
                  EXPECT_EQ(setrlimit(RLIMIT_AS, &limit), 0);
                  EXPECT_EQ(profile.read(kQuestion).text, "");
                  EXPECT_EQ(profile.read(kQuestion).count, 0);
              }),
              0);
}
#endif

TEST(FaultyProfile, IsAbsentWhereNoFileCanBeOpened)
{
    ScratchProfile profile("[S]\nk=5\n");
    EXPECT_EQ(inChild([&] {
                  faults::useUpDescriptors(1);
                  EXPECT_EQ(profile.read(kQuestion).text, "5");
                  faults::useUpDescriptors(0);
                  EXPECT_EQ(profile.read(kQuestion).text, "none");
              }),
              0);
}

TEST(FaultyProfile, IsAbsentInAFolderThatVanished)
{
    EXPECT_EQ(inChild([&] {
                  const ktqtbase::test::TemporaryFolder folder;
                  std::filesystem::current_path(folder.path());
                  std::filesystem::remove(folder.path());
                  char name[] = "a.ini";
                  EXPECT_EQ(readProfile(name, kQuestion).text, "none");
              }),
              0);
}

// It is opened for update, which a disk that is read-only refuses.
TEST(FaultyProfile, IsAbsentOnAReadOnlyDisk)
{
    const ktqtbase::test::TemporaryFolder folder;
    faults::expectHeldOrRefused(inChild([&] {
        faults::mountSmallDisk(folder.path(), 65536);
        ktqtbase::test::writeFile(folder / "a.ini", "[S]\nk=5\n");
        std::string name = folder / "a.ini";
        EXPECT_EQ(readProfile(name.data(), kQuestion).text, "5");
        faults::makeReadOnly(folder.path());
        EXPECT_EQ(readProfile(name.data(), kQuestion).text, "none");
    }));
}

} // namespace
