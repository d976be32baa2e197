// SPDX-License-Identifier: MIT
#include "string/WideBlock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>

namespace {

using ktqtbase::Found;
using ktqtbase::WideBlock;

constexpr wchar_t kLeast = std::numeric_limits<wchar_t>::min();
constexpr wchar_t kGreatest = std::numeric_limits<wchar_t>::max();

// The edges of what eight and sixteen bits hold, the marks of names, and what resembles them in the
// lower bits.
const std::wstring kOddCharacters = {L'\0',   L':',          L'\\',     L'*',     L'?',   0x7F,
                                     0x80,    0xFF,          0x100,     0x7FFF,   0x8000, 0xFFFF,
                                     0x1003A, 0x10FFFF,      0x3A00,    0x3A003A, -1,     -128,
                                     kLeast,  kLeast + L':', kGreatest, 0xD83A};

class Blocks
{
public:
    std::wstring next()
    {
        std::wstring text(WideBlock::kSize, L'a');
        for (wchar_t& ch : text) {
            if (m_engine() % 4 == 0)
                ch = kOddCharacters[m_engine() % kOddCharacters.size()];
        }
        return text;
    }

private:
    std::mt19937 m_engine{20261121};
};

constexpr int kRounds = 100000;

TEST(WideBlock, FindsACharacterWhereALoopDoes)
{
    Blocks blocks;
    for (int i = 0; i < kRounds; ++i) {
        const std::wstring text = blocks.next();
        for (const wchar_t ch : {L':', L'\\', L'*', L'?', L'a'}) {
            Found found;
            found.add(WideBlock(text.data()).placesOf(ch));
            ASSERT_EQ(found.anywhere(), text.find(ch) != text.npos) << ch << " round " << i;
        }
    }
}

TEST(WideBlock, FindsWhatIsNotAsciiWhereALoopDoes)
{
    Blocks blocks;
    for (int i = 0; i < kRounds; ++i) {
        const std::wstring text = blocks.next();
        const bool expected =
            std::any_of(text.begin(), text.end(), [](wchar_t ch) { return ch < 0 || ch > 0x7F; });
        Found found;
        found.add(WideBlock(text.data()).placesOfOthers());
        ASSERT_EQ(found.anywhere(), expected) << "round " << i;
    }
}

TEST(WideBlock, CopiesItsCharactersAndNoMore)
{
    Blocks blocks;
    const std::wstring text = blocks.next() + blocks.next();
    std::wstring out(2 * WideBlock::kSize, L'-');
    WideBlock(text.data() + 3).copyTo(&out[1]);
    EXPECT_EQ(out, L"-" + text.substr(3, WideBlock::kSize) + std::wstring(7, L'-'));
}

TEST(WideBlock, NarrowsEachAsciiCharacterAndNoMore)
{
    constexpr std::size_t kAscii = 0x80;
    for (std::size_t first = 0; first + WideBlock::kSize <= kAscii; ++first) {
        std::wstring text;
        std::string expected;
        for (std::size_t ch = first; text.size() < WideBlock::kSize; ++ch) {
            text += static_cast<wchar_t>(ch);
            expected += static_cast<char>(ch);
        }
        std::string out(WideBlock::kSize + 2, '-');
        WideBlock(text.data()).narrowTo(&out[1]);
        EXPECT_EQ(out, '-' + expected + '-');
        std::u16string units(WideBlock::kSize + 2, u'-');
        WideBlock(text.data()).narrowTo(&units[1]);
        EXPECT_EQ(units, u'-' + std::u16string(expected.begin(), expected.end()) + u'-');
    }
}

TEST(Found, KeepsWhatOneOfManyBlocksHolds)
{
    const std::wstring plain(WideBlock::kSize, L'a');
    for (std::size_t place = 0; place < WideBlock::kSize; ++place) {
        std::wstring marked = plain;
        marked[place] = L':';
        Found found;
        for (const std::wstring& text : {plain, marked, plain})
            found.add(WideBlock(text.data()).placesOf(L':'));
        EXPECT_TRUE(found.anywhere()) << place;
    }
}

TEST(Found, TakesSingleCharactersToo)
{
    Found found;
    found.add(false);
    EXPECT_FALSE(found.anywhere());
    found.add(true);
    found.add(false);
    EXPECT_TRUE(found.anywhere());
}

} // namespace
