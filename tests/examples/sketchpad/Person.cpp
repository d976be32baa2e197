// SPDX-License-Identifier: MIT
#include "Person.h"

#include "support/RunProgram.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QRect>
#include <QtCore/QThread>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <utility>

namespace {

constexpr int kMoveSteps = 4;

QString xdotool(const QStringList& arguments)
{
    const std::string said = runProgram(XDOTOOL, arguments).out;
    return QString::fromStdString(said).trimmed();
}

// Empty while no window takes the keys: the window manager says a little earlier which is active.
QString activeWindow()
{
    const QString window = xdotool({"getactivewindow"});
    return window == xdotool({"getwindowfocus"}) ? window : QString();
}

QStringList place(const QPoint& point)
{
    return {QString::number(point.x()), QString::number(point.y())};
}

int valueIn(const QString& shell, const QString& name)
{
    for (const QString& line : shell.split('\n'))
        if (line.startsWith(name))
            return line.mid(name.size()).toInt();
    return 0;
}

} // namespace

Person::Person(const Host& host, const QStringList& arguments, const QString& title)
{
    host.prepare(*m_program, arguments);
    m_program->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    if (m_program.start() && waitForTitle(title))
        m_window = activeWindow();
}

bool Person::waitFor(const std::function<bool()>& condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > ChildProcess::kPatience)
            return false;
        QThread::msleep(20);
    }
    return true;
}

QString Person::activeTitle()
{
    const QString window = activeWindow();
    return window.isEmpty() ? QString() : xdotool({"getwindowname", window});
}

bool Person::waitForTitle(const QString& end) const
{
    return waitFor([&end] {
        const QString title = activeTitle();
        return !title.isEmpty() && title.endsWith(end);
    });
}

bool Person::waitForEnd(int status)
{
    return m_program->waitForFinished(ChildProcess::kPatience) && m_program->exitCode() == status;
}

bool Person::waitForBox() const
{
    return waitFor([this] {
        const QString window = activeWindow();
        return !window.isEmpty() && window != m_window;
    });
}

bool Person::waitForNoBox() const
{
    return waitFor([this] { return activeWindow() == m_window; });
}

void Person::turnWheelWithCtrl(const QPoint& point, int steps) const
{
    xdotool(QStringList{"mousemove", "--window", m_window} + place(point));
    xdotool({"keydown", "ctrl"});
    xdotool({"click", "--repeat", QString::number(steps), "4"});
    xdotool({"keyup", "ctrl"});
}

void Person::press(const QString& keys) const
{
    xdotool({"key", "--clearmodifiers", keys});
}

void Person::type(const QString& text) const
{
    xdotool({"type", "--delay", "10", text});
}

void Person::drag(const QPoint& from, const QPoint& to) const
{
    xdotool(QStringList{"mousemove", "--window", m_window} + place(from));
    xdotool({"mousedown", "1"});
    for (int step = 1; step <= kMoveSteps; ++step)
        xdotool(QStringList{"mousemove", "--window", m_window} +
                place(from + (to - from) * step / kMoveSteps));
    xdotool({"mouseup", "1"});
}

// The first Return may only take a name that the field proposes.
bool Person::answerDialog(const QString& title, const QString& name) const
{
    if (!waitForTitle(title))
        return false;
    if (!name.isEmpty())
        type(name);
    return waitFor([this, &title] {
        press("Return");
        QThread::msleep(100);
        return waitForTitle("") && activeTitle() != title;
    });
}

void Person::moveWindow(const QPoint& point) const
{
    xdotool(QStringList{"windowmove", "--sync", m_window} + place(point));
    // There may be several changes of place, and the program gets them later.
    QPoint last;
    waitFor([&] {
        QThread::msleep(200);
        const QPoint former = std::exchange(last, windowPlace());
        return last == former;
    });
}

// By way of the mouse, since xdotool counts the frame twice for some windows.
QPoint Person::windowPlace() const
{
    xdotool({"mousemove", "--window", m_window, "0", "0"});
    const QString shell = xdotool({"getmouselocation", "--shell"});
    return QPoint(valueIn(shell, "X="), valueIn(shell, "Y="));
}

QPixmap Person::picture() const
{
    const QString shell = xdotool({"getwindowgeometry", "--shell", m_window});
    const QSize size(valueIn(shell, "WIDTH="), valueIn(shell, "HEIGHT="));
    const QRect framed = QRect(windowPlace(), size).adjusted(-1, -20, 1, 5);
    return QGuiApplication::primaryScreen()->grabWindow(0, framed.x(), framed.y(), framed.width(),
                                                        framed.height());
}
