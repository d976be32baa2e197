// SPDX-License-Identifier: MIT
//
// Hosts pass these records to other libraries as raw bytes, so a layout that differs from the
// published one must stop the build.
#include <KtQtBase/windows/Records.h>

#include <cstddef>

static_assert(sizeof(void*) == 8);
static_assert(sizeof(wchar_t) == 4);

static_assert(sizeof(POINT) == 8);
static_assert(offsetof(POINT, x) == 0);
static_assert(offsetof(POINT, y) == 4);

static_assert(sizeof(POINTL) == 8);
static_assert(offsetof(POINTL, x) == 0);
static_assert(offsetof(POINTL, y) == 4);

static_assert(sizeof(SIZE) == 8);
static_assert(offsetof(SIZE, cx) == 0);
static_assert(offsetof(SIZE, cy) == 4);

static_assert(sizeof(RECT) == 16);
static_assert(offsetof(RECT, left) == 0);
static_assert(offsetof(RECT, top) == 4);
static_assert(offsetof(RECT, right) == 8);
static_assert(offsetof(RECT, bottom) == 12);
static_assert(sizeof(CRect) == sizeof(RECT));

static_assert(sizeof(PALETTEENTRY) == 4);
static_assert(offsetof(PALETTEENTRY, peRed) == 0);
static_assert(offsetof(PALETTEENTRY, peGreen) == 1);
static_assert(offsetof(PALETTEENTRY, peBlue) == 2);
static_assert(offsetof(PALETTEENTRY, peFlags) == 3);

static_assert(sizeof(LOGPALETTE) == 8);
static_assert(offsetof(LOGPALETTE, palVersion) == 0);
static_assert(offsetof(LOGPALETTE, palNumEntries) == 2);
static_assert(offsetof(LOGPALETTE, palPalEntry) == 4);

static_assert(sizeof(RGBQUAD) == 4);
static_assert(offsetof(RGBQUAD, rgbBlue) == 0);
static_assert(offsetof(RGBQUAD, rgbGreen) == 1);
static_assert(offsetof(RGBQUAD, rgbRed) == 2);
static_assert(offsetof(RGBQUAD, rgbReserved) == 3);

static_assert(sizeof(BITMAPINFOHEADER) == 40);
static_assert(offsetof(BITMAPINFOHEADER, biSize) == 0);
static_assert(offsetof(BITMAPINFOHEADER, biWidth) == 4);
static_assert(offsetof(BITMAPINFOHEADER, biHeight) == 8);
static_assert(offsetof(BITMAPINFOHEADER, biPlanes) == 12);
static_assert(offsetof(BITMAPINFOHEADER, biBitCount) == 14);
static_assert(offsetof(BITMAPINFOHEADER, biCompression) == 16);
static_assert(offsetof(BITMAPINFOHEADER, biSizeImage) == 20);
static_assert(offsetof(BITMAPINFOHEADER, biXPelsPerMeter) == 24);
static_assert(offsetof(BITMAPINFOHEADER, biYPelsPerMeter) == 28);
static_assert(offsetof(BITMAPINFOHEADER, biClrUsed) == 32);
static_assert(offsetof(BITMAPINFOHEADER, biClrImportant) == 36);

static_assert(sizeof(BITMAPINFO) == 44);
static_assert(offsetof(BITMAPINFO, bmiHeader) == 0);
static_assert(offsetof(BITMAPINFO, bmiColors) == 40);

static_assert(sizeof(LOGFONTW) == 156);
static_assert(offsetof(LOGFONTW, lfHeight) == 0);
static_assert(offsetof(LOGFONTW, lfWidth) == 4);
static_assert(offsetof(LOGFONTW, lfEscapement) == 8);
static_assert(offsetof(LOGFONTW, lfOrientation) == 12);
static_assert(offsetof(LOGFONTW, lfWeight) == 16);
static_assert(offsetof(LOGFONTW, lfItalic) == 20);
static_assert(offsetof(LOGFONTW, lfUnderline) == 21);
static_assert(offsetof(LOGFONTW, lfStrikeOut) == 22);
static_assert(offsetof(LOGFONTW, lfCharSet) == 23);
static_assert(offsetof(LOGFONTW, lfOutPrecision) == 24);
static_assert(offsetof(LOGFONTW, lfClipPrecision) == 25);
static_assert(offsetof(LOGFONTW, lfQuality) == 26);
static_assert(offsetof(LOGFONTW, lfPitchAndFamily) == 27);
static_assert(offsetof(LOGFONTW, lfFaceName) == 28);

static_assert(sizeof(NUMBERFMTW) == 40);
static_assert(offsetof(NUMBERFMTW, NumDigits) == 0);
static_assert(offsetof(NUMBERFMTW, LeadingZero) == 4);
static_assert(offsetof(NUMBERFMTW, Grouping) == 8);
static_assert(offsetof(NUMBERFMTW, lpDecimalSep) == 16);
static_assert(offsetof(NUMBERFMTW, lpThousandSep) == 24);
static_assert(offsetof(NUMBERFMTW, NegativeOrder) == 32);

