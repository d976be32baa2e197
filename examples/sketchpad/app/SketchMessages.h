// SPDX-License-Identifier: MIT
//
// The messages between the tools and the view. SendMessage always returns 0: answers go through the
// memory that lParam points to.
#ifndef SKETCHPAD_SKETCHMESSAGES_H
#define SKETCHPAD_SKETCHMESSAGES_H

#include "Shape.h"

constexpr UINT WM_SKETCH_ADDSHAPE = WM_USER + 1;  // lParam: const CShape*
constexpr UINT WM_SKETCH_PREVIEW = WM_USER + 2;   // lParam: const CShape*, or 0 to end it
constexpr UINT WM_SKETCH_GETPEN = WM_USER + 3;    // lParam: CPenInfo*, written
constexpr UINT WM_SKETCH_SETPEN = WM_USER + 4;    // lParam: const CPenInfo*
constexpr UINT WM_SKETCH_SELECT = WM_USER + 5;    // lParam: const CRect*
constexpr UINT WM_SKETCH_DRAGRECT = WM_USER + 6;  // lParam: const CRect*, or 0 to end it
constexpr UINT WM_SKETCH_SETTOOL = WM_USER + 7;   // wParam: a ToolId
constexpr UINT WM_SKETCH_GETCOUNTS = WM_USER + 8; // lParam: CSketchCounts*, written
constexpr UINT WM_SKETCH_CHANGED = WM_USER + 9;   // posted when the drawing has changed
constexpr UINT WM_SKETCH_HITTEST = WM_USER + 10;  // lParam: CSketchHit*, answered
constexpr UINT WM_SKETCH_DRAGBY = WM_USER + 11;   // lParam: const POINT*, or 0 to end it
constexpr UINT WM_SKETCH_MOVEBY = WM_USER + 12;   // lParam: const POINT*
constexpr UINT WM_SKETCH_TAKETEXT = WM_USER + 13; // lParam: CSketchHit*, answered; hides the text
constexpr UINT WM_SKETCH_ENDTEXT = WM_USER + 14;  // lParam: const CSketchHit*

struct CSketchCounts
{
    int shapes = -1;
    int selected = -1;
};

constexpr int kNoShape = -1;

// The shape under a point.
struct CSketchHit
{
    POINT point = {};
    int index = kNoShape;
    bool selected = false;
    CShape shape;
};

enum ToolId : unsigned int
{
    TOOL_SELECT,
    TOOL_FREEHAND,
    TOOL_LINE,
    TOOL_RECTANGLE,
    TOOL_ELLIPSE,
    TOOL_TEXT,
    TOOL_PLUGIN,
    TOOL_COUNT
};

#endif
