// SPDX-License-Identifier: MIT
//
// What the program starts with, from sketchpad.ini beside the executable.
#ifndef SKETCHPAD_DEFAULTS_H
#define SKETCHPAD_DEFAULTS_H

#include "Shape.h"

struct CDefaults
{
    CPenInfo pen;
    SIZE paper = {640, 400};
    int grid = 20; // pixels between two lines; 0 for none
};

// A file that is missing, or that may not be written, counts as absent: the built-in defaults then
// hold, and reason says so.
CDefaults ReadDefaults(std::wstring& reason);

#endif