static_assert(sizeof(OSVERSIONINFOW) == 532);
static_assert(offsetof(OSVERSIONINFOW, dwOSVersionInfoSize) == 0);
static_assert(offsetof(OSVERSIONINFOW, dwMajorVersion) == 4);
static_assert(offsetof(OSVERSIONINFOW, dwMinorVersion) == 8);
static_assert(offsetof(OSVERSIONINFOW, dwBuildNumber) == 12);
static_assert(offsetof(OSVERSIONINFOW, dwPlatformId) == 16);
static_assert(offsetof(OSVERSIONINFOW, szCSDVersion) == 20);

static_assert(sizeof(LIST_ENTRY) == 16);
static_assert(offsetof(LIST_ENTRY, Flink) == 0);
static_assert(offsetof(LIST_ENTRY, Blink) == 8);

static_assert(sizeof(RTL_CRITICAL_SECTION_DEBUG) == 48);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, Type) == 0);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, CreatorBackTraceIndex) == 2);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, CriticalSection) == 8);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, ProcessLocksList) == 16);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, EntryCount) == 32);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, ContentionCount) == 36);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, Flags) == 40);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, CreatorBackTraceIndexHigh) == 44);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, SpareWORD) == 46);

static_assert(sizeof(RTL_CRITICAL_SECTION) == 40);
static_assert(offsetof(RTL_CRITICAL_SECTION, DebugInfo) == 0);
static_assert(offsetof(RTL_CRITICAL_SECTION, LockCount) == 8);
static_assert(offsetof(RTL_CRITICAL_SECTION, RecursionCount) == 12);
static_assert(offsetof(RTL_CRITICAL_SECTION, OwningThread) == 16);
static_assert(offsetof(RTL_CRITICAL_SECTION, LockSemaphore) == 24);
static_assert(offsetof(RTL_CRITICAL_SECTION, SpinCount) == 32);

static_assert(sizeof(SECURITY_ATTRIBUTES) == 24);
static_assert(offsetof(SECURITY_ATTRIBUTES, nLength) == 0);
static_assert(offsetof(SECURITY_ATTRIBUTES, lpSecurityDescriptor) == 8);
static_assert(offsetof(SECURITY_ATTRIBUTES, bInheritHandle) == 16);

static_assert(sizeof(FILETIME) == 8);
static_assert(offsetof(FILETIME, dwLowDateTime) == 0);
static_assert(offsetof(FILETIME, dwHighDateTime) == 4);

static_assert(sizeof(SYSTEMTIME) == 16);
static_assert(offsetof(SYSTEMTIME, wYear) == 0);
static_assert(offsetof(SYSTEMTIME, wMonth) == 2);
static_assert(offsetof(SYSTEMTIME, wDayOfWeek) == 4);
static_assert(offsetof(SYSTEMTIME, wDay) == 6);
static_assert(offsetof(SYSTEMTIME, wHour) == 8);
static_assert(offsetof(SYSTEMTIME, wMinute) == 10);
static_assert(offsetof(SYSTEMTIME, wSecond) == 12);
static_assert(offsetof(SYSTEMTIME, wMilliseconds) == 14);

static_assert(sizeof(WIN32_FIND_DATAW) == 1140);
static_assert(offsetof(WIN32_FIND_DATAW, dwFileAttributes) == 0);
static_assert(offsetof(WIN32_FIND_DATAW, ftCreationTime) == 4);
static_assert(offsetof(WIN32_FIND_DATAW, ftLastAccessTime) == 12);
static_assert(offsetof(WIN32_FIND_DATAW, ftLastWriteTime) == 20);
static_assert(offsetof(WIN32_FIND_DATAW, nFileSizeHigh) == 28);
static_assert(offsetof(WIN32_FIND_DATAW, nFileSizeLow) == 32);
static_assert(offsetof(WIN32_FIND_DATAW, dwReserved0) == 36);
static_assert(offsetof(WIN32_FIND_DATAW, dwReserved1) == 40);
static_assert(offsetof(WIN32_FIND_DATAW, cFileName) == 44);
static_assert(offsetof(WIN32_FIND_DATAW, cAlternateFileName) == 1084);

static_assert(sizeof(OVERLAPPED) == 32);
static_assert(offsetof(OVERLAPPED, Internal) == 0);
static_assert(offsetof(OVERLAPPED, InternalHigh) == 8);
static_assert(offsetof(OVERLAPPED, Offset) == 16);
static_assert(offsetof(OVERLAPPED, OffsetHigh) == 20);
static_assert(offsetof(OVERLAPPED, Pointer) == 16);
static_assert(offsetof(OVERLAPPED, hEvent) == 24);

