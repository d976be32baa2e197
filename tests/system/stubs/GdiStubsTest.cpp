// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/GdiStubs.h>

#include "system/stubs/Poisoned.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

template<class Handle>
Handle someHandle()
{
    return reinterpret_cast<Handle>(0x10ULL);
}

int g_callbacks = 0;

int countFont(const LOGFONTW*, const void*, unsigned int, long long)
{
    return ++g_callbacks;
}

} // namespace

TEST(DeleteObject, ReturnsZero)
{
    Poisoned<int> object;
    EXPECT_EQ(DeleteObject(object.get()), 0);
    EXPECT_TRUE(object.isUntouched());
    EXPECT_EQ(DeleteObject(nullptr), 0);
}

TEST(SelectObject, GivesNoFormerFont)
{
    EXPECT_EQ(SelectObject(someHandle<HDC>(), someHandle<HFONT>()), nullptr);
    EXPECT_EQ(SelectObject(nullptr, nullptr), nullptr);
}

TEST(DeleteDC, ReturnsZero)
{
    EXPECT_EQ(DeleteDC(someHandle<HDC>()), 0);
    EXPECT_EQ(DeleteDC(nullptr), 0);
}

TEST(GetDeviceCaps, IsZeroForEveryIndex)
{
    for (int index : {-1, HORZSIZE, HORZRES, VERTRES, BITSPIXEL, LOGPIXELSX, LOGPIXELSY, 1000})
        EXPECT_EQ(GetDeviceCaps(someHandle<HDC>(), index), 0) << "index " << index;
}

TEST(SetBkColor, IsBlackWhateverWasSetBefore)
{
    EXPECT_EQ(SetBkColor(someHandle<HDC>(), 0x00FFFFFF), 0u);
    EXPECT_EQ(SetBkColor(someHandle<HDC>(), 0x000000FF), 0u);
}

TEST(CreatePalette, IsNullAndLeavesTheRecord)
{
    Poisoned<LOGPALETTE> palette;
    EXPECT_EQ(CreatePalette(palette.get()), nullptr);
    EXPECT_TRUE(palette.isUntouched());
}

TEST(GetNearestPaletteIndex, IsZeroForEveryColour)
{
    EXPECT_EQ(GetNearestPaletteIndex(someHandle<HPALETTE>(), 0x00FFFFFF), 0u);
    EXPECT_EQ(GetNearestPaletteIndex(nullptr, 0), 0u);
}

TEST(CreateDIBSection, LeavesTheBitsPointer)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    Poisoned<void*> bits;
    CreateDIBSection(someHandle<HDC>(), &info, DIB_RGB_COLORS, bits.get(), nullptr, 0);
    EXPECT_TRUE(bits.isUntouched());
}

TEST(CreateDIBSection, HasNoResult)
{
    using Result = decltype(CreateDIBSection(nullptr, nullptr, 0, nullptr, nullptr, 0));
    EXPECT_TRUE(std::is_void_v<Result>);
}

TEST(CreateFontIndirect, IsNull)
{
    LOGFONTW description = {};
    description.lfHeight = -16;
    description.lfWeight = FW_BOLD;
    EXPECT_EQ(CreateFontIndirectW(&description), nullptr);
}

TEST(EnumFontFamiliesEx, CallsNothingBack)
{
    g_callbacks = 0;
    Poisoned<LOGFONTW> wanted;
    void* const callback = reinterpret_cast<void*>(&countFont);
    EXPECT_EQ(EnumFontFamiliesEx(someHandle<HDC>(), wanted.get(), callback, 7, 0), 0);
    EXPECT_EQ(g_callbacks, 0);
    EXPECT_TRUE(wanted.isUntouched());
}

TEST(GetFontData, WritesNothing)
{
    Poisoned<char[16]> buffer;
    EXPECT_EQ(GetFontData(someHandle<HDC>(), 0, 0, buffer.get(), 16), 0u);
    EXPECT_TRUE(buffer.isUntouched());
}

TEST(ExtTextOut, ReturnsZero)
{
    const RECT area = {0, 0, 100, 20};
    const int distances[] = {8, 8};
    EXPECT_EQ(ExtTextOut(someHandle<HDC>(), 1, 2, ETO_CLIPPED, &area, L"ab", 2, distances), 0);
    EXPECT_EQ(ExtTextOut(nullptr, 0, 0, 0, nullptr, nullptr, 0, nullptr), 0);
}
