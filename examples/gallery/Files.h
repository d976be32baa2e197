// SPDX-License-Identifier: MIT
//
// The gallery's files. A function that fails says why in one line on standard error.
#ifndef KTQTBASE_EXAMPLES_GALLERY_FILES_H
#define KTQTBASE_EXAMPLES_GALLERY_FILES_H

#include "Arguments.h"

constexpr int kDifferent = 1;
constexpr int kFailed = 2;

// Writes the picture and the page; the result is the program's exit status.
int writeFiles(const Arguments& arguments);

// Prints what differs and writes the difference; the result is the program's exit status.
int compareFiles(const Arguments& arguments);

// Prints a text on standard output.
bool print(const QString& text);

void complain(const QString& text);

#endif
