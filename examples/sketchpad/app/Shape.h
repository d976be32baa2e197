// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_SHAPE_H
#define SKETCHPAD_SHAPE_H

#include <KtQtBase/Porting.h>
#include <KtQtBase/WindowsTypes.h>

#include <functional>
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
    Ellipse,
    Text
};

// One figure of a drawing. Rectangles and stars are polygons.
struct CShape
{
    ShapeKind kind = ShapeKind::Line;
    CPenInfo pen;
    std::vector<POINT> points; // an ellipse has two corners, a text the left end of its baseline
    std::wstring text;
};

constexpr int kMostPoints = 100000; // of a shape
constexpr LONG kFarthest = 30000;   // as many units of a printer still fit its coordinates
constexpr int kWidestPen = 100;
constexpr int kTextHeight = 16; // pixels of a letter with what is below the baseline

// The width of a text in pixels, which only the window's system knows.
using CTextMeasure = std::function<int(const std::wstring& text)>;

// The smallest rectangle that holds a shape.
CRect BoundsOf(const CShape& shape, const CTextMeasure& measure);

// The corners of an ellipse, so many that a device of some pixels to a point shows no edge.
//   corners    in: two opposite corners of its rectangle
//   scale      in: the device's pixels to a point, in which the result counts
std::vector<POINT> EllipseCorners(const std::vector<POINT>& corners, int scale);

// The rectangle between two corners, whichever way they were dragged.
CRect RectBetween(POINT from, POINT to);

bool Intersect(const CRect& a, const CRect& b);

// Whether a drawing's file may hold it.
bool IsTooFar(POINT point);
bool IsAllowed(const CPenInfo& pen);
bool IsAllowed(const CShape& shape);

// A click without a drag makes a figure without a size, which nobody would see.
bool IsVisible(const CShape& shape);

bool IsSame(const CShape& a, const CShape& b);

// A shape that lies elsewhere.
CShape MovedBy(const CShape& shape, POINT offset);

#endif
