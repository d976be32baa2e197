// SPDX-License-Identifier: MIT
//
// Someone at the keyboard and the mouse of an X display, outside of the drawing program's process.
#ifndef KTQTBASE_TESTS_EXAMPLES_SKETCHPAD_PERSON_H
#define KTQTBASE_TESTS_EXAMPLES_SKETCHPAD_PERSON_H

#include "Host.h"
#include "support/ChildProcess.h"

#include <QtCore/QPoint>
#include <QtGui/QPixmap>

#include <functional>

class Person
{
public:
    // Starts the program and waits for a window to be active whose title ends so.
    explicit Person(const Host& host, const QStringList& arguments = QStringList(),
                    const QString& title = " - Sketchpad");

    // Each result says whether it happened within some seconds.
    static bool waitFor(const std::function<bool()>& condition);
    bool waitForTitle(const QString& end) const; // of the active window
    bool waitForEnd(int status);
    bool waitForBox() const; // a window of the program's before its main one
    bool waitForNoBox() const;

    void press(const QString& keys) const;
    void type(const QString& text) const;
    // With the left button from one place of the main window to another.
    void drag(const QPoint& from, const QPoint& to) const;

    // Away from the user, so many steps.
    void turnWheelWithCtrl(const QPoint& point, int steps) const;

    // Types a name into the dialog of this title and waits until the dialog is gone. Without a
    // name, takes the one that it proposes.
    bool answerDialog(const QString& title, const QString& name) const;

    void moveWindow(const QPoint& point) const;
    QPoint windowPlace() const; // of its corner inside the frame, on the screen
    QPixmap picture() const;    // with its frame

    static QString activeTitle(); // empty while no window takes the keys

private:
    ChildProcess m_program; // killed at the end if it still runs
    QString m_window;
};

#endif
