// SPDX-License-Identifier: MIT
#include "Gallery.h"

namespace {

const POINT kShape[] = {{8, 14}, {60, 4}, {104, 30}, {84, 66}, {20, 62}};

template<int style>
void drawBrush(KtQtPainterWrapper& painter)
{
    painter.setBrush(style);
    painter.drawPolygon(kShape, 5);
}

template<unsigned int color>
void drawColour(KtQtPainterWrapper& painter)
{
    painter.setBrush(color);
    painter.drawPolygon(kShape, 5);
}

void drawGradient(KtQtPainterWrapper& painter)
{
    QLinearGradient gradient(8, 0, 104, 0);
    gradient.setColorAt(0, Qt::yellow);
    gradient.setColorAt(1, Qt::darkGreen);
    painter.setBrush(QBrush(gradient));
    painter.drawPolygon(kShape, 5);
}

// Dots and hatches; their gaps show the background.
template<int mode>
void drawBackground(KtQtPainterWrapper& painter)
{
    painter.setBackground(0x0060E0FF);
    painter.setBkMode(mode);
    painter.setPen(PS_DOT, 5, 0x00802000);
    painter.setBrush(int(Qt::DiagCrossPattern));
    painter.drawPolygon(kShape, 5);
}

} // namespace

Cells brushCells()
{
    return {
        {L"NoBrush", drawBrush<Qt::NoBrush>},
        {L"SolidPattern", drawBrush<Qt::SolidPattern>},
        {L"Dense2Pattern", drawBrush<Qt::Dense2Pattern>},
        {L"Dense4Pattern", drawBrush<Qt::Dense4Pattern>},
        {L"Dense6Pattern", drawBrush<Qt::Dense6Pattern>},
        {L"HorPattern", drawBrush<Qt::HorPattern>},
        {L"VerPattern", drawBrush<Qt::VerPattern>},
        {L"CrossPattern", drawBrush<Qt::CrossPattern>},
        {L"BDiagPattern", drawBrush<Qt::BDiagPattern>},
        {L"FDiagPattern", drawBrush<Qt::FDiagPattern>},
        {L"DiagCrossPattern", drawBrush<Qt::DiagCrossPattern>},
        {L"colour 0x0000FF", drawColour<0x0000FFu>},
        {L"colour 0xFFC080", drawColour<0xFFC080u>},
        {L"setBrush(QBrush)", drawGradient},
        {L"TRANSPARENT", drawBackground<TRANSPARENT>},
        {L"OPAQUE", drawBackground<OPAQUE>},
    };
}
