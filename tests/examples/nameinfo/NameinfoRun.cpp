// SPDX-License-Identifier: MIT
#include "NameinfoRun.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QTemporaryDir>

#include <sstream>

ProgramResult runNameinfo(const QStringList& arguments, const QByteArray& input)
{
    return runProgram(NAMEINFO, arguments, input);
}

ProgramResult runInShell(const QString& line, const QStringList& arguments)
{
    return runProgram("/bin/sh", QStringList{"-c", line, NAMEINFO} + arguments);
}

std::string printedIn(int columns, const QStringList& arguments, const QByteArray& input)
{
    const QString variable = QStringLiteral("COLUMNS=%1").arg(columns);
    const ProgramResult result =
        runProgram("/usr/bin/env", QStringList{variable, NAMEINFO} + arguments, input);
    EXPECT_EQ(result.status, 0) << result.err;
    return result.out;
}

std::string shownOn(const Terminal& terminal, const QStringList& arguments)
{
    ChildProcess process;
    process->setStandardOutputFile(terminal.name());
    EXPECT_TRUE(process.start(NAMEINFO, arguments));
    EXPECT_TRUE(process->waitForFinished(ChildProcess::kPatience));
    return terminal.text();
}

QString writeList(const QTemporaryDir& folder, const QByteArray& bytes)
{
    QFile file(folder.filePath("list.txt"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
}

QJsonArray answersFor(const QStringList& arguments)
{
    const ProgramResult result = runNameinfo(QStringList{"--json"} + arguments);
    EXPECT_EQ(result.status, 0) << result.err;
    return QJsonDocument::fromJson(QByteArray::fromStdString(result.out)).array();
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}
