// SPDX-License-Identifier: MIT
//
// The examples at the head of the public headers, as a host would write them.
#include "dialogs/FileDialogFixture.h"

#include <KtQtBase/Messages.h>
#include <KtQtBase/windows/MessageNumbers.h>

#include <QtWidgets/QMessageBox>

#include <memory>

namespace {

// The lines of a file that begin in one way, without that beginning and the blanks around them.
QByteArray linesFrom(const char* fileName, const QByteArray& prefix)
{
    QFile file(QString::fromUtf8(fileName));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray lines;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith(prefix))
            lines += line.mid(prefix.size()).trimmed() + '\n';
    return lines;
}

class Panel : public QWidget
{
protected:
    bool event(QEvent* event) override
    {
        if (auto* message = dynamic_cast<QKtMsgEvent*>(event))
            return onMessage(message->message(), message->wParam(), message->lParam());
        return QWidget::event(event);
    }

private:
    bool onMessage(UINT message, WPARAM, LPARAM lParam)
    {
        if (message == WM_USER + 2)
            *reinterpret_cast<int*>(lParam) = m_seen;
        m_seen = message == WM_USER + 1 ? 5 : m_seen;
        return true;
    }

    int m_seen = 0;
};

TEST(MessagesExample, PostsAsksAndSends)
{
    const auto panel = std::make_unique<Panel>();
    const User<QMessageBox> user([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    int answer = 0;
    HWND window = reinterpret_cast<HWND>(panel->winId());
    PostMessage(window, WM_USER + 1, 0, 0);
    if (AfxMessageBox(L"Save the changes?", MB_YESNO) == IDYES)
        SendMessage(window, WM_USER + 2, 0, reinterpret_cast<LPARAM>(&answer));
    EXPECT_EQ(answer, 5);
}

// The handler's body, and what follows the handler.
TEST(MessagesHeader, ShowsTheExampleThatIsCompiledHere)
{
    const QByteArray example = linesFrom(MESSAGES_HEADER, "//     ");
    const QByteArray compiled = linesFrom(HEADER_EXAMPLES, "    ");
    const auto body = example.indexOf("{\n");
    const auto end = example.indexOf("}\n");
    ASSERT_TRUE(0 < body && body < end) << example.toStdString();
    EXPECT_TRUE(compiled.contains(example.mid(body, end - body)));
    EXPECT_TRUE(compiled.contains("\n" + example.mid(end + 2))) << example.toStdString();
    EXPECT_TRUE(example.endsWith("(&answer));\n"));
}

using FileDialogExample = FileDialogFixture;

TEST_F(FileDialogExample, ImportsWhatTheUserSelects)
{
    std::vector<std::wstring> imported;
    const auto import = [&imported](const std::wstring& name) { imported.push_back(name); };
    const User<QFileDialog> user(
        [this](QFileDialog& shown) { typeNameAndReturn(shown, path(QStringLiteral("may.txt"))); });
    KtQtFileDialog dialog(true);
    dialog.GetOFN().lpstrTitle = L"Import";
    dialog.GetOFN().lpstrFilter = L"Text (*.txt);;All files (*)";
    dialog.GetOFN().nFilterIndex = 1;
    dialog.GetOFN().lpstrInitialDir = L"/data/in";
    if (dialog.DoModal() == IDOK) {
        POSITION pos = dialog.GetStartPosition();
        while (pos)
            import(dialog.GetNextPathName(pos));
    }
    EXPECT_EQ(imported, std::vector<std::wstring>{widePath("may.txt")});
}

TEST(FileDialogHeader, ShowsTheExampleThatIsCompiledHere)
{
    const QByteArray example = linesFrom(FILEDIALOG_HEADER, "//     ");
    EXPECT_TRUE(example.contains("POSITION pos = dialog.GetStartPosition();\n"));
    EXPECT_TRUE(linesFrom(HEADER_EXAMPLES, "    ").contains(example)) << example.toStdString();
}

} // namespace
