// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SHAPETEXT_H
#define SKETCHPAD_SHAPETEXT_H

#include "Shape.h"

// A shape as a line of a drawing's file, without its end, and back.
std::string TextFromShape(const CShape& shape);
bool ShapeFromText(const std::string& line, CShape& shape, std::wstring& problem);

// A colour as six hexadecimal digits.
bool ColorFromText(const std::string& text, COLORREF& color);

#endif
