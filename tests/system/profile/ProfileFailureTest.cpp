// SPDX-License-Identifier: MIT
//
// A file that gives no bytes and memory that is refused. Both functions below stand in for the
// system's in the whole program, the library included.
#include "support/ScratchProfile.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <new>

#include <dlfcn.h>

namespace {

bool refuseToRead = false;
bool refuseMemory = false;

using ReadFunction = std::size_t (*)(void*, std::size_t, std::size_t, std::FILE*);

} // namespace

extern "C" __attribute__((visibility("default"))) std::size_t
fread(void* area, std::size_t size, std::size_t count, std::FILE* file)
{
    static const auto real = reinterpret_cast<ReadFunction>(dlsym(RTLD_NEXT, "fread"));
    return refuseToRead ? 0 : real(area, size, count, file);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return refuseMemory ? nullptr : ::operator new[](size);
}

TEST(ProfileFile, ThatGivesNoBytesLeavesTheAreaEmpty)
{
    ScratchProfile profile("[S]\nk=5\n");
    refuseToRead = true;
    const ProfileAnswer answer = profile.read({"S", "k", "none", 64});
    refuseToRead = false;
    EXPECT_EQ(answer.text, "");
    EXPECT_EQ(answer.count, 0);
    EXPECT_EQ(profile.read({"S", "k", "none", 64}).text, "5");
}

TEST(ProfileFile, ThatMemoryCannotHoldLeavesTheAreaEmpty)
{
    ScratchProfile profile("[S]\nk=5\n");
    refuseMemory = true;
    const ProfileAnswer answer = profile.read({"S", "k", "none", 64});
    refuseMemory = false;
    EXPECT_EQ(answer.text, "");
    EXPECT_EQ(answer.count, 0);
    EXPECT_EQ(profile.read({"S", "k", "none", 64}).text, "5");
}
