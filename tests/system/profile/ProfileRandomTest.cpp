// SPDX-License-Identifier: MIT
//
// Files and questions made at random, from fixed seeds: the reader and the plain second one must
// agree on every byte and count.
#include "support/ScratchProfile.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

using std::string_literals::operator""s; // NOLINT(misc-unused-using-decls): it is used below.

constexpr int kQuestionsPerFile = 50;

class ProfileMaker
{
public:
    explicit ProfileMaker(unsigned int seed) : m_engine(seed) {}

    // Lines as people write them, and slightly broken ones.
    std::string file();

    // A few bytes that matter, in any order.
    std::string noise();

    ProfileQuestion question();

private:
    unsigned int below(unsigned int end) { return static_cast<unsigned int>(m_engine() % end); }
    bool oneIn(unsigned int chances) { return below(chances) == 0; }
    const std::string& oneOf(const std::vector<std::string>& texts)
    {
        return texts[below(static_cast<unsigned int>(texts.size()))];
    }

    std::string name();
    std::string blanks();
    std::string value();
    std::string line();
    std::string longText();
    std::string lineEnd(unsigned int style);
    std::optional<std::string> argument();
    int size();

    std::mt19937 m_engine;
};

std::string ProfileMaker::longText()
{
    return std::string(900 + below(300), static_cast<char>('a' + below(3)));
}

std::string ProfileMaker::name()
{
    static const std::vector<std::string> names = {"S",
                                                   "s",
                                                   "Main",
                                                   "Mai",
                                                   "k",
                                                   "K",
                                                   "key",
                                                   "a b",
                                                   "\"q\"",
                                                   "\"\"",
                                                   ";x",
                                                   "x\"",
                                                   "",
                                                   "[x",
                                                   "\xC3\xA9",
                                                   "\xA0",
                                                   "]",
                                                   "=",
                                                   "long name of a key"};
    return oneIn(150) ? longText() : oneOf(names);
}

std::string ProfileMaker::blanks()
{
    static const std::vector<std::string> blanks = {"",   "",   "",    "",   " ",
                                                    "\t", "  ", " \t", "\v", "\f"};
    return oneOf(blanks);
}

std::string ProfileMaker::value()
{
    static const std::vector<std::string> values = {"",
                                                    "5",
                                                    "12abc",
                                                    "\"a b\"",
                                                    R"(""")",
                                                    "\"a",
                                                    "a\"",
                                                    "a=b",
                                                    "; no comment",
                                                    "\xFF",
                                                    "\x85 x",
                                                    "[S]",
                                                    "a\tb",
                                                    "' '",
                                                    "\"",
                                                    "a rather longer value than others"};
    return oneIn(100) ? longText() : oneOf(values);
}

std::string ProfileMaker::line()
{
    switch (below(10)) {
    case 0:
    case 1:
        return "[" + name() + "]";
    case 2:
        return "[" + blanks() + name() + blanks() + "]" + name();
    case 3:
        return "[" + name() + (oneIn(2) ? "=" + value() : ""s);
    case 4:
        return oneIn(2) ? name() : blanks();
    default:
        return name() + blanks() + "=" + blanks() + value();
    }
}

std::string ProfileMaker::lineEnd(unsigned int style)
{
    static const std::vector<std::string> ends = {"\n", "\r\n", "\r", "\n\r"};
    return style < ends.size() ? ends[style] : oneOf(ends);
}

std::string ProfileMaker::file()
{
    const unsigned int style = below(6);
    std::string text;
    for (unsigned int lines = below(12); lines > 0; --lines) {
        text += blanks() + line() + blanks();
        if (lines > 1 || oneIn(2))
            text += lineEnd(style);
        if (oneIn(80))
            text += '\0';
    }
    return text;
}

