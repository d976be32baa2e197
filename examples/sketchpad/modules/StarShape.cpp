// SPDX-License-Identifier: MIT
//
// A plug-in that draws stars.
#include <KtQtBase/WindowsTypes.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kCorners = 10;
constexpr double kInner = 0.42; // of the outer radius

} // namespace

extern "C" __attribute__((visibility("default"))) int MakeShape(const RECT* bounds, POINT* points,
                                                                int room)
{
    const double centerX = (bounds->left + bounds->right) / 2.0;
    const double centerY = (bounds->top + bounds->bottom) / 2.0;
    const int count = std::min(kCorners, room);
    for (int i = 0; i < count; ++i) {
        const double angle = std::acos(-1.0) * (2.0 * i / kCorners - 0.5);
        const double radius = i % 2 == 0 ? 1.0 : kInner;
        points[i].x =
            static_cast<LONG>(centerX + radius * std::cos(angle) * (bounds->right - centerX));
        points[i].y =
            static_cast<LONG>(centerY + radius * std::sin(angle) * (bounds->bottom - centerY));
    }
    return count;
}
