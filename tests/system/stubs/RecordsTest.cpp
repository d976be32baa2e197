// SPDX-License-Identifier: MIT
#include <KtQtBase/WindowsTypes.h>
#include <KtQtBase/windows/MessageNumbers.h>

#include "system/stubs/SizeRow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <iterator>
#include <new>
#include <string>
#include <type_traits>

namespace {

const SizeRow kRecords[] = {
    {"POINT", sizeof(POINT), 8},
    {"POINTL", sizeof(POINTL), 8},
    {"SIZE", sizeof(SIZE), 8},
    {"RECT", sizeof(RECT), 16},
    {"PALETTEENTRY", sizeof(PALETTEENTRY), 4},
    {"LOGPALETTE", sizeof(LOGPALETTE), 8},
    {"RGBQUAD", sizeof(RGBQUAD), 4},
    {"BITMAPINFOHEADER", sizeof(BITMAPINFOHEADER), 40},
    {"BITMAPINFO", sizeof(BITMAPINFO), 44},
    {"LOGFONTW", sizeof(LOGFONTW), 156},
    {"NUMBERFMTW", sizeof(NUMBERFMTW), 40},
    {"OSVERSIONINFOW", sizeof(OSVERSIONINFOW), 532},
    {"LIST_ENTRY", sizeof(LIST_ENTRY), 16},
    {"RTL_CRITICAL_SECTION_DEBUG", sizeof(RTL_CRITICAL_SECTION_DEBUG), 48},
    {"RTL_CRITICAL_SECTION", sizeof(RTL_CRITICAL_SECTION), 40},
    {"SECURITY_ATTRIBUTES", sizeof(SECURITY_ATTRIBUTES), 24},
    {"FILETIME", sizeof(FILETIME), 8},
    {"SYSTEMTIME", sizeof(SYSTEMTIME), 16},
    {"WIN32_FIND_DATAW", sizeof(WIN32_FIND_DATAW), 1140},
    {"OVERLAPPED", sizeof(OVERLAPPED), 32},
    {"DEVMODEW", sizeof(DEVMODEW), 352},
    {"PRINTER_DEFAULTSW", sizeof(PRINTER_DEFAULTSW), 24},
    {"OPENFILENAMEW", sizeof(OPENFILENAMEW), 152},
};

} // namespace

TEST(Records, HaveThePublishedSizes)
{
    expectPublishedSizes(kRecords);
}

TEST(CRect, IsAllZeroByDefault)
{
    alignas(CRect) unsigned char memory[sizeof(CRect)];
    std::fill(std::begin(memory), std::end(memory), static_cast<unsigned char>(0xA5));
    const CRect* const area = new (memory) CRect;
    EXPECT_EQ(area->left, 0);
    EXPECT_EQ(area->top, 0);
    EXPECT_EQ(area->right, 0);
    EXPECT_EQ(area->bottom, 0);
}

TEST(CRect, TakesLeftTopRightBottomAsGiven)
{
    const CRect area(40, 30, -20, -10);
    EXPECT_EQ(area.left, 40);
    EXPECT_EQ(area.top, 30);
    EXPECT_EQ(area.right, -20);
    EXPECT_EQ(area.bottom, -10);
}

TEST(CRect, IsARect)
{
    CRect area(1, 2, 3, 4);
    RECT* const plain = &area;
    plain->right = 30;
    EXPECT_EQ(area.right, 30);
    EXPECT_TRUE((std::is_base_of_v<RECT, CRect>));
}

TEST(Overlapped, HasItsOffsetsInThePointer)
{
    OVERLAPPED overlapped = {};
    overlapped.Offset = 0x89ABCDEF;
    overlapped.OffsetHigh = 0x01234567;
    unsigned long long pointer = 0;
    std::copy_n(reinterpret_cast<const unsigned char*>(&overlapped.Pointer), sizeof(pointer),
                reinterpret_cast<unsigned char*>(&pointer));
    EXPECT_EQ(pointer, 0x0123456789ABCDEFULL);
}

TEST(DevMode, IsFilledWithoutNamingItsUnions)
{
    DEVMODEW mode = {};
    mode.dmSize = sizeof(DEVMODEW);
    mode.dmFields = DM_ORIENTATION | DM_COPIES;
    mode.dmOrientation = DMORIENT_LANDSCAPE;
    mode.dmCopies = 3;
    mode.dmNup = 2;
    EXPECT_EQ(mode.dmSize, 352);
    EXPECT_EQ(mode.dmFields, 0x101u);
    EXPECT_EQ(mode.dmPosition.x, 2);
    EXPECT_EQ(mode.dmDisplayFlags, 2u);
}

TEST(LogFont, HoldsAFaceNameOf31CharactersAndItsNul)
{
    LOGFONTW font = {};
    const std::wstring name(31, L'\x1F600');
    std::wcscpy(font.lfFaceName, name.c_str());
    EXPECT_EQ(std::size(font.lfFaceName), static_cast<std::size_t>(LF_FACESIZE));
    EXPECT_EQ(name, font.lfFaceName);
}

TEST(OpenFileName, IsFilledByAHost)
{
    wchar_t file[MAX_PATH] = L"report.txt";
    OPENFILENAMEW block = {};
    block.lStructSize = sizeof(OPENFILENAMEW);
    block.lpstrFile = file;
    block.lpstrTitle = L"Open";
    block.Flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;
    block.lpfnHook = [](HWND, UINT, WPARAM wParam, LPARAM) { return wParam; };
    EXPECT_EQ(block.lStructSize, 152u);
    EXPECT_EQ(block.Flags, 6u);
    EXPECT_EQ(block.lpfnHook(nullptr, 0, 9, 0), 9u);
}

TEST(NumberFormat, HasItsFieldsInThePublishedOrder)
{
    wchar_t decimal[] = L".";
    wchar_t thousand[] = L",";
    const NUMBERFMTW format = {1, 2, 3, decimal, thousand, 4};
    EXPECT_EQ(format.NumDigits, 1u);
    EXPECT_EQ(format.LeadingZero, 2u);
    EXPECT_EQ(format.Grouping, 3u);
    EXPECT_EQ(format.lpDecimalSep, decimal);
    EXPECT_EQ(format.lpThousandSep, thousand);
    EXPECT_EQ(format.NegativeOrder, 4u);
}

TEST(CriticalSection, HasItsShortName)
{
    EXPECT_TRUE((std::is_same_v<CRITICAL_SECTION, RTL_CRITICAL_SECTION>));
}
