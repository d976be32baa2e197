// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SHAPE_H
#define SKETCHPAD_SHAPE_H

#include <KtQtBase/WindowsTypes.h>
#include <KtQtBase/windows/Packing.h>

#include <string>
#include <vector>

struct CPenInfo
{
    int style = PS_SOLID;
    int width = 2;
    COLORREF color = RGB(0, 0, 0);
    bool filled = false;
    COLORREF fill = RGB(255, 255, 255);
};

enum class ShapeKind
{
    Line,
    Polygon,
    Text
};

// One figure of a drawing. Rectangles, ellipses and stars are polygons.
struct CShape
{
    ShapeKind kind = ShapeKind::Line;
    CPenInfo pen;
    std::vector<POINT> points; // a text has one: the left end of its baseline
    std::wstring text;
};

// The smallest rectangle that holds a shape's points; a text's width is estimated.
CRect BoundsOf(const CShape& shape);

// The rectangle between two corners, whichever way they were dragged.
CRect RectBetween(POINT from, POINT to);

bool Intersect(const CRect& a, const CRect& b);

#endif