std::string ProfileMaker::noise()
{
    static const std::string bytes = "[]=\"\r\n\t ;Sk[]=Sk\n\0\x1A\x1F\xA0"s;
    std::string text = oneIn(2) ? "[S]\n" : "";
    for (unsigned int left = below(60); left > 0; --left)
        text += bytes[below(static_cast<unsigned int>(bytes.size()))];
    return text;
}

std::optional<std::string> ProfileMaker::argument()
{
    if (oneIn(6))
        return std::nullopt;
    return oneIn(2) ? oneIn(2) ? "S"s : "k"s : blanks() + name() + blanks();
}

int ProfileMaker::size()
{
    static const std::vector<int> large = {1023, 1024, 2048, 2049, 5000};
    return oneIn(8) ? large[below(5)] : static_cast<int>(below(65));
}

ProfileQuestion ProfileMaker::question()
{
    static const std::vector<std::string> defaults = {"", "none", "none  ", "   ", "\"q\" ", "\t "};
    ProfileQuestion made{argument(), argument(), std::nullopt, size()};
    if (!oneIn(5))
        made.defaultText = oneOf(defaults);
    return made;
}

std::string shown(const std::optional<std::string>& text)
{
    return text ? ::testing::PrintToString(*text) : "null";
}

// Whether both readers say the same; the test prints the question otherwise.
bool agree(ScratchProfile& profile, const std::string& bytes, const ProfileQuestion& question)
{
    const ProfileAnswer expected = readSlowly(bytes, question);
    const ProfileAnswer answer = profile.read(question);
    const bool same = answer.count == expected.count && answer.text == expected.text;
    EXPECT_TRUE(same) << "file " << ::testing::PrintToString(bytes) << "\nsection "
                      << shown(question.section) << " key " << shown(question.key) << " default "
                      << shown(question.defaultText) << " size " << question.size << "\nexpected "
                      << expected.count << " " << ::testing::PrintToString(expected.text)
                      << "\ngot " << answer.count << " " << ::testing::PrintToString(answer.text);
    return same && !::testing::Test::HasFailure();
}

// Whether every question about every file was answered alike; the first failure ends it.
bool agreeOnFiles(ProfileMaker& maker, std::string (ProfileMaker::*make)(), int files)
{
    ScratchProfile profile("");
    for (int file = 0; file < files; ++file) {
        const std::string bytes = (maker.*make)();
        profile.rewrite(bytes);
        for (int asked = 0; asked < kQuestionsPerFile; ++asked) {
            if (!agree(profile, bytes, maker.question()))
                return false;
        }
    }
    return true;
}

} // namespace

TEST(ProfileReader, AgreesWithThePlainOneOnWrittenFiles)
{
    ProfileMaker maker(20240501);
    EXPECT_TRUE(agreeOnFiles(maker, &ProfileMaker::file, 5000));
}

TEST(ProfileReader, AgreesWithThePlainOneOnNoise)
{
    ProfileMaker maker(20240502);
    EXPECT_TRUE(agreeOnFiles(maker, &ProfileMaker::noise, 4000));
}

TEST(ProfileReader, AgreesWithThePlainOneInAreasAboveAllBuffers)
{
    std::string bytes = "[S]\nk=" + std::string(6000, 'v') + "\n";
    for (int name = 0; name < 1000; ++name)
        bytes += "key" + std::to_string(name) + "=1\n";
    for (int name = 0; name < 1000; ++name)
        bytes += "[section" + std::to_string(name) + "]\n";
    ScratchProfile profile(bytes);
    const std::string longDefault(6000, 'd');
    for (const int size : {2047, 2048, 2049, 2050, 4096, 4097, 6000, 6001, 6002, 20000}) {
        EXPECT_TRUE(agree(profile, bytes, {"S", "k", longDefault, size}));
        EXPECT_TRUE(agree(profile, bytes, {"S", "missing", longDefault, size}));
        EXPECT_TRUE(agree(profile, bytes, {"S", std::nullopt, longDefault, size}));
        EXPECT_TRUE(agree(profile, bytes, {std::nullopt, std::nullopt, longDefault, size}));
    }
}
