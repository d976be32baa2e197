// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/UserStubs.h>

#include "system/stubs/Poisoned.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

template<class Handle>
Handle someHandle()
{
    return reinterpret_cast<Handle>(0x10ULL);
}

} // namespace

TEST(GetDC, IsNull)
{
    EXPECT_EQ(GetDC(someHandle<HWND>()), nullptr);
    EXPECT_EQ(GetDC(nullptr), nullptr);
}

TEST(ReleaseDC, ReturnsZero)
{
    EXPECT_EQ(ReleaseDC(someHandle<HWND>(), someHandle<HDC>()), 0);
    EXPECT_EQ(ReleaseDC(nullptr, nullptr), 0);
}

TEST(MessageBox, ShowsNoBoxAndReturnsAtOnce)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argumentCount = 1;
    char program[] = "test";
    char* arguments[] = {program, nullptr};
    QApplication application(argumentCount, arguments);
    EXPECT_EQ(MessageBox(nullptr, L"text", L"caption", MB_YESNO | MB_ICONERROR), 0);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST(GetCursorPos, WritesNoPoint)
{
    Poisoned<POINT> point;
    EXPECT_EQ(GetCursorPos(point.get()), 0);
    EXPECT_TRUE(point.isUntouched());
}

TEST(DestroyMenu, ReturnsZero)
{
    EXPECT_EQ(DestroyMenu(someHandle<HMENU>()), 0);
    EXPECT_EQ(DestroyMenu(nullptr), 0);
}

TEST(DestroyAcceleratorTable, ReturnsZero)
{
    EXPECT_EQ(DestroyAcceleratorTable(someHandle<HACCEL>()), 0);
    EXPECT_EQ(DestroyAcceleratorTable(nullptr), 0);
}

TEST(RegisterClipboardFormat, RegistersNoFormat)
{
    EXPECT_EQ(RegisterClipboardFormatW(L"Rich Text Format"), 0u);
    EXPECT_EQ(RegisterClipboardFormatW(L""), 0u);
}
