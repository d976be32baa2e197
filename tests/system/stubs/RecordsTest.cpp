// SPDX-License-Identifier: MIT
#include <KtQtBase/WindowsTypes.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <new>
#include <string>
#include <type_traits>

namespace {

unsigned long long bitsOf(const void* pointer)
{
    return reinterpret_cast<unsigned long long>(pointer);
}

const struct
{
    const char* name;
    long long value;
    long long published;
} kConstants[] = {
    {"INVALID_FILE_ATTRIBUTES", INVALID_FILE_ATTRIBUTES, 4294967295},
    {"MAX_PATH", MAX_PATH, 260},
    {"SM_CXFULLSCREEN", SM_CXFULLSCREEN, 16},
    {"SM_CYFULLSCREEN", SM_CYFULLSCREEN, 17},
    {"MB_YESNO", MB_YESNO, 4},
    {"MB_ICONERROR", MB_ICONERROR, 16},
    {"MB_ICONINFORMATION", MB_ICONINFORMATION, 64},
    {"MB_DEFBUTTON2", MB_DEFBUTTON2, 256},
    {"IDOK", IDOK, 1},
    {"IDYES", IDYES, 6},
    {"IDNO", IDNO, 7},
    {"IDCONTINUE", IDCONTINUE, 11},
    {"PS_NULL", PS_NULL, 5},
    {"PS_ALTERNATE", PS_ALTERNATE, 8},
    {"PS_ENDCAP_FLAT", PS_ENDCAP_FLAT, 512},
    {"PS_JOIN_MITER", PS_JOIN_MITER, 8192},
    {"PS_GEOMETRIC", PS_GEOMETRIC, 65536},
    {"TRANSPARENT", TRANSPARENT, 1},
    {"OPAQUE", OPAQUE, 2},
    {"OFN_ALLOWMULTISELECT", OFN_ALLOWMULTISELECT, 512},
    {"OFN_EXPLORER", OFN_EXPLORER, 524288},
    {"FW_NORMAL", FW_NORMAL, 400},
    {"FIXED_PITCH", FIXED_PITCH, 1},
    {"FF_MODERN", FF_MODERN, 48},
    {"ERROR_MORE_DATA", ERROR_MORE_DATA, 234},
    {"ERROR_NO_MORE_ITEMS", ERROR_NO_MORE_ITEMS, 259},
    {"KEY_READ", KEY_READ, 131097},
    {"KEY_ALL_ACCESS", KEY_ALL_ACCESS, 983103},
    {"WM_USER", WM_USER, 1024},
    {"WM_APP", WM_APP, 32768},
    {"VK_SHIFT", VK_SHIFT, 16},
    {"GENERIC_READ", GENERIC_READ, 2147483648},
    {"CSTR_EQUAL", CSTR_EQUAL, 2},
    {"LOGPIXELSY", LOGPIXELSY, 90},
    {"CSIDL_LOCAL_APPDATA", CSIDL_LOCAL_APPDATA, 28},
    {"WAIT_TIMEOUT", WAIT_TIMEOUT, 258},
};

} // namespace

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

TEST(CriticalSection, HasItsShortName)
{
    EXPECT_TRUE((std::is_same_v<CRITICAL_SECTION, RTL_CRITICAL_SECTION>));
}

TEST(Constants, HaveThePublishedNumbers)
{
    for (const auto& row : kConstants)
        EXPECT_EQ(row.value, row.published) << row.name;
}

TEST(Constants, ExtendTheSignOfPredefinedHandles)
{
    EXPECT_EQ(bitsOf(INVALID_HANDLE_VALUE), 0xFFFFFFFFFFFFFFFFULL);
    EXPECT_EQ(bitsOf(HKEY_CLASSES_ROOT), 0xFFFFFFFF80000000ULL);
    EXPECT_EQ(bitsOf(HKEY_CURRENT_USER), 0xFFFFFFFF80000001ULL);
    EXPECT_EQ(bitsOf(HKEY_LOCAL_MACHINE), 0xFFFFFFFF80000002ULL);
    EXPECT_EQ(bitsOf(HKEY_USERS), 0xFFFFFFFF80000003ULL);
}
