// SPDX-License-Identifier: MIT
//
// The file of a drawing: UTF-8 text, one line for each shape.
//
//     SKETCHPAD 1
//     polygon 0 3 0000ff 00ffff 3 10,10 90,10 50,80
//     text 0 1 000000 none 1 20,40 Any text up to the line's end
//
// A line holds the kind, the pen's style, width and colour, the fill's colour, the number of points
// and the points. Colours are COLORREF values in hexadecimal. A byte order mark in front, the line
// ends of Windows and a last line without one are read, too.
#ifndef SKETCHPAD_DOCFILE_H
#define SKETCHPAD_DOCFILE_H

#include "SafeFile.h"
#include "Shape.h"

#include <istream>
#include <ostream>

// Result: whether the whole file was understood; if not, shapes is unspecified and reason says why.
bool ReadSketch(const std::wstring& path, std::vector<CShape>& shapes, std::wstring& reason);
bool ReadSketch(std::istream& stream, std::vector<CShape>& shapes, std::wstring& reason);

// If it fails, the former file stays as it was.
bool WriteSketch(const std::wstring& path, const std::vector<CShape>& shapes, CFileMode mode,
                 std::wstring& reason);
void WriteSketch(std::ostream& stream, const std::vector<CShape>& shapes);

#endif
