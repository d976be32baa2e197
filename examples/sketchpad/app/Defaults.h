// SPDX-License-Identifier: MIT
//
// What the program starts with, from sketchpad.ini in the executable's folder.
#ifndef SKETCHPAD_DEFAULTS_H
#define SKETCHPAD_DEFAULTS_H

#include "Shape.h"

struct CDefaults
{
    CPenInfo pen;
    SIZE paper = {640, 400};
    int grid = 20;     // pixels between two lines; 0 for none
    int autosave = 20; // seconds between two autosaves
};

// If the file is missing or may not be written, the built-in defaults are used, and reason says so.
CDefaults ReadDefaults(std::wstring& reason);

#endif
