// SPDX-License-Identifier: MIT
#include "ScriptPlayer.h"

#include "MainWindow.h"
#include "app/FileNames.h"
#include "app/Narrow.h"

#include <KtQtBase/Messages.h>

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <fstream>
#include <iostream>
#include <sstream>

ScriptPlayer::ScriptPlayer(MainWindow& window)
    : QObject(&window), m_window(window), m_answerer(this)
{
    m_window.lineShown = [this](const std::wstring& line) { say("line", NarrowForDisplay(line)); };
    m_answerer.answered = [this](const QString& text, const QString& answer) {
        say("box",
            QString(text).replace('\n', ' ').toStdString() + " [" + answer.toStdString() + ']');
        if (answer.isEmpty())
            fail("no answer was ready for this box");
    };
}

bool ScriptPlayer::load(const std::string& path)
{
    std::ifstream stream(path);
    for (std::string line; std::getline(stream, line);)
        m_lines.push_back(line);
    return stream.eof() && !m_lines.empty();
}

void ScriptPlayer::start()
{
    QTimer::singleShot(0, this, &ScriptPlayer::step);
}

// Each command in its own turn of the event loop, so that posted messages arrive in between.
void ScriptPlayer::step()
{
    if (m_next == m_lines.size()) {
        finish();
        return;
    }
    const std::string line = m_lines[m_next++];
    if (!line.empty() && line[0] != '#' && !play(line))
        fail("this command failed: " + line);
    start();
}

void ScriptPlayer::finish()
{
    if (!m_window.close())
        fail("the window did not close");
    if (m_answerer.hasLeftovers())
        fail("nothing asked for an answer or a name that was ready");
    QApplication::exit(m_failures == 0 ? 0 : 1);
}

bool ScriptPlayer::play(const std::string& line)
{
    std::istringstream arguments(line);
    std::string word;
    arguments >> word >> std::ws;
    const Handler handler = handlerOf(word);
    return handler && (this->*handler)(arguments);
}

void ScriptPlayer::fail(const std::string& what)
{
    ++m_failures;
    std::cerr << "sketchpad: script line " << m_next << ": " << what << std::endl;
}

void ScriptPlayer::say(const std::string& kind, const std::string& text)
{
    std::cout << kind << ": " << text << std::endl;
}

void ScriptPlayer::send(UINT message, WPARAM wParam, LPARAM lParam)
{
    SendMessage(m_window.viewWindow(), message, wParam, lParam);
}
