// SPDX-License-Identifier: MIT
//
// Hosts pass these records to other libraries as raw bytes, so a layout that differs from the
// published one must stop the build.
#include <KtQtBase/windows/Records.h>

#include <cstddef>

static_assert(sizeof(void*) == 8);
static_assert(sizeof(wchar_t) == 4);

static_assert(sizeof(POINT) == 8);
static_assert(offsetof(POINT, y) == 4);

static_assert(sizeof(POINTL) == 8);
static_assert(offsetof(POINTL, y) == 4);

static_assert(sizeof(SIZE) == 8);
static_assert(offsetof(SIZE, cy) == 4);

static_assert(sizeof(RECT) == 16);
static_assert(offsetof(RECT, top) == 4);
static_assert(offsetof(RECT, right) == 8);
static_assert(offsetof(RECT, bottom) == 12);
static_assert(sizeof(CRect) == sizeof(RECT));

static_assert(sizeof(PALETTEENTRY) == 4);
static_assert(offsetof(PALETTEENTRY, peFlags) == 3);

static_assert(sizeof(LOGPALETTE) == 8);
static_assert(offsetof(LOGPALETTE, palNumEntries) == 2);
static_assert(offsetof(LOGPALETTE, palPalEntry) == 4);

static_assert(sizeof(RGBQUAD) == 4);
static_assert(offsetof(RGBQUAD, rgbBlue) == 0);
static_assert(offsetof(RGBQUAD, rgbRed) == 2);

static_assert(sizeof(BITMAPINFOHEADER) == 40);
static_assert(offsetof(BITMAPINFOHEADER, biPlanes) == 12);
static_assert(offsetof(BITMAPINFOHEADER, biCompression) == 16);
static_assert(offsetof(BITMAPINFOHEADER, biClrImportant) == 36);

static_assert(sizeof(BITMAPINFO) == 44);
static_assert(offsetof(BITMAPINFO, bmiColors) == 40);

static_assert(sizeof(LOGFONTW) == 156);
static_assert(offsetof(LOGFONTW, lfWeight) == 16);
static_assert(offsetof(LOGFONTW, lfItalic) == 20);
static_assert(offsetof(LOGFONTW, lfPitchAndFamily) == 27);
static_assert(offsetof(LOGFONTW, lfFaceName) == 28);

static_assert(sizeof(NUMBERFMTW) == 40);
static_assert(offsetof(NUMBERFMTW, Grouping) == 8);
static_assert(offsetof(NUMBERFMTW, lpDecimalSep) == 16);
static_assert(offsetof(NUMBERFMTW, lpThousandSep) == 24);
static_assert(offsetof(NUMBERFMTW, NegativeOrder) == 32);

static_assert(sizeof(OSVERSIONINFOW) == 532);
static_assert(offsetof(OSVERSIONINFOW, dwPlatformId) == 16);
static_assert(offsetof(OSVERSIONINFOW, szCSDVersion) == 20);

static_assert(sizeof(LIST_ENTRY) == 16);
static_assert(offsetof(LIST_ENTRY, Blink) == 8);

static_assert(sizeof(RTL_CRITICAL_SECTION_DEBUG) == 48);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, CriticalSection) == 8);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, ProcessLocksList) == 16);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, EntryCount) == 32);
static_assert(offsetof(RTL_CRITICAL_SECTION_DEBUG, CreatorBackTraceIndexHigh) == 44);

static_assert(sizeof(RTL_CRITICAL_SECTION) == 40);
static_assert(offsetof(RTL_CRITICAL_SECTION, LockCount) == 8);
static_assert(offsetof(RTL_CRITICAL_SECTION, OwningThread) == 16);
static_assert(offsetof(RTL_CRITICAL_SECTION, SpinCount) == 32);

static_assert(sizeof(SECURITY_ATTRIBUTES) == 24);
static_assert(offsetof(SECURITY_ATTRIBUTES, lpSecurityDescriptor) == 8);
static_assert(offsetof(SECURITY_ATTRIBUTES, bInheritHandle) == 16);

static_assert(sizeof(FILETIME) == 8);
static_assert(offsetof(FILETIME, dwHighDateTime) == 4);

static_assert(sizeof(SYSTEMTIME) == 16);
static_assert(offsetof(SYSTEMTIME, wDay) == 6);
static_assert(offsetof(SYSTEMTIME, wMilliseconds) == 14);

static_assert(sizeof(WIN32_FIND_DATAW) == 1140);
static_assert(offsetof(WIN32_FIND_DATAW, ftCreationTime) == 4);
static_assert(offsetof(WIN32_FIND_DATAW, nFileSizeLow) == 32);
static_assert(offsetof(WIN32_FIND_DATAW, cFileName) == 44);
static_assert(offsetof(WIN32_FIND_DATAW, cAlternateFileName) == 1084);

static_assert(sizeof(OVERLAPPED) == 32);
static_assert(offsetof(OVERLAPPED, Offset) == 16);
static_assert(offsetof(OVERLAPPED, OffsetHigh) == 20);
static_assert(offsetof(OVERLAPPED, Pointer) == 16);
static_assert(offsetof(OVERLAPPED, hEvent) == 24);

static_assert(sizeof(DEVMODEW) == 352);
static_assert(offsetof(DEVMODEW, dmSpecVersion) == 128);
static_assert(offsetof(DEVMODEW, dmFields) == 136);
static_assert(offsetof(DEVMODEW, dmOrientation) == 140);
static_assert(offsetof(DEVMODEW, dmPosition) == 140);
static_assert(offsetof(DEVMODEW, dmDisplayFixedOutput) == 152);
static_assert(offsetof(DEVMODEW, dmColor) == 156);
static_assert(offsetof(DEVMODEW, dmFormName) == 168);
static_assert(offsetof(DEVMODEW, dmLogPixels) == 296);
static_assert(offsetof(DEVMODEW, dmBitsPerPel) == 300);
static_assert(offsetof(DEVMODEW, dmNup) == 312);
static_assert(offsetof(DEVMODEW, dmPanningHeight) == 348);

static_assert(sizeof(PRINTER_DEFAULTSW) == 24);
static_assert(offsetof(PRINTER_DEFAULTSW, pDevMode) == 8);
static_assert(offsetof(PRINTER_DEFAULTSW, DesiredAccess) == 16);

static_assert(sizeof(OPENFILENAMEW) == 152);
static_assert(offsetof(OPENFILENAMEW, hwndOwner) == 8);
static_assert(offsetof(OPENFILENAMEW, lpstrFilter) == 24);
static_assert(offsetof(OPENFILENAMEW, nFilterIndex) == 44);
static_assert(offsetof(OPENFILENAMEW, lpstrFile) == 48);
static_assert(offsetof(OPENFILENAMEW, lpstrInitialDir) == 80);
static_assert(offsetof(OPENFILENAMEW, lpstrTitle) == 88);
static_assert(offsetof(OPENFILENAMEW, Flags) == 96);
static_assert(offsetof(OPENFILENAMEW, nFileExtension) == 102);
static_assert(offsetof(OPENFILENAMEW, lCustData) == 112);
static_assert(offsetof(OPENFILENAMEW, lpfnHook) == 120);
static_assert(offsetof(OPENFILENAMEW, FlagsEx) == 148);
