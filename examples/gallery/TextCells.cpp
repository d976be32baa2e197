// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include <cwchar>

namespace {

LOGFONTW record(const KtQtPainterWrapper& painter, int pixels, const wchar_t* face)
{
    LOGFONTW font = {};
    font.lfHeight = heightForPixels(painter, pixels);
    font.lfWeight = FW_NORMAL;
    std::wcsncpy(font.lfFaceName, face, LF_FACESIZE);
    return font;
}

void write(KtQtPainterWrapper& painter, const LOGFONTW& font, const wchar_t* text)
{
    painter.setFontIndirect(&font);
    painter.drawText(6, 46, text, -1);
}

template<int weight>
void drawWeight(KtQtPainterWrapper& painter)
{
    LOGFONTW font = record(painter, 24, L"DejaVu Sans");
    font.lfWeight = weight;
    write(painter, font, L"Weight");
}

template<int pixels>
void drawHeight(KtQtPainterWrapper& painter)
{
    write(painter, record(painter, pixels, L"DejaVu Serif"), L"Height");
}

void drawItalic(KtQtPainterWrapper& painter)
{
    LOGFONTW font = record(painter, 24, L"DejaVu Serif");
    font.lfItalic = 1;
    write(painter, font, L"Italic");
}

void drawFixedPitch(KtQtPainterWrapper& painter)
{
    LOGFONTW font = record(painter, 20, L"DejaVu Sans Mono");
    font.lfPitchAndFamily = FIXED_PITCH;
    write(painter, font, L"iiWWii");
}

// The weight replaces a height that is not above 0.
void drawNegativeHeight(KtQtPainterWrapper& painter)
{
    LOGFONTW font = record(painter, 24, L"DejaVu Sans");
    font.lfWeight = font.lfHeight;
    font.lfHeight = -1;
    write(painter, font, L"Minus");
}

void drawBeyondThePlane(KtQtPainterWrapper& painter)
{
    write(painter, record(painter, 28, L"DejaVu Sans"), L"\U0001D538 \U0001D539 \u20AC");
}

void drawLength(KtQtPainterWrapper& painter)
{
    const LOGFONTW font = record(painter, 24, L"DejaVu Sans");
    painter.setFontIndirect(&font);
    painter.drawText(6, 30, L"Shortened", 5);
    painter.drawText(6, 60, L"Whole", -1);
}

void drawOpaque(KtQtPainterWrapper& painter)
{
    const LOGFONTW font = record(painter, 24, L"DejaVu Sans");
    painter.setPen(PS_SOLID, 1, 0x000000C0);
    painter.setBackground(0x0080FFFF);
    painter.setBkMode(OPAQUE);
    write(painter, font, L"Opaque");
}

} // namespace

Cells textCells()
{
    return {
        {L"FW_NORMAL", L"setFontIndirect(font)", drawWeight<FW_NORMAL>},
        {L"FW_BOLD", L"setFontIndirect(font)", drawWeight<FW_BOLD>},
        {L"lfItalic", L"setFontIndirect(font)", drawItalic},
        {L"FIXED_PITCH", L"setFontIndirect(font)", drawFixedPitch},
        {L"lfHeight below 0", L"setFontIndirect(font)", drawNegativeHeight},
        {L"above U+FFFF", L"drawText(x, y, text)", drawBeyondThePlane},
        {L"by length, by NUL", L"drawText(..., length)", drawLength},
        {L"OPAQUE text", L"setBkMode(mode)", drawOpaque},
        {L"12 pixels", L"setFontIndirect(font)", drawHeight<12>},
        {L"18 pixels", L"setFontIndirect(font)", drawHeight<18>},
        {L"28 pixels", L"setFontIndirect(font)", drawHeight<28>},
        {L"text, rotated", L"Rotate(angle, x, y)",
         [](KtQtPainterWrapper& painter) {
             const LOGFONTW font = record(painter, 18, L"DejaVu Sans");
             painter.setFontIndirect(&font);
             painter.Rotate(-25, 14, 62);
             painter.drawText(0, 0, L"Rotate", -1);
         }},
    };
}
