// SPDX-License-Identifier: MIT
//
// The arguments of the command line.
#ifndef KTQTBASE_EXAMPLES_GALLERY_ARGUMENTS_H
#define KTQTBASE_EXAMPLES_GALLERY_ARGUMENTS_H

#include <QtCore/QString>

struct Arguments
{
    QString png;
    QString pdf;
    QString compare;
    QString with; // empty for the sheet drawn now
    QString difference;
    double ratio = 0; // 0 if none is given
    bool help = false;
    QString error; // empty if all is understood

    bool toFiles() const { return !png.isEmpty() || !pdf.isEmpty() || !compare.isEmpty(); }
};

extern const char* const kUsage;

Arguments readArguments(int count, char** values);

#endif
