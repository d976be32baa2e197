// SPDX-License-Identifier: MIT
#include "system/stubs/Poisoned.h"

#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/UserStubs.h>

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QWidget>

#include <gtest/gtest.h>

namespace {

template<class Handle>
Handle someHandle()
{
    return reinterpret_cast<Handle>(0x10ULL);
}

HWND handleOf(const QWidget& widget)
{
    return reinterpret_cast<HWND>(widget.winId());
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

TEST(GetCursor, IsNull)
{
    EXPECT_EQ(KtUser32::GetCursor(), nullptr);
}

TEST(SetCursor, ChangesNothing)
{
    KtUser32::SetCursor(reinterpret_cast<HCURSOR>(1));
    EXPECT_EQ(KtUser32::GetCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(EnableWindow, SaysTrueAndChangesNothing)
{
    QWidget widget;
    EXPECT_EQ(KtUser32::EnableWindow(handleOf(widget), false), true);
    EXPECT_TRUE(widget.isEnabled());
    EXPECT_EQ(KtUser32::EnableWindow(nullptr, true), true);
}

TEST(SetFocus, IsNullAndMovesNoFocus)
{
    QWidget widget;
    EXPECT_EQ(KtUser32::SetFocus(handleOf(widget)), nullptr);
    EXPECT_FALSE(widget.hasFocus());
    EXPECT_EQ(KtUser32::GetFocus(), nullptr);
}

TEST(SetFocus, LeavesTheFocusOfAnActiveWindow)
{
    QWidget window;
    QLineEdit first(&window);
    QLineEdit second(&window);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    first.setFocus();
    ASSERT_TRUE(first.hasFocus());
    EXPECT_EQ(KtUser32::SetFocus(handleOf(second)), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), &first);
    EXPECT_EQ(KtUser32::GetFocus(), nullptr);
}

TEST(GetKeyState, ReportsNoKeyDownOrToggled)
{
    for (int key = -1; key <= 256; ++key)
        EXPECT_EQ(GetKeyState(key), 0) << key;
    EXPECT_EQ(GetKeyState(VK_SHIFT), 0);
}
