// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SCRIPTPLAYER_H
#define SKETCHPAD_SCRIPTPLAYER_H

#include "BoxAnswerer.h"
#include "app/Shape.h"

#include <istream>
#include <vector>

class MainWindow;

// Replays a session from a file with one command on each line, and prints what the program showed.
// docs/sketchpad.md lists the commands. Relative names lie in the working directory.
class ScriptPlayer : public QObject
{
    Q_OBJECT

public:
    explicit ScriptPlayer(MainWindow& window);

    // Result: whether the file could be read.
    bool load(const std::string& path);

    // Plays when the event loop runs, then closes the window and ends the application: with 0, or
    // with 1 if a command failed or a box had no answer ready.
    void start();

private:
    using Handler = bool (ScriptPlayer::*)(std::istream& arguments);
    static Handler handlerOf(const std::string& command);

    void step();
    void finish();
    bool play(const std::string& line);
    void fail(const std::string& what);
    void say(const std::string& kind, const std::string& text);
    void send(UINT message, WPARAM wParam, LPARAM lParam);

    bool openFile(std::istream& arguments);
    bool saveFile(std::istream& arguments);
    bool saveCopy(std::istream& arguments);
    bool printFile(std::istream& arguments);
    bool screenshot(std::istream& arguments);
    bool tool(std::istream& arguments);
    bool pen(std::istream& arguments);
    bool fill(std::istream& arguments);
    bool drag(std::istream& arguments);
    bool type(std::istream& arguments);
    bool key(std::istream& arguments);
    bool message(std::istream& arguments);
    bool command(std::istream& arguments);
    bool answer(std::istream& arguments);
    bool choose(std::istream& arguments);
    bool expect(std::istream& arguments);
    bool paper(std::istream& arguments);
    bool clipboard(std::istream& arguments);
    bool resize(std::istream& arguments);
    bool autosave(std::istream& arguments);
    bool recover(std::istream& arguments);
    bool die(std::istream& arguments);
    bool copyOver(std::istream& arguments);

    MainWindow& m_window;
    BoxAnswerer m_answerer;
    std::vector<std::string> m_lines;
    std::size_t m_next = 0;
    int m_failures = 0;
};

#endif
