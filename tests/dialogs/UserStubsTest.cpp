// SPDX-License-Identifier: MIT
#include <KtQtBase/Messages.h>
#include <KtQtBase/windows/Constants.h>

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QWidget>

#include <gtest/gtest.h>

namespace {

HWND handleOf(const QWidget& widget)
{
    return reinterpret_cast<HWND>(widget.winId());
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

} // namespace
