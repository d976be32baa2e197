// SPDX-License-Identifier: MIT
//
// The drawing program in a folder of its own, where parts of it may be missing or broken.
#ifndef KTQTBASE_TESTS_EXAMPLES_SKETCHPAD_HOST_H
#define KTQTBASE_TESTS_EXAMPLES_SKETCHPAD_HOST_H

#include "support/TemporaryFolder.h"

#include <QtCore/QProcess>

#include <string>

struct SessionResult
{
    int status = -1;
    std::string out;
    std::string err;
};

// What draws a square, and the file of that drawing.
inline const std::string kDrawSquare = "tool rectangle\ndrag 60,60 160,160\n";
inline const std::string kSquareFile =
    "SKETCHPAD 1\npolygon 0 3 000000 none 4 60,60 160,60 160,160 60,160\n";

class Host
{
public:
    // Copies the program, its modules and its INI file to a folder under this name.
    explicit Host(const std::string& folder = "program");

    std::filesystem::path program() const { return m_program; } // the folder
    std::filesystem::path work() const { return m_work; }       // the working directory
    std::filesystem::path settings() const;                     // the store's file

    std::filesystem::path data() const; // the program's own folder
    std::filesystem::path textsModule() const;
    std::filesystem::path plugIn() const;

    // The environment, for changes before the start.
    QProcessEnvironment environment;

    // Plays a script to its end.
    SessionResult play(const std::string& script);

    // The same with files that must not grow beyond some KiB, as on a full disk.
    SessionResult playWithLimit(int kibibytes, const std::string& script);

    // Gives a file of the program another content; the program's own is left alone.
    void replaceFile(const std::filesystem::path& file, const std::string& content) const;

    // Makes a process ready to start the program in the working directory.
    void prepare(QProcess& process, const QStringList& arguments) const;

    std::string file(const char* name) const { return ktqtbase::test::readFile(m_work / name); }
    void writeFile(const char* name, const std::string& text) const
    {
        ktqtbase::test::writeFile(m_work / name, text);
    }

private:
    ktqtbase::test::TemporaryFolder m_folder;
    std::filesystem::path m_program;
    std::filesystem::path m_work;
};

#endif
