// SPDX-License-Identifier: MIT
#include "Tools.h"

#include "SelectTool.h"
#include "ShapePlugIn.h"
#include "TextTool.h"

#include <KtQtBase/Messages.h>

namespace {

// Of a line and of an ellipse.
std::vector<POINT> TwoPoints(POINT from, POINT to)
{
    return {from, to};
}

std::vector<POINT> RectanglePoints(POINT from, POINT to)
{
    return {from, {to.x, from.y}, to, {from.x, to.y}};
}

// Makes a figure between the point where the button was pressed and the mouse.
class CDragTool : public CTool
{
public:
    using PointMaker = std::vector<POINT> (*)(POINT from, POINT to);

    CDragTool(HWND view, ShapeKind kind, PointMaker points) : CTool(view), m_points(points)
    {
        m_shape.kind = kind;
    }

    void OnDown(POINT point) override
    {
        m_from = point;
        m_shape.pen = AskForPen();
    }

    void OnMove(POINT point) override
    {
        m_shape.points = m_points(m_from, point);
        Send(WM_SKETCH_PREVIEW, &m_shape);
    }

    void OnUp(POINT point) override
    {
        m_shape.points = m_points(m_from, point);
        Send(WM_SKETCH_PREVIEW, nullptr);
        Send(WM_SKETCH_ADDSHAPE, &m_shape);
    }

private:
    PointMaker m_points;
    POINT m_from = {};
    CShape m_shape;
};

class CFreehandTool : public CTool
{
public:
    using CTool::CTool;

    void OnDown(POINT point) override
    {
        m_shape.pen = AskForPen();
        m_shape.points = {point};
    }

    void OnMove(POINT point) override
    {
        if (m_shape.points.size() + 1 < kMostPoints)
            m_shape.points.push_back(point);
        Send(WM_SKETCH_PREVIEW, &m_shape);
    }

    void OnUp(POINT point) override
    {
        m_shape.points.push_back(point);
        Send(WM_SKETCH_PREVIEW, nullptr);
        Send(WM_SKETCH_ADDSHAPE, &m_shape);
    }

private:
    CShape m_shape;
};

} // namespace

CPenInfo CTool::AskForPen() const
{
    CPenInfo pen;
    SendMessage(m_hView, WM_SKETCH_GETPEN, 0, reinterpret_cast<LPARAM>(&pen));
    return pen;
}

void CTool::Send(UINT message, const void* what) const
{
    SendMessage(m_hView, message, 0, reinterpret_cast<LPARAM>(what));
}

std::unique_ptr<CTool> MakeTool(ToolId id, HWND view)
{
    switch (id) {
    case TOOL_FREEHAND:
        return std::make_unique<CFreehandTool>(view);
    case TOOL_LINE:
        return std::make_unique<CDragTool>(view, ShapeKind::Line, TwoPoints);
    case TOOL_RECTANGLE:
        return std::make_unique<CDragTool>(view, ShapeKind::Polygon, RectanglePoints);
    case TOOL_ELLIPSE:
        return std::make_unique<CDragTool>(view, ShapeKind::Ellipse, TwoPoints);
    case TOOL_TEXT:
        return std::make_unique<CTextTool>(view);
    case TOOL_PLUGIN:
        return std::make_unique<CDragTool>(view, ShapeKind::Polygon, PlugInPoints);
    default:
        return std::make_unique<CSelectTool>(view);
    }
}
