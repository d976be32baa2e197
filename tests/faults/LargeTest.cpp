// SPDX-License-Identifier: MIT
//
// What needs gigabytes, and modules that are cut anywhere.
#include "faults/InChild.h"
#include "support/ScratchProfile.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/windows/Modules.h>

#include <csignal>

namespace {

using faults::inChild;

TEST(LargeProfile, OfTwoGigabytesIsReadUpToItsFirstZero)
{
    ScratchProfile profile("[S]\nk=5\n");
    ASSERT_EQ(truncate(profile.name(), (off_t{2} << 30) + 5), 0);
    EXPECT_EQ(profile.read({"S", "k", "none", 64}).text, "5");
    EXPECT_EQ(profile.read({"S", "l", "none", 64}).text, "none");
}

// The system ends a process that reads behind the end of a file that is mapped; nothing else may go
// wrong.
TEST(CutModule, IsRefusedLoadedOrEndsTheProcessByTheLoader)
{
    const ktqtbase::test::TemporaryFolder folder;
    const std::string good = ktqtbase::test::readFile(PLAIN_MODULE);
    const std::wstring name = ktqtbase::test::wide(folder / "cut");
    int ended = 0;
    for (std::size_t length = 0; length < good.size(); length += 61) {
        ktqtbase::test::writeFile(folder / "libcut.so", good.substr(0, length));
        const int status = inChild([&] { FreeLibrary(LoadLibrary(name.c_str())); });
        EXPECT_TRUE(status == 0 || status == 256 + SIGBUS || status == 256 + SIGSEGV)
            << length << ": " << status;
        ended += status != 0;
    }
    std::printf("%zu lengths, of which %d end the process\n", good.size() / 61 + 1, ended);
}

} // namespace
