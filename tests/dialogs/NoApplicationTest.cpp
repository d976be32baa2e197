// SPDX-License-Identifier: MIT
//
// Programs that have no application object, or one without windows.
#include <KtQtBase/FileDialog.h>
#include <KtQtBase/Messages.h>

#include <QtCore/QCoreApplication>

#include <gtest/gtest.h>

namespace {

// An application object for programs without windows.
class ConsoleApplication
{
private:
    int m_count = 1;
    char m_name[8] = "console";
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication m_application{m_count, m_arguments};
};

TEST(ProgramWithoutApplication, SendsAndPostsToNobody)
{
    EXPECT_EQ(SendMessage(nullptr, 1, 2, 3), 0);
    EXPECT_EQ(SendMessage(reinterpret_cast<HWND>(1), 1, 2, 3), 0);
    EXPECT_TRUE(PostMessage(nullptr, 1, 2, 3));
    EXPECT_TRUE(PostMessage(reinterpret_cast<HWND>(1), 1, 2, 3));
    EXPECT_GE(QKtMsgEvent::iKtMsgEventType, QEvent::User);
}

TEST(ProgramWithoutApplication, MakesEventsOfTheRegisteredType)
{
    const QKtMsgEvent event(1, 2, 3);
    EXPECT_EQ(event.type(), QKtMsgEvent::eventType());
}

TEST(ProgramWithoutApplication, GetsAnAbortedBoxAndACancelledDialog)
{
    EXPECT_EQ(AfxMessageBox(L"text"), IDABORT);
    EXPECT_EQ(AfxMessageBox(101u), IDABORT);
    KtQtFileDialog dialog(true);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetStartPosition(), nullptr);
}

TEST(ProgramWithoutWindows, SendsAndPostsToNobody)
{
    const ConsoleApplication application;
    EXPECT_EQ(SendMessage(reinterpret_cast<HWND>(1), 1, 2, 3), 0);
    EXPECT_TRUE(PostMessage(reinterpret_cast<HWND>(1), 1, 2, 3));
    QCoreApplication::processEvents();
}

TEST(ProgramWithoutWindows, GetsAnAbortedBoxAndACancelledDialog)
{
    const ConsoleApplication application;
    EXPECT_EQ(AfxMessageBox(L"text"), IDABORT);
    EXPECT_EQ(KtQtFileDialog(false).DoModal(), IDCANCEL);
}

} // namespace
