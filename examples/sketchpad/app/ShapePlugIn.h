// SPDX-License-Identifier: MIT
//
// A module that adds a shape to the tools. It exports this function without name decoration:
//
//     int MakeShape(const RECT* bounds, POINT* points, int room);
//
// which writes at most room points of a polygon within the bounds and returns their number.
#ifndef SKETCHPAD_SHAPEPLUGIN_H
#define SKETCHPAD_SHAPEPLUGIN_H

#include "Shape.h"

// Loads starshape.dll from the executable's folder.
// Result: an empty text, or why there is no such tool.
std::wstring LoadShapePlugIn();
bool HasShapePlugIn();

// The module's polygon between two corners; empty without a module.
std::vector<POINT> PlugInPoints(POINT from, POINT to);

#endif
