// SPDX-License-Identifier: MIT
//
// A user for windows that block their caller.
#ifndef KTQTBASE_TESTS_DIALOGS_USER_H
#define KTQTBASE_TESTS_DIALOGS_USER_H

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <functional>
#include <ostream>
#include <utility>

#include <gtest/gtest.h>

// For the messages of failed tests.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

// Waits for a dialog of one kind to become active, then acts on it once. A dialog that the action
// leaves open fails the test and is closed, so that no test hangs.
template<class Dialog>
class User
{
public:
    explicit User(std::function<void(Dialog&)> act) : m_act(std::move(act))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(10);
    }

    ~User() { EXPECT_TRUE(m_acted) << "no dialog appeared"; }

private:
    void look()
    {
        const QPointer<Dialog> dialog(find());
        if (!dialog)
            return;
        m_timer.stop();
        m_acted = true;
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        m_act(*dialog);
        if (dialog && dialog->isVisible()) {
            ADD_FAILURE() << "the dialog is still open";
            dialog->reject();
        }
    }

    static Dialog* find()
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* const dialog = qobject_cast<Dialog*>(widget);
            if (dialog && dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }

    std::function<void(Dialog&)> m_act;
    QTimer m_timer;
    bool m_acted = false;
};

// Keeps a picture of a window among the build's files, with its frame where the screen has one.
inline bool keepScreenshot(QWidget& window, const QString& name)
{
    // What the window shows is read and painted in the background.
    QTest::qWait(300);
    const QRect frame = window.frameGeometry();
    QPixmap picture =
        window.screen()->grabWindow(0, frame.x(), frame.y(), frame.width(), frame.height());
    if (picture.isNull())
        picture = window.grab();
    return picture.save(QStringLiteral(SCREENSHOTS) + name + u'-' +
                        QGuiApplication::platformName() + QStringLiteral(".png"));
}

#endif
