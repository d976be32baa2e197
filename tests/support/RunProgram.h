// SPDX-License-Identifier: MIT
//
// Runs a program as a person would and keeps what it said.
#ifndef KTQTBASE_TESTS_SUPPORT_RUNPROGRAM_H
#define KTQTBASE_TESTS_SUPPORT_RUNPROGRAM_H

#include "support/ChildProcess.h"

#include <QtCore/QStringList>

#include <string>

struct ProgramResult
{
    int status = -1;
    std::string out;
    std::string err;
};

// Result: the exit status, or -1 if the program did not start or did not end by itself.
inline ProgramResult runProgram(const char* program, const QStringList& arguments,
                                const QByteArray& input = QByteArray())
{
    ChildProcess process;
    ProgramResult result;
    if (!process.start(QString::fromLocal8Bit(program), arguments))
        return result;
    process->write(input);
    process->closeWriteChannel();
    if (process->waitForFinished(ChildProcess::kPatience) &&
        process->exitStatus() == QProcess::NormalExit)
        result.status = process->exitCode();
    result.out = process->readAllStandardOutput().toStdString();
    result.err = process->readAllStandardError().toStdString();
    return result;
}

#endif
