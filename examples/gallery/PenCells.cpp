// SPDX-License-Identifier: MIT
#include "Gallery.h"

namespace {

// A bent line in a pen, wide enough that its pattern can be seen.
template<int style>
void drawStyle(KtQtPainterWrapper& painter)
{
    const POINT line[] = {{6, 60}, {40, 12}, {70, 56}, {106, 14}};
    painter.setPen(style, 2, 0x00A04000);
    painter.drawPolyline(line, 4);
}

template<int width>
void drawWidth(KtQtPainterWrapper& painter)
{
    const POINT line[] = {{12, 58}, {50, 14}, {100, 50}};
    painter.setPen(PS_SOLID, width, 0x00207020);
    painter.drawPolyline(line, 3);
}

void drawNullPen(KtQtPainterWrapper& painter)
{
    const POINT corners[] = {{10, 10}, {100, 20}, {60, 64}};
    painter.setPen(PS_NULL, 4, 0x000000FF);
    painter.setBrush(0x00E0C080u);
    painter.drawPolygon(corners, 3);
}

void drawPenColor(KtQtPainterWrapper& painter)
{
    POINT line[] = {{8, 12}, {104, 12}};
    painter.setPen(PS_DOT, 4, 0);
    for (unsigned int color : {0x000000FFu, 0x0000C000u, 0x00FF0000u, 0x0000A0FFu}) {
        painter.setPenColor(color);
        painter.drawPolyline(line, 2);
        line[0].y += 16;
        line[1].y += 16;
    }
}

void drawQtPen(KtQtPainterWrapper& painter)
{
    const POINT line[] = {{16, 56}, {50, 16}, {96, 54}};
    painter.setPen(QPen(QBrush(Qt::darkMagenta), 14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line, 3);
}

} // namespace

Cells penCells()
{
    return {
        {L"PS_SOLID", drawStyle<PS_SOLID>},
        {L"PS_DASH", drawStyle<PS_DASH>},
        {L"PS_DOT", drawStyle<PS_DOT>},
        {L"PS_DASHDOT", drawStyle<PS_DASHDOT>},
        {L"PS_DASHDOTDOT", drawStyle<PS_DASHDOTDOT>},
        {L"PS_NULL", drawNullPen},
        {L"PS_INSIDEFRAME", drawStyle<PS_INSIDEFRAME>},
        {L"PS_USERSTYLE", drawStyle<PS_USERSTYLE>},
        {L"width 0", drawWidth<0>},
        {L"width 1", drawWidth<1>},
        {L"width 4", drawWidth<4>},
        {L"width 10", drawWidth<10>},
        {L"width 20", drawWidth<20>},
        {L"setPenColor", drawPenColor},
        {L"setPen(QPen)", drawQtPen},
        {L"PS_DASH, width 6",
         [](KtQtPainterWrapper& painter) {
             const POINT line[] = {{4, 36}, {108, 36}};
             painter.setPen(PS_DASH, 6, 0x00C00060);
             painter.drawPolyline(line, 2);
         }},
    };
}
