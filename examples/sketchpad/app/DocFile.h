// SPDX-License-Identifier: MIT
//
// The file of a drawing: UTF-8 text, one line for each shape.
//
//     SKETCHPAD 1
//     polygon 0 3 0000ff 00ffff 3 10,10 90,10 50,80
//     text 0 1 000000 none 1 20,40 Any text up to the line's end
//
// A line holds the kind, the pen's style, width and colour, the fill's colour, the number of points
// and the points. Colours are COLORREF values in hexadecimal.
#ifndef SKETCHPAD_DOCFILE_H
#define SKETCHPAD_DOCFILE_H

#include "Shape.h"

// Result: whether the whole file was understood; if not, shapes is unspecified and reason says why.
bool ReadSketch(const std::wstring& path, std::vector<CShape>& shapes, std::wstring& reason);

// Writes a temporary file in the same folder and renames it, so that a failure leaves the former
// file as it was.
bool WriteSketch(const std::wstring& path, const std::vector<CShape>& shapes, std::wstring& reason);

#endif
