// SPDX-License-Identifier: MIT
#include "Gallery.h"

namespace {

const QRect kWhole(0, 0, kCellWidth, kCellHeight);

// Fills the whole cell, so that the clip can be seen.
void fillCell(KtQtPainterWrapper& painter)
{
    painter.fillRect(kWhole, Qt::cyan);
    painter.setPen(PS_SOLID, 1, 0x00802000);
    for (int x = -kCellHeight; x < kCellWidth; x += 8) {
        const POINT line[] = {{x, kCellHeight}, {x + kCellHeight, 0}};
        painter.drawPolyline(line, 2);
    }
}

void clipToRect(KtQtPainterWrapper& painter)
{
    painter.setClipRect(QRect(20, 12, 70, 48), Qt::ReplaceClip);
    fillCell(painter);
}

void clipToIntersection(KtQtPainterWrapper& painter)
{
    painter.setClipRect(QRect(8, 8, 70, 40), Qt::ReplaceClip);
    painter.setClipRect(QRect(40, 24, 70, 44), Qt::IntersectClip);
    fillCell(painter);
}

void clipToSquares(KtQtPainterWrapper& painter)
{
    POINT corners[] = {{10, 6},  {66, 6},   {66, 46},  {10, 46},
                       {42, 26}, {102, 26}, {102, 66}, {42, 66}};
    unsigned int counts[] = {4, 4};
    painter.setClipRegion(corners, counts, 2);
    fillCell(painter);
}

void clipToStar(KtQtPainterWrapper& painter)
{
    POINT corners[] = {{56, 2}, {86, 70}, {10, 28}, {102, 28}, {26, 70}};
    unsigned int count = 5;
    painter.setClipRegion(corners, &count, 1);
    fillCell(painter);
}

void removeClip(KtQtPainterWrapper& painter)
{
    clipToSquares(painter);
    painter.setClipRegion(nullptr, nullptr, 0);
    painter.drawAlphaRect(CRect(4, 28, 106, 42), 0x000000FF, 160);
}

void saveAndRestore(KtQtPainterWrapper& painter)
{
    const POINT line[] = {{8, 18}, {104, 18}};
    const POINT below[] = {{8, 52}, {104, 52}};
    painter.save();
    painter.setPen(PS_DOT, 8, 0x0000A0FF);
    painter.drawPolyline(line, 2);
    painter.restore();
    painter.drawPolyline(below, 2);
}

void rotateAround(KtQtPainterWrapper& painter)
{
    const POINT hand[] = {{8, 0}, {34, 0}};
    painter.setPen(PS_SOLID, 3, 0x00A00000);
    painter.Rotate(0, 56, 36);
    for (int i = 0; i < 12; ++i) {
        painter.drawPolyline(hand, 2);
        painter.Rotate(30, 0, 0);
    }
}

void rotateClip(KtQtPainterWrapper& painter)
{
    painter.save();
    painter.Rotate(20, 36, 0);
    painter.setClipRect(QRect(0, 4, 64, 40), Qt::ReplaceClip);
    painter.Rotate(-20, 0, 0);
    painter.Rotate(0, -36, 0);
    fillCell(painter);
    painter.restore();
}

} // namespace

Cells clipCells()
{
    return {
        {L"ReplaceClip", L"setClipRect(rect, mode)", clipToRect},
        {L"IntersectClip", L"setClipRect(rect, mode)", clipToIntersection},
        {L"two squares", L"setClipRegion(points)", clipToSquares},
        {L"a star", L"setClipRegion(points)", clipToStar},
        {L"region removed", L"setClipRegion(nullptr)", removeClip},
        {L"clip, rotated", L"Rotate, setClipRect", rotateClip},
        {L"30 degrees, 12 times", L"Rotate(angle, x, y)", rotateAround},
        {L"pen saved, then back", L"save(), restore()", saveAndRestore},
    };
}
