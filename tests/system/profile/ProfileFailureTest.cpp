// SPDX-License-Identifier: MIT
//
// A file that gives no bytes and memory that is refused. Both functions below stand in for the
// system's in the whole program, the library included.
#include "support/ScratchProfile.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <new>

#include <dlfcn.h>
#include <unistd.h>

namespace {

// What the next reads do instead of their work.
enum class Reading
{
    AsAlways,
    NoBytes,
    AByteAtATime,
    InterruptedFirst,
    AnErrorAfterTwoBytes
};

Reading reading = Reading::AsAlways;
bool refuseMemory = false;

using ReadFunction = ssize_t (*)(int, void*, std::size_t);

ssize_t failsWith(int error)
{
    errno = error;
    return -1;
}

// A way of reading while it lives.
class ReadingScope
{
public:
    explicit ReadingScope(Reading way) { reading = way; }
    ReadingScope(const ReadingScope&) = delete;
    ReadingScope& operator=(const ReadingScope&) = delete;
    ~ReadingScope() { reading = Reading::AsAlways; }
};

} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t read(int file, void* area,
                                                               std::size_t size)
{
    static const auto real = reinterpret_cast<ReadFunction>(dlsym(RTLD_NEXT, "read"));
    switch (reading) {
    case Reading::NoBytes:
        return 0;
    case Reading::AByteAtATime:
        return real(file, area, 1);
    case Reading::InterruptedFirst:
        reading = Reading::AsAlways;
        return failsWith(EINTR);
    case Reading::AnErrorAfterTwoBytes:
        return lseek(file, 0, SEEK_CUR) < 2 ? real(file, area, 1) : failsWith(EIO);
    case Reading::AsAlways:
        break;
    }
    return real(file, area, size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return refuseMemory ? nullptr : ::operator new[](size);
}

TEST(ProfileFile, ThatGivesNoBytesLeavesTheAreaEmpty)
{
    ScratchProfile profile("[S]\nk=5\n");
    {
        const ReadingScope scope(Reading::NoBytes);
        const ProfileAnswer answer = profile.read({"S", "k", "none", 64});
        EXPECT_EQ(answer.text, "");
        EXPECT_EQ(answer.count, 0);
    }
    EXPECT_EQ(profile.read({"S", "k", "none", 64}).text, "5");
}

TEST(ProfileFile, ThatComesInPiecesIsReadWhole)
{
    ScratchProfile profile("[S]\nk=5\n");
    for (Reading way : {Reading::AByteAtATime, Reading::InterruptedFirst}) {
        const ReadingScope scope(way);
        EXPECT_EQ(profile.read({"S", "k", "none", 64}).text, "5");
    }
}

TEST(ProfileFile, ThatEndsInAnErrorIsTakenAsFarAsItGoes)
{
    ScratchProfile profile("[S]\nk=5\n");
    const ReadingScope scope(Reading::AnErrorAfterTwoBytes);
    EXPECT_EQ(profile.read({"S", "k", "none", 64}).text, "none");
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
