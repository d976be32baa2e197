// SPDX-License-Identifier: MIT
#include "ShapePlugIn.h"

#include "FileNames.h"
#include "Reasons.h"
#include "Texts.h"

#include <KtQtBase/WindowsFunctions.h>

#include <algorithm>

namespace {

using MAKESHAPEPROC = int (*)(const RECT* bounds, POINT* points, int room);

MAKESHAPEPROC makeShape = nullptr;
constexpr int kRoom = 64;

} // namespace

std::wstring LoadShapePlugIn()
{
    const HINSTANCE module = LoadLibrary(BesideExecutable(L"starshape.dll").c_str());
    if (module)
        makeShape = reinterpret_cast<MAKESHAPEPROC>(GetProcAddress(module, "MakeShape"));
    return makeShape ? std::wstring() : Text(IDS_NOPLUGIN, LoaderReason());
}

bool HasShapePlugIn()
{
    return makeShape != nullptr;
}

std::vector<POINT> PlugInPoints(POINT from, POINT to)
{
    if (!makeShape)
        return {};
    const CRect bounds = RectBetween(from, to);
    std::vector<POINT> points(kRoom);
    const int count = makeShape(&bounds, points.data(), kRoom);
    points.resize(static_cast<std::size_t>(std::clamp(count, 0, kRoom)));
    return points;
}
