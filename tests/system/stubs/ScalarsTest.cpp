// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Scalars.h>

#include "system/stubs/SizeRow.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

const SizeRow kScalars[] = {
    {"BOOL", sizeof(BOOL), 4},         {"BYTE", sizeof(BYTE), 1},
    {"WORD", sizeof(WORD), 2},         {"DWORD", sizeof(DWORD), 4},
    {"UINT", sizeof(UINT), 4},         {"LONG", sizeof(LONG), 4},
    {"HRESULT", sizeof(HRESULT), 4},   {"WPARAM", sizeof(WPARAM), 8},
    {"LPARAM", sizeof(LPARAM), 8},     {"LRESULT", sizeof(LRESULT), 8},
    {"COLORREF", sizeof(COLORREF), 4}, {"HANDLE", sizeof(HANDLE), 8},
    {"HGDIOBJ", sizeof(HGDIOBJ), 8},   {"HWND", sizeof(HWND), 8},
    {"HDC", sizeof(HDC), 8},           {"HINSTANCE", sizeof(HINSTANCE), 8},
    {"HMODULE", sizeof(HMODULE), 8},   {"HCURSOR", sizeof(HCURSOR), 8},
    {"HFONT", sizeof(HFONT), 8},       {"HPALETTE", sizeof(HPALETTE), 8},
    {"HACCEL", sizeof(HACCEL), 8},     {"HMENU", sizeof(HMENU), 8},
    {"HBITMAP", sizeof(HBITMAP), 8},   {"HKEY", sizeof(HKEY), 8},
    {"POSITION", sizeof(POSITION), 8},
};

} // namespace

TEST(Scalars, HaveThePublishedSizes)
{
    expectPublishedSizes(kScalars);
}

TEST(Scalars, TakeAWidgetForAWindow)
{
    EXPECT_TRUE((std::is_same_v<CWnd, QWidget>));
}
