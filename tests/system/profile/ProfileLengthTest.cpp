// SPDX-License-Identifier: MIT
//
// A file whose length the system does not tell. The function below stands in for the GNU C library's
// in the whole program, the library included.
#include "support/ScratchProfile.h"

#include <gtest/gtest.h>

#include <cerrno>

#include <dlfcn.h>
#include <sys/stat.h>

namespace {

bool refuseLength = false;

using StatusFunction = int (*)(int, struct stat*);

} // namespace

extern "C" __attribute__((visibility("default"))) int fstat(int file, struct stat* status) noexcept
{
    static const auto real = reinterpret_cast<StatusFunction>(dlsym(RTLD_NEXT, "fstat"));
    if (!refuseLength)
        return real(file, status);
    errno = EIO;
    return -1;
}

TEST(ProfileFile, ThatTellsNoLengthIsTakenForAnEmptyOne)
{
    ScratchProfile empty("");
    ScratchProfile profile("[S]\nk=5\n");
    refuseLength = true;
    const ProfileAnswer answer = profile.read({"S", "k", "none", 64});
    refuseLength = false;
    const ProfileAnswer ofEmpty = empty.read({"S", "k", "none", 64});
    EXPECT_EQ(answer.text, "none");
    EXPECT_EQ(answer.text, ofEmpty.text);
    EXPECT_EQ(answer.count, ofEmpty.count);
}
