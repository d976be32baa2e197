// SPDX-License-Identifier: MIT
#include "Shape.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int kFewestCorners = 72;

CRect TextBounds(const CShape& shape, const CTextMeasure& measure)
{
    const POINT start = shape.points.front();
    return CRect(start.x, start.y - kTextHeight, start.x + measure(shape.text),
                 start.y + kTextHeight / 4);
}

} // namespace

CRect RectBetween(POINT from, POINT to)
{
    return CRect(std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x),
                 std::max(from.y, to.y));
}

CRect BoundsOf(const CShape& shape, const CTextMeasure& measure)
{
    if (shape.points.empty())
        return CRect();
    if (shape.kind == ShapeKind::Text)
        return TextBounds(shape, measure);
    const POINT first = shape.points.front();
    CRect bounds(first.x, first.y, first.x, first.y);
    for (const POINT& point : shape.points) {
        bounds.left = std::min(bounds.left, point.x);
        bounds.top = std::min(bounds.top, point.y);
        bounds.right = std::max(bounds.right, point.x);
        bounds.bottom = std::max(bounds.bottom, point.y);
    }
    return bounds;
}

// With a corner for every two pixels of its half axes, no edge can be seen.
std::vector<POINT> EllipseCorners(const std::vector<POINT>& corners, int scale)
{
    const double centerX = scale * (corners.front().x + corners.back().x) / 2.0;
    const double centerY = scale * (corners.front().y + corners.back().y) / 2.0;
    const double radiusX = std::abs(scale * (corners.back().x - corners.front().x) / 2.0);
    const double radiusY = std::abs(scale * (corners.back().y - corners.front().y) / 2.0);
    const int count = std::max(kFewestCorners, static_cast<int>(radiusX + radiusY) / 2);
    std::vector<POINT> points;
    points.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * std::acos(-1.0) * i / count;
        points.push_back({static_cast<LONG>(std::lround(centerX + radiusX * std::cos(angle))),
                          static_cast<LONG>(std::lround(centerY + radiusY * std::sin(angle)))});
    }
    return points;
}

bool Intersect(const CRect& a, const CRect& b)
{
    return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

bool IsTooFar(POINT point)
{
    return std::abs(point.x) > kFarthest || std::abs(point.y) > kFarthest;
}

CShape MovedBy(const CShape& shape, POINT offset)
{
    CShape moved = shape;
    for (POINT& point : moved.points)
        point = {point.x + offset.x, point.y + offset.y};
    return std::any_of(moved.points.begin(), moved.points.end(), IsTooFar) ? shape : moved;
}
