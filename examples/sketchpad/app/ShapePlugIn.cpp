// SPDX-License-Identifier: MIT
#include "ShapePlugIn.h"

#include "FileNames.h"

#include <KtQtBase/WindowsFunctions.h>

#include <algorithm>

namespace {

using MAKESHAPEPROC = int (*)(const RECT* bounds, POINT* points, int room);

MAKESHAPEPROC makeShape = nullptr;
constexpr int kMostPoints = 64;

} // namespace

bool LoadShapePlugIn()
{
    const HINSTANCE module = LoadLibrary(BesideExecutable(L"starshape.dll").c_str());
    if (module)
        makeShape = reinterpret_cast<MAKESHAPEPROC>(GetProcAddress(module, "MakeShape"));
    return makeShape != nullptr;
}

std::vector<POINT> PlugInPoints(POINT from, POINT to)
{
    if (!makeShape)
        return {};
    const CRect bounds = RectBetween(from, to);
    std::vector<POINT> points(kMostPoints);
    const int count = makeShape(&bounds, points.data(), kMostPoints);
    points.resize(static_cast<std::size_t>(std::clamp(count, 0, kMostPoints)));
    return points;
}
