// SPDX-License-Identifier: MIT
#include "string/QtText.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using ktqtbase::toQt;
using ktqtbase::toWide;

QString qtsOwn(const std::wstring& text)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(text.c_str()), -1);
}

TEST(ToQt, IsNullForNullAndEmptyForAnEmptyText)
{
    EXPECT_TRUE(toQt(nullptr).isNull());
    EXPECT_TRUE(toQt(L"").isEmpty());
    EXPECT_FALSE(toQt(L"").isNull());
}

TEST(ToQt, AgreesWithQtOnAsciiOfEveryLength)
{
    std::wstring text;
    for (int length = 0; length < 1100; ++length) {
        ASSERT_EQ(toQt(text.c_str()), qtsOwn(text)) << length;
        text += static_cast<wchar_t>(1 + length % 0x7F);
    }
}

// Byte order marks at the beginning, what is no code point, and what lies just beyond ASCII.
TEST(ToQt, AgreesWithQtOnAnyOtherCharacterAtAnyPlace)
{
    std::mt19937 random(20261121);
    const std::wstring odd = {0x80,
                              0xFF,
                              0x100,
                              0x4E2D,
                              0xD800,
                              0xFEFF,
                              0x1F600,
                              0xFFFE,
                              0xFFFF,
                              0x10FFFF,
                              wchar_t(0xFFFE0000)};
    for (int round = 0; round < 50000; ++round) {
        std::wstring text(1 + random() % 40, L'a');
        for (std::size_t count = 1 + random() % 2; count > 0; --count)
            text[random() % text.size()] = odd[random() % odd.size()];
        ASSERT_EQ(toQt(text.c_str()), qtsOwn(text)) << "round " << round;
    }
}

TEST(ToQt, KeepsAMarkThatQtDropsAtTheBeginningOnlyWithinTheText)
{
    EXPECT_EQ(toQt(L"\ufeffa"), QString("a"));
    EXPECT_EQ(toQt(L"a\ufeff").size(), 2);
}

TEST(ToWide, EndsAtTheFirstNul)
{
    EXPECT_EQ(toWide(QString::fromUtf16(u"ab\0cd", 5)), L"ab");
    EXPECT_EQ(toWide(QString()), L"");
    EXPECT_EQ(toWide(QString::fromUtf8("\xf0\x9f\x98\x80")), L"\U0001F600");
}

} // namespace
