// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/GdiStubs.h>

int DeleteObject(void*)
{
    return 0;
}

HGDIOBJ SelectObject(HDC, HFONT)
{
    return nullptr;
}

int DeleteDC(HDC)
{
    return 0;
}

int GetDeviceCaps(HDC, int)
{
    return 0;
}

unsigned int SetBkColor(HDC, unsigned int)
{
    return 0;
}

HPALETTE CreatePalette(LOGPALETTE*)
{
    return nullptr;
}

unsigned int GetNearestPaletteIndex(HPALETTE, unsigned int)
{
    return 0;
}

void CreateDIBSection(HDC, const BITMAPINFO*, unsigned int, void**, void*, unsigned int) {}

HFONT CreateFontIndirectW(const LOGFONTW*)
{
    return nullptr;
}

int EnumFontFamiliesEx(HDC, LOGFONTW*, void*, long long, unsigned int)
{
    return 0;
}

unsigned int GetFontData(HDC, unsigned int, unsigned int, void*, unsigned int)
{
    return 0;
}

int ExtTextOut(HDC, int, int, unsigned int, const RECT*, const wchar_t*, unsigned int, const int*)
{
    return 0;
}
