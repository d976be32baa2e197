// SPDX-License-Identifier: MIT
#include "Shape.h"

#include <algorithm>

namespace {

constexpr int kTextHeight = 16;
constexpr int kTextWidth = 9; // of one character, roughly

} // namespace

CRect RectBetween(POINT from, POINT to)
{
    return CRect(std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x),
                 std::max(from.y, to.y));
}

CRect BoundsOf(const CShape& shape)
{
    if (shape.points.empty())
        return CRect();
    const POINT first = shape.points.front();
    if (shape.kind == ShapeKind::Text) {
        const int width = kTextWidth * static_cast<int>(shape.text.size());
        return CRect(first.x, first.y - kTextHeight, first.x + width, first.y + kTextHeight / 4);
    }
    CRect bounds(first.x, first.y, first.x, first.y);
    for (const POINT& point : shape.points) {
        bounds.left = std::min(bounds.left, point.x);
        bounds.top = std::min(bounds.top, point.y);
        bounds.right = std::max(bounds.right, point.x);
        bounds.bottom = std::max(bounds.bottom, point.y);
    }
    return bounds;
}

bool Intersect(const CRect& a, const CRect& b)
{
    return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}
