// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Packing.h>

#include <gtest/gtest.h>

TEST(Rgb, PutsRedInTheLowestByte)
{
    EXPECT_EQ(RGB(255, 128, 1), 0x000180FFu);
    EXPECT_EQ(RGB(0x1FF, 0x100, 0), 0x000000FFu);
}

TEST(Rgb, GivesItsPartsBack)
{
    constexpr COLORREF color = 0xFF302010;
    EXPECT_EQ(GetRValue(color), 0x10);
    EXPECT_EQ(GetGValue(color), 0x20);
    EXPECT_EQ(GetBValue(color), 0x30);
}

TEST(Words, AreTheTwoHalvesOfThirtyTwoBits)
{
    EXPECT_EQ(LOWORD(0x912345678LL), 0x5678);
    EXPECT_EQ(HIWORD(0x912345678LL), 0x1234);
    EXPECT_EQ(HIWORD(-1), 0xFFFF);
}

TEST(MakeParam, NeverSpillsFromOneWordIntoTheOther)
{
    EXPECT_EQ(MAKELPARAM(0x5678, 0x1234), 0x12345678);
    EXPECT_EQ(MAKELPARAM(-1, -2), 0xFFFEFFFF);
    EXPECT_EQ(MAKEWPARAM(-1, 0), 0xFFFFu);
}

TEST(MakeParam, KeepsTheSignsOfAPoint)
{
    EXPECT_EQ(GET_X_LPARAM(MAKELPARAM(-1, -2)), -1);
    EXPECT_EQ(GET_Y_LPARAM(MAKELPARAM(-1, -2)), -2);
    EXPECT_EQ(GET_X_LPARAM(MAKELPARAM(640, 480)), 640);
    EXPECT_EQ(GET_Y_LPARAM(MAKELPARAM(640, 480)), 480);
}
