// SPDX-License-Identifier: MIT
//
// Functions that pack colours, words and points into one number, and take them out again.
//
//     painter.setPen(PS_SOLID, 1, RGB(255, 0, 0));
//     SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
//
// No other header includes this one, since many hosts have such names of their own. A host's macros
// of these names stay what they are, defined before or after; the names are in parentheses below so
// that such a macro does not expand there.
//
// On Windows: these are macros. Here they are constexpr functions with the same names and results,
// so that no name of the host is rewritten.
#ifndef KTQTBASE_WINDOWS_PACKING_H
#define KTQTBASE_WINDOWS_PACKING_H

#include <KtQtBase/windows/Scalars.h>

// ---- Colours -----------------------------------------------------------------------------------

// A colour from its parts.
//   red, green, blue    in: 0 to 255; higher bits are dropped
// Result: red in bits 0 to 7, green in 8 to 15, blue in 16 to 23.
//   255, 128, 1  => 0x000180FF
constexpr COLORREF(RGB)(unsigned int red, unsigned int green, unsigned int blue)
{
    return (red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16;
}

// A colour's parts, 0 to 255.
constexpr BYTE(GetRValue)(COLORREF color)
{
    return static_cast<BYTE>(color & 0xFF);
}

constexpr BYTE(GetGValue)(COLORREF color)
{
    return static_cast<BYTE>(color >> 8 & 0xFF);
}

constexpr BYTE(GetBValue)(COLORREF color)
{
    return static_cast<BYTE>(color >> 16 & 0xFF);
}

// ---- Words -------------------------------------------------------------------------------------

// The lower and the upper 16 bits of a number's lower 32.
//   0x12345678  => LOWORD 0x5678, HIWORD 0x1234
constexpr WORD(LOWORD)(long long value)
{
    return static_cast<WORD>(value & 0xFFFF);
}

constexpr WORD(HIWORD)(long long value)
{
    return static_cast<WORD>(value >> 16 & 0xFFFF);
}

// Two words in a message's parameter; only the lower 16 bits of each are used.
//   low     in: the lower word
//   high    in: the upper word
// Result: a number of 32 bits, never negative.
//   0x5678, 0x1234  => 0x12345678
//   -1, -2          => 0xFFFEFFFF
constexpr LPARAM(MAKELPARAM)(long long low, long long high)
{
    return (low & 0xFFFF) | (high & 0xFFFF) << 16;
}

constexpr WPARAM(MAKEWPARAM)(long long low, long long high)
{
    return static_cast<WPARAM>((MAKELPARAM)(low, high));
}

// The position in a mouse message's lParam; each coordinate keeps its sign.
//   MAKELPARAM(-1, -2)  => GET_X_LPARAM -1, GET_Y_LPARAM -2
constexpr int(GET_X_LPARAM)(LPARAM lParam)
{
    return static_cast<short>((LOWORD)(lParam));
}

constexpr int(GET_Y_LPARAM)(LPARAM lParam)
{
    return static_cast<short>((HIWORD)(lParam));
}

#endif
