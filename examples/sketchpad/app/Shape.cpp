// SPDX-License-Identifier: MIT
#include "Shape.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kFewestCorners = 72;
constexpr double kFineness = 8;

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

// So many corners that an edge leaves the ellipse by a tenth of a pixel at most.
std::vector<POINT> EllipseCorners(const std::vector<POINT>& corners, int scale)
{
    const double left = 1.0 * scale * corners.front().x;
    const double top = 1.0 * scale * corners.front().y;
    const double radiusX = std::abs(scale * 1.0 * corners.back().x - left) / 2;
    const double radiusY = std::abs(scale * 1.0 * corners.back().y - top) / 2;
    const double centerX = (left + scale * 1.0 * corners.back().x) / 2;
    const double centerY = (top + scale * 1.0 * corners.back().y) / 2;
    const int count =
        std::max(kFewestCorners, static_cast<int>(kFineness * std::sqrt(radiusX + radiusY)));
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
    return point.x > kFarthest || point.x < -kFarthest || point.y > kFarthest ||
           point.y < -kFarthest;
}

bool IsAllowed(const CPenInfo& pen)
{
    return pen.style >= PS_SOLID && pen.style <= PS_NULL && pen.width >= 0 &&
           pen.width <= kWidestPen;
}

bool IsAllowed(const CShape& shape)
{
    return IsAllowed(shape.pen) && !shape.points.empty() &&
           shape.points.size() <= static_cast<std::size_t>(kMostPoints) &&
           std::none_of(shape.points.begin(), shape.points.end(), IsTooFar);
}

bool IsVisible(const CShape& shape)
{
    const POINT first = shape.points.front();
    return shape.kind == ShapeKind::Text ||
           std::any_of(shape.points.begin(), shape.points.end(),
                       [first](POINT point) { return point.x != first.x || point.y != first.y; });
}

bool IsSame(const CShape& a, const CShape& b)
{
    const auto same = [](POINT one, POINT other) { return one.x == other.x && one.y == other.y; };
    return a.kind == b.kind && a.text == b.text && a.pen.style == b.pen.style &&
           a.pen.width == b.pen.width && a.pen.color == b.pen.color &&
           a.pen.filled == b.pen.filled && a.pen.fill == b.pen.fill &&
           std::equal(a.points.begin(), a.points.end(), b.points.begin(), b.points.end(), same);
}

CShape MovedBy(const CShape& shape, POINT offset)
{
    CShape moved = shape;
    for (POINT& point : moved.points)
        point = {point.x + offset.x, point.y + offset.y};
    return moved;
}
