// SPDX-License-Identifier: MIT
//
// Asks the profile reader and the plain second one the same about the same file, in narrow texts and
// in wide ones.
#include "support/Expect.h"
#include "support/Input.h"
#include "support/Locales.h"
#include "support/SlowProfileReader.h"

#include <KtQtBase/windows/Profiles.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

using namespace ktqtbase::fuzz;

namespace {

constexpr unsigned int kLargestSize = 1100;
constexpr std::size_t kRoomOfWide = 1024;
constexpr std::size_t kRoomOfNumber = 64;
constexpr int kQuestions = 4;

// A file in memory alone, which is opened by a name all the same.
class File
{
public:
    File() : m_descriptor(memfd_create("profile_fuzz", 0))
    {
        if (m_descriptor < 0)
            std::abort();
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { close(m_descriptor); }

    void write(const std::string& bytes) const
    {
        if (ftruncate(m_descriptor, 0) != 0 ||
            pwrite(m_descriptor, bytes.data(), bytes.size(), 0) != ssize_t(bytes.size()))
            std::abort();
    }

    std::string name() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

private:
    int m_descriptor;
};

char* dataOf(std::optional<std::string>& text)
{
    return text ? text->data() : nullptr;
}

void askNarrow(Input& input, const std::string& bytes, std::string& file)
{
    ProfileQuestion question;
    question.size = static_cast<int>(input.number() % (kLargestSize + 1));
    for (auto text : {&question.section, &question.key, &question.defaultText}) {
        if (!input.oneIn(8))
            *text = input.bytes().c_str();
    }
    ProfileAnswer expected = readSlowly(bytes, question);
    // Of the exact size, so that the sanitizer sees each byte too many.
    std::vector<char> area(static_cast<std::size_t>(question.size), '\x5A');
    const int count =
        read_profile_string(dataOf(question.section), dataOf(question.key),
                            dataOf(question.defaultText), area.data(), question.size, file.data());
    expectSame("count", count, expected.count);
    expected.text.resize(area.size());
    expectSame("area", std::string(area.begin(), area.end()), expected.text);
}

// A wide text as the C library converts it; none where it does not, or where it is too long.
std::optional<std::string> narrow(const std::optional<std::wstring>& text)
{
    char room[4 * kRoomOfWide];
    const std::size_t length = std::wcstombs(room, pointerTo(text ? text : L""), sizeof room);
    if (length >= kRoomOfWide)
        return std::nullopt;
    return std::string(room, length);
}

// A narrow text as the C library converts it, up to the first byte that does not.
std::wstring widened(std::string text)
{
    for (;; text.pop_back()) {
        std::vector<wchar_t> room(text.size() + 1);
        const std::size_t length = std::mbstowcs(room.data(), text.c_str(), room.size());
        if (length != static_cast<std::size_t>(-1))
            return std::wstring(room.data(), length);
    }
}

struct WideQuestion
{
    std::optional<std::wstring> section;
    std::optional<std::wstring> key;
    std::optional<std::wstring> defaultText;
};

// What the narrow reader would be asked.
ProfileQuestion narrowed(const WideQuestion& question, std::size_t size)
{
    return {narrow(question.section).value_or("]"), narrow(question.key).value_or("="),
            narrow(question.defaultText).value_or(""), static_cast<int>(size)};
}

void askWide(Input& input, const std::string& bytes, const std::wstring& file)
{
    const unsigned int size = input.number() % (kLargestSize + 1);
    const WideQuestion question{input.optionalName(), input.optionalName(), input.optionalName()};
    const ProfileAnswer expected =
        readSlowly(bytes, narrowed(question, std::min<std::size_t>(size, kRoomOfWide)));
    std::vector<wchar_t> area(size, L'Z');
    const unsigned int count =
        GetPrivateProfileString(pointerTo(question.section), pointerTo(question.key),
                                pointerTo(question.defaultText), area.data(), size, file.c_str());
    expectSame("wide count", count, static_cast<unsigned int>(expected.count));
    std::wstring filled = widened(expected.text);
    if (size > 0)
        filled += L'\0';
    filled.resize(size, L'Z');
    expectSame("wide area", std::wstring(area.begin(), area.end()), filled);
}

void askNumber(Input& input, const std::string& bytes, const std::wstring& file)
{
    const WideQuestion question{input.optionalName(), input.optionalName(), L""};
    const std::string expected = readSlowly(bytes, narrowed(question, kRoomOfNumber)).text;
    const int number = GetPrivateProfileInt(pointerTo(question.section), pointerTo(question.key),
                                            static_cast<int>(input.byte()), file.c_str());
    expectSame("number", number, static_cast<int>(std::strtol(expected.c_str(), nullptr, 10)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const File file;
    static std::string name = file.name();
    static const std::wstring wideName(name.begin(), name.end());
    Input input(data, size);
    useCtype(input.oneIn(2));
    std::string bytes = input.bytes();
    // A zero byte ends the text of a file.
    if (input.oneIn(8))
        bytes += '\0' + bytes;
    file.write(bytes);
    for (int asked = 0; asked < kQuestions && !input.atEnd(); ++asked) {
        const unsigned int kind = input.below(4);
        if (kind < 2)
            askNarrow(input, bytes, name);
        else if (kind == 2)
            askWide(input, bytes, wideName);
        else
            askNumber(input, bytes, wideName);
    }
    return 0;
}
