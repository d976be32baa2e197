// SPDX-License-Identifier: MIT
#include "Gallery.h"

namespace {

const POINT kZigzag[] = {{10, 60}, {30, 10}, {60, 56}, {100, 14}};
const POINT kStar[] = {{56, 4}, {84, 68}, {16, 28}, {96, 28}, {28, 68}};

void drawPoints(KtQtPainterWrapper& painter)
{
    painter.setPen(PS_SOLID, 5, 0x00C04000);
    for (int i = 0; i < 11; ++i)
        painter.drawPoint(8 + i * 10, 36 + (i % 2 ? 1 : -1) * i * 3);
}

void drawAlphaRects(KtQtPainterWrapper& painter)
{
    painter.drawAlphaRect(CRect(8, 8, 66, 46), 0x000000FF, 128);
    painter.drawAlphaRect(CRect(40, 24, 104, 64), 0x00FF0000, 128);
}

template<int alpha>
void drawAlpha(KtQtPainterWrapper& painter)
{
    painter.setPen(PS_SOLID, 3, 0x00808080);
    painter.drawPolyline(kZigzag, 4);
    painter.drawAlphaRect(CRect(20, 12, 92, 60), 0x0000A000, alpha);
}

void fillRects(KtQtPainterWrapper& painter)
{
    static const Qt::GlobalColor kColours[] = {Qt::red, Qt::darkCyan, Qt::yellow, Qt::darkBlue};
    for (int i = 0; i < 4; ++i)
        painter.fillRect(QRect(8 + 24 * i, 8 + 6 * i, 22, 38), kColours[i]);
}

// Records the zigzag, which becomes a closed figure, and leaves the path open.
QPainterPath& recordZigzag(KtQtPainterWrapper& painter)
{
    painter.setPen(PS_SOLID, 4, 0x00602080);
    painter.setBrush(0x0060D0FFu);
    painter.beginPath();
    painter.drawPolyline(kZigzag, 4);
    return *painter.getPainterPath();
}

void drawFilledPath(KtQtPainterWrapper& painter)
{
    painter.fillPath(recordZigzag(painter));
    painter.endPath();
}

void drawStrokedPath(KtQtPainterWrapper& painter)
{
    painter.strokePath(recordZigzag(painter));
    painter.endPath();
}

void drawWholePath(KtQtPainterWrapper& painter)
{
    painter.strokeAndFillPath(&recordZigzag(painter));
    painter.endPath();
}

void drawOwnPath(KtQtPainterWrapper& painter)
{
    auto* const path = new QPainterPath;
    path->addEllipse(10, 8, 60, 50);
    painter.setPainterPath(path);
    painter.setBrush(0x0080C0FFu);
    painter.drawPolyline(kStar, 5);
    painter.strokeAndFillPath(path);
    painter.endPath();
}

} // namespace

Cells shapeCells()
{
    return {
        {L"points, pen width 5", L"drawPoint(x, y)", drawPoints},
        {L"open line", L"drawPolyline(points)",
         [](KtQtPainterWrapper& painter) { painter.drawPolyline(kZigzag, 4); }},
        {L"closed figure", L"drawPolygon(points)",
         [](KtQtPainterWrapper& painter) {
             painter.setBrush(0x0040C0FFu);
             painter.drawPolygon(kStar, 5);
         }},
        {L"named colours", L"fillRect(rect, colour)", fillRects},
        {L"alpha 128, twice", L"drawAlphaRect(alpha)", drawAlphaRects},
        {L"alpha 40", L"drawAlphaRect(alpha)", drawAlpha<40>},
        {L"alpha 200", L"drawAlphaRect(alpha)", drawAlpha<200>},
        {L"corners exchanged", L"drawAlphaRect(alpha)",
         [](KtQtPainterWrapper& painter) {
             painter.drawAlphaRect(CRect(92, 60, 20, 12), 0x00C000C0, 90);
         }},
        {L"path, filled", L"fillPath(path)", drawFilledPath},
        {L"path, stroked", L"strokePath(path)", drawStrokedPath},
        {L"path, both", L"strokeAndFillPath(path)", drawWholePath},
        {L"the host's own path", L"setPainterPath(path)", drawOwnPath},
    };
}
