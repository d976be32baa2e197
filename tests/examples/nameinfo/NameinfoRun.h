// SPDX-License-Identifier: MIT
//
// The name program, run as a person runs it.
#ifndef KTQTBASE_TESTS_EXAMPLES_NAMEINFO_NAMEINFORUN_H
#define KTQTBASE_TESTS_EXAMPLES_NAMEINFO_NAMEINFORUN_H

#include "support/RunProgram.h"
#include "support/Terminal.h"

#include <QtCore/QJsonArray>
#include <QtCore/QStringList>

#include <string>
#include <vector>

class QTemporaryDir;

ProgramResult runNameinfo(const QStringList& arguments, const QByteArray& input = QByteArray());

// Runs a line of the shell, in which "$0" is the program and "$1" and so on are the arguments.
ProgramResult runInShell(const QString& line, const QStringList& arguments = QStringList());

// What it prints where the output is no terminal and COLUMNS is set.
std::string printedIn(int columns, const QStringList& arguments,
                      const QByteArray& input = QByteArray());

// What a terminal of a width shows.
std::string shownOn(const Terminal& terminal, const QStringList& arguments);

QString writeList(const QTemporaryDir& folder, const QByteArray& bytes);

// The answers for each name, with every column.
QJsonArray answersFor(const QStringList& arguments);

std::vector<std::string> linesOf(const std::string& text);

#endif
