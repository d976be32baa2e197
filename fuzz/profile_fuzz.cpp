// SPDX-License-Identifier: MIT
//
// Asks the profile reader and the plain second one the same about the same file; a difference ends
// the run.
#include "support/SlowProfileReader.h"

#include <KtQtBase/windows/Profiles.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>
#include <unistd.h>

namespace {

constexpr std::size_t kLongestArgument = 40;
constexpr int kLargestSize = 1024;

std::optional<std::string> takeArgument(FuzzedDataProvider& data)
{
    if (data.ConsumeBool())
        return std::nullopt;
    return std::string(data.ConsumeRandomLengthString(kLongestArgument).c_str());
}

char* dataOf(std::optional<std::string>& text)
{
    return text ? text->data() : nullptr;
}

// A file of this process, made anew for each input.
std::string& fileName()
{
    static std::string name = "profile_fuzz." + std::to_string(getpid()) + ".ini";
    static const int registered = std::atexit([] { std::remove(fileName().c_str()); });
    static_cast<void>(registered);
    return name;
}

void writeFile(const std::string& bytes)
{
    // Some file systems hurry a file to the disk that is cut and written anew; not a new one.
    std::remove(fileName().c_str());
    std::FILE* const file = std::fopen(fileName().c_str(), "wb");
    if (!file)
        std::abort();
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
}

void compare(const std::string& bytes, ProfileQuestion question)
{
    const ProfileAnswer expected = readSlowly(bytes, question);
    // Of the exact size, so that the sanitizer sees each byte too many.
    std::vector<char> area(static_cast<std::size_t>(question.size), '\x5A');
    const int count = read_profile_string(dataOf(question.section), dataOf(question.key),
                                          dataOf(question.defaultText), area.data(), question.size,
                                          fileName().data());
    std::string filled = expected.text;
    filled.resize(area.size(), '\0');
    if (count != expected.count || filled != std::string(area.begin(), area.end()))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    ProfileQuestion question;
    question.size = data.ConsumeIntegralInRange(0, kLargestSize);
    question.section = takeArgument(data);
    question.key = takeArgument(data);
    question.defaultText = takeArgument(data);
    const std::string file = data.ConsumeRemainingBytesAsString();
    writeFile(file);
    compare(file, question);
    return 0;
}
