// SPDX-License-Identifier: MIT
#include "Gallery.h"

namespace {

// Long lines of three widths: a pattern repeats several times on each, so that it can be told.
template<int style>
void drawStyle(KtQtPainterWrapper& painter)
{
    POINT line[] = {{8, 14}, {kWideCell - 8, 14}};
    for (int width : {1, 2, 6}) {
        painter.setPen(style, width, 0x00A04000);
        painter.drawPolyline(line, 2);
        line[0].y += 21;
        line[1].y += 21;
    }
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
    POINT line[] = {{8, 12}, {kWideCell - 8, 12}};
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

Cells penStyleCells()
{
    return {
        {L"PS_SOLID, widths 1, 2 and 6", L"setPen(PS_SOLID, width, colour)", drawStyle<PS_SOLID>},
        {L"PS_DASH, widths 1, 2 and 6", L"setPen(PS_DASH, width, colour)", drawStyle<PS_DASH>},
        {L"PS_DOT, widths 1, 2 and 6", L"setPen(PS_DOT, width, colour)", drawStyle<PS_DOT>},
        {L"PS_DASHDOT, widths 1, 2 and 6", L"setPen(PS_DASHDOT, width, colour)",
         drawStyle<PS_DASHDOT>},
        {L"PS_DASHDOTDOT, widths 1, 2 and 6", L"setPen(PS_DASHDOTDOT, width, colour)",
         drawStyle<PS_DASHDOTDOT>},
        {L"PS_INSIDEFRAME, widths 1, 2 and 6", L"setPen(PS_INSIDEFRAME, width, colour)",
         drawStyle<PS_INSIDEFRAME>},
        {L"PS_USERSTYLE, widths 1, 2 and 6", L"setPen(PS_USERSTYLE, width, colour)",
         drawStyle<PS_USERSTYLE>},
        {L"PS_DOT in four colours", L"setPenColor(colour)", drawPenColor},
    };
}

Cells penWidthCells()
{
    return {
        {L"width 0", L"setPen(style, 0, colour)", drawWidth<0>},
        {L"width 1", L"setPen(style, 1, colour)", drawWidth<1>},
        {L"width 4", L"setPen(style, 4, colour)", drawWidth<4>},
        {L"width 10", L"setPen(style, 10, ...)", drawWidth<10>},
        {L"width 20", L"setPen(style, 20, ...)", drawWidth<20>},
        {L"round ends", L"setPen(QPen)", drawQtPen},
        {L"PS_NULL", L"setPen(PS_NULL, ...)", drawNullPen},
    };
}
