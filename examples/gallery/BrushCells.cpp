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
        {L"NoBrush", L"setBrush(style)", drawBrush<Qt::NoBrush>},
        {L"SolidPattern", L"setBrush(style)", drawBrush<Qt::SolidPattern>},
        {L"Dense2Pattern", L"setBrush(style)", drawBrush<Qt::Dense2Pattern>},
        {L"Dense4Pattern", L"setBrush(style)", drawBrush<Qt::Dense4Pattern>},
        {L"Dense6Pattern", L"setBrush(style)", drawBrush<Qt::Dense6Pattern>},
        {L"HorPattern", L"setBrush(style)", drawBrush<Qt::HorPattern>},
        {L"VerPattern", L"setBrush(style)", drawBrush<Qt::VerPattern>},
        {L"CrossPattern", L"setBrush(style)", drawBrush<Qt::CrossPattern>},
        {L"BDiagPattern", L"setBrush(style)", drawBrush<Qt::BDiagPattern>},
        {L"FDiagPattern", L"setBrush(style)", drawBrush<Qt::FDiagPattern>},
        {L"DiagCrossPattern", L"setBrush(style)", drawBrush<Qt::DiagCrossPattern>},
        {L"colour 0x0000FF", L"setBrush(colour)", drawColour<0x0000FFu>},
        {L"colour 0xFFC080", L"setBrush(colour)", drawColour<0xFFC080u>},
        {L"QLinearGradient", L"setBrush(QBrush)", drawGradient},
        {L"TRANSPARENT", L"setBkMode(mode)", drawBackground<TRANSPARENT>},
        {L"OPAQUE", L"setBkMode(mode)", drawBackground<OPAQUE>},
    };
}
