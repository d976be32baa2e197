// SPDX-License-Identifier: MIT
#include "Tools.h"

#include "ShapePlugIn.h"

#include <KtQtBase/Messages.h>

#include <cmath>

namespace {

constexpr int kEllipseCorners = 72;

std::vector<POINT> LinePoints(POINT from, POINT to)
{
    return {from, to};
}

std::vector<POINT> RectanglePoints(POINT from, POINT to)
{
    return {from, {to.x, from.y}, to, {from.x, to.y}};
}

// The painter has no call for ellipses.
std::vector<POINT> EllipsePoints(POINT from, POINT to)
{
    const double fullTurn = 2 * std::acos(-1.0);
    std::vector<POINT> points;
    for (int i = 0; i < kEllipseCorners; ++i) {
        const double angle = fullTurn * i / kEllipseCorners;
        const double x = from.x + (to.x - from.x) * (1 + std::cos(angle)) / 2;
        const double y = from.y + (to.y - from.y) * (1 + std::sin(angle)) / 2;
        points.push_back({static_cast<LONG>(std::lround(x)), static_cast<LONG>(std::lround(y))});
    }
    return points;
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

class CSelectTool : public CTool
{
public:
    using CTool::CTool;

    void OnDown(POINT point) override { m_from = point; }

    void OnMove(POINT point) override
    {
        const CRect rect = RectBetween(m_from, point);
        Send(WM_SKETCH_DRAGRECT, &rect);
    }

    void OnUp(POINT point) override
    {
        const CRect rect = RectBetween(m_from, point);
        Send(WM_SKETCH_DRAGRECT, nullptr);
        Send(WM_SKETCH_SELECT, &rect);
    }

private:
    POINT m_from = {};
};

// A click chooses the place; each key adds to the text until Return or another click.
class CTextTool : public CTool
{
public:
    using CTool::CTool;

    void OnDown(POINT point) override
    {
        Finish();
        m_shape.kind = ShapeKind::Text;
        m_shape.pen = AskForPen();
        m_shape.points = {point};
    }

    void OnMove(POINT) override {}
    void OnUp(POINT) override {}

    void OnChar(wchar_t character) override
    {
        if (m_shape.points.empty())
            return;
        if (character == VK_RETURN) {
            Finish();
            return;
        }
        if (character == VK_BACK && !m_shape.text.empty())
            m_shape.text.pop_back();
        else if (character >= L' ')
            m_shape.text += character;
        Send(WM_SKETCH_PREVIEW, &m_shape);
    }

    void Finish() override
    {
        Send(WM_SKETCH_PREVIEW, nullptr);
        if (!m_shape.text.empty())
            Send(WM_SKETCH_ADDSHAPE, &m_shape);
        m_shape = CShape();
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
        return std::make_unique<CDragTool>(view, ShapeKind::Line, LinePoints);
    case TOOL_RECTANGLE:
        return std::make_unique<CDragTool>(view, ShapeKind::Polygon, RectanglePoints);
    case TOOL_ELLIPSE:
        return std::make_unique<CDragTool>(view, ShapeKind::Polygon, EllipsePoints);
    case TOOL_TEXT:
        return std::make_unique<CTextTool>(view);
    case TOOL_PLUGIN:
        return std::make_unique<CDragTool>(view, ShapeKind::Polygon, PlugInPoints);
    default:
        return std::make_unique<CSelectTool>(view);
    }
}
