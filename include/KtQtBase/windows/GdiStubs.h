// SPDX-License-Identifier: MIT
//
// Drawing functions without a counterpart here: a host links and runs, but they do nothing.
//
//     HFONT font = CreateFontIndirectW(&description);             // always null
//     DeleteObject(font);
//
// KtQtPainterWrapper does the drawing. No function here reads, writes or keeps anything through its
// arguments, so every argument may be null. None sets an error code.
#ifndef KTQTBASE_WINDOWS_GDISTUBS_H
#define KTQTBASE_WINDOWS_GDISTUBS_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/windows/Records.h>
#include <KtQtBase/windows/Scalars.h>

// ---- Objects and contexts ----------------------------------------------------------------------

// Deletes a pen, brush, font, bitmap, region or palette.
// Inert: returns 0 and deletes nothing.
// On Windows: releases the object; non-zero means success.
KTQTBASE_INERT("returns 0 and deletes nothing.")
KTQTBASE_EXPORT int DeleteObject(void* ho);

// Puts a font into a device context.
// Inert: returns null; no context has a font.
// On Windows: returns the object that was in the context before.
KTQTBASE_INERT("returns null; no context has a font.")
KTQTBASE_EXPORT HGDIOBJ SelectObject(HDC hdc, HFONT h);

// Deletes a device context.
// Inert: returns 0 and deletes nothing.
// On Windows: releases the context; non-zero means success.
KTQTBASE_INERT("returns 0 and deletes nothing.")
KTQTBASE_EXPORT int DeleteDC(HDC hdc);

// A property of a device: its size, resolution or colours.
// Inert: returns 0 for every index, resolutions too, so a host must not divide by the result.
// On Windows: the property, in the unit of its index.
KTQTBASE_INERT("returns 0 for every index, resolutions too, so a host must not divide by the "
               "result.")
KTQTBASE_EXPORT int GetDeviceCaps(HDC hdc, int index);

// ---- Colours and bitmaps -----------------------------------------------------------------------

// Sets the colour behind text and broken lines.
// Inert: returns 0, which reads as black; no colour is stored.
// On Windows: returns the colour before, or CLR_INVALID.
KTQTBASE_INERT("returns 0, which reads as black; no colour is stored.")
KTQTBASE_EXPORT unsigned int SetBkColor(HDC hdc, unsigned int color);

// Makes a palette.
// Inert: returns null; the record is not read.
// On Windows: returns a palette of the record's colours, for DeleteObject.
KTQTBASE_INERT("returns null; the record is not read.")
KTQTBASE_EXPORT HPALETTE CreatePalette(LOGPALETTE* plpal);

// The palette entry nearest to a colour.
// Inert: returns 0, which reads as the first entry.
// On Windows: the index of the entry, or CLR_INVALID.
KTQTBASE_INERT("returns 0, which reads as the first entry.")
KTQTBASE_EXPORT unsigned int GetNearestPaletteIndex(HPALETTE h, unsigned int color);

// Makes a bitmap with bits that the caller can write.
// Inert: returns nothing; no bitmap is made and the bits pointer is not written.
// Kept: there is no result. Part of the interface. Set the bits pointer to null first and test it.
// On Windows: returns the bitmap and writes the address of its bits.
KTQTBASE_INERT("returns nothing; no bitmap is made and the bits pointer is not written.")
KTQTBASE_EXPORT void CreateDIBSection(HDC hdc, const BITMAPINFO* pbmi, unsigned int usage,
                                      void** ppvBits, void* hSection, unsigned int offset);

// ---- Fonts and text ----------------------------------------------------------------------------

// Makes a font.
// Inert: returns null; the record is not read.
// On Windows: returns a font of the record's properties, for DeleteObject.
KTQTBASE_INERT("returns null; the record is not read.")
KTQTBASE_EXPORT HFONT CreateFontIndirectW(const LOGFONTW* lplf);

// Lists the fonts of a device.
// Inert: returns 0; the callback is never called.
// On Windows: calls back once a font and returns the last call's result.
KTQTBASE_INERT("returns 0; the callback is never called.")
KTQTBASE_EXPORT int EnumFontFamiliesEx(HDC hdc, LOGFONTW* lpLogfont, void* lpProc, long long lParam,
                                       unsigned int dwFlags);

// Reads from the file of a context's font.
// Inert: returns 0; the buffer is not written.
// On Windows: the bytes written, the size of the table for a null buffer, or GDI_ERROR.
KTQTBASE_INERT("returns 0; the buffer is not written.")
KTQTBASE_EXPORT unsigned int GetFontData(HDC hdc, unsigned int dwTable, unsigned int dwOffset,
                                         void* pvBuffer, unsigned int cjBuffer);

// Draws a text.
// Inert: returns 0; nothing is drawn.
// On Windows: draws within the rectangle with the given distances; non-zero means success.
KTQTBASE_INERT("returns 0; nothing is drawn.")
KTQTBASE_EXPORT int ExtTextOut(HDC hdc, int x, int y, unsigned int options, const RECT* lprect,
                               const wchar_t* lpString, unsigned int c, const int* lpDx);

#endif