static_assert(sizeof(DEVMODEW) == 352);
static_assert(offsetof(DEVMODEW, dmDeviceName) == 0);
static_assert(offsetof(DEVMODEW, dmSpecVersion) == 128);
static_assert(offsetof(DEVMODEW, dmDriverVersion) == 130);
static_assert(offsetof(DEVMODEW, dmSize) == 132);
static_assert(offsetof(DEVMODEW, dmDriverExtra) == 134);
static_assert(offsetof(DEVMODEW, dmFields) == 136);
static_assert(offsetof(DEVMODEW, dmOrientation) == 140);
static_assert(offsetof(DEVMODEW, dmPaperSize) == 142);
static_assert(offsetof(DEVMODEW, dmPaperLength) == 144);
static_assert(offsetof(DEVMODEW, dmPaperWidth) == 146);
static_assert(offsetof(DEVMODEW, dmScale) == 148);
static_assert(offsetof(DEVMODEW, dmCopies) == 150);
static_assert(offsetof(DEVMODEW, dmDefaultSource) == 152);
static_assert(offsetof(DEVMODEW, dmPrintQuality) == 154);
static_assert(offsetof(DEVMODEW, dmPosition) == 140);
static_assert(offsetof(DEVMODEW, dmDisplayOrientation) == 148);
static_assert(offsetof(DEVMODEW, dmDisplayFixedOutput) == 152);
static_assert(offsetof(DEVMODEW, dmColor) == 156);
static_assert(offsetof(DEVMODEW, dmDuplex) == 158);
static_assert(offsetof(DEVMODEW, dmYResolution) == 160);
static_assert(offsetof(DEVMODEW, dmTTOption) == 162);
static_assert(offsetof(DEVMODEW, dmCollate) == 164);
static_assert(offsetof(DEVMODEW, dmFormName) == 168);
static_assert(offsetof(DEVMODEW, dmLogPixels) == 296);
static_assert(offsetof(DEVMODEW, dmBitsPerPel) == 300);
static_assert(offsetof(DEVMODEW, dmPelsWidth) == 304);
static_assert(offsetof(DEVMODEW, dmPelsHeight) == 308);
static_assert(offsetof(DEVMODEW, dmDisplayFlags) == 312);
static_assert(offsetof(DEVMODEW, dmNup) == 312);
static_assert(offsetof(DEVMODEW, dmDisplayFrequency) == 316);
static_assert(offsetof(DEVMODEW, dmICMMethod) == 320);
static_assert(offsetof(DEVMODEW, dmICMIntent) == 324);
static_assert(offsetof(DEVMODEW, dmMediaType) == 328);
static_assert(offsetof(DEVMODEW, dmDitherType) == 332);
static_assert(offsetof(DEVMODEW, dmReserved1) == 336);
static_assert(offsetof(DEVMODEW, dmReserved2) == 340);
static_assert(offsetof(DEVMODEW, dmPanningWidth) == 344);
static_assert(offsetof(DEVMODEW, dmPanningHeight) == 348);

static_assert(sizeof(PRINTER_DEFAULTSW) == 24);
static_assert(offsetof(PRINTER_DEFAULTSW, pDatatype) == 0);
static_assert(offsetof(PRINTER_DEFAULTSW, pDevMode) == 8);
static_assert(offsetof(PRINTER_DEFAULTSW, DesiredAccess) == 16);

static_assert(sizeof(OPENFILENAMEW) == 152);
static_assert(offsetof(OPENFILENAMEW, lStructSize) == 0);
static_assert(offsetof(OPENFILENAMEW, hwndOwner) == 8);
static_assert(offsetof(OPENFILENAMEW, hInstance) == 16);
static_assert(offsetof(OPENFILENAMEW, lpstrFilter) == 24);
static_assert(offsetof(OPENFILENAMEW, lpstrCustomFilter) == 32);
static_assert(offsetof(OPENFILENAMEW, nMaxCustFilter) == 40);
static_assert(offsetof(OPENFILENAMEW, nFilterIndex) == 44);
static_assert(offsetof(OPENFILENAMEW, lpstrFile) == 48);
static_assert(offsetof(OPENFILENAMEW, nMaxFile) == 56);
static_assert(offsetof(OPENFILENAMEW, lpstrFileTitle) == 64);
static_assert(offsetof(OPENFILENAMEW, nMaxFileTitle) == 72);
static_assert(offsetof(OPENFILENAMEW, lpstrInitialDir) == 80);
static_assert(offsetof(OPENFILENAMEW, lpstrTitle) == 88);
static_assert(offsetof(OPENFILENAMEW, Flags) == 96);
static_assert(offsetof(OPENFILENAMEW, nFileOffset) == 100);
static_assert(offsetof(OPENFILENAMEW, nFileExtension) == 102);
static_assert(offsetof(OPENFILENAMEW, lpstrDefExt) == 104);
static_assert(offsetof(OPENFILENAMEW, lCustData) == 112);
static_assert(offsetof(OPENFILENAMEW, lpfnHook) == 120);
static_assert(offsetof(OPENFILENAMEW, lpTemplateName) == 128);
static_assert(offsetof(OPENFILENAMEW, pvReserved) == 136);
static_assert(offsetof(OPENFILENAMEW, dwReserved) == 144);
static_assert(offsetof(OPENFILENAMEW, FlagsEx) == 148);
