// SPDX-License-Identifier: MIT
//
// The Windows records that a host fills, reads or passes on by pointer.
//
//     OVERLAPPED overlapped = {};
//     overlapped.Offset = 4096;
//     CRect area(0, 0, 640, 480);
//
// Each has the layout that Windows publishes for 64-bit programs, except that a character is a
// 32-bit wchar_t, also in the sizes given below. A member that Windows declares as BOOL is int
// here, because Objective-C has a BOOL of one byte. Records own nothing: what a pointer member
// points to belongs to whoever set it.
#ifndef KTQTBASE_WINDOWS_RECORDS_H
#define KTQTBASE_WINDOWS_RECORDS_H

#include <KtQtBase/windows/Scalars.h>

// ---- Points and rectangles ---------------------------------------------------------------------

// A position, 8 bytes; the function that takes it names the unit, most often pixels.
struct POINT
{
    LONG x;
    LONG y;
};

// A position in a printer's or display's settings, 8 bytes, in the device's units.
struct POINTL
{
    LONG x;
    LONG y;
};

// A width and a height, 8 bytes.
struct SIZE
{
    LONG cx;
    LONG cy;
};

// A rectangle by its edges, 16 bytes; right and bottom are just outside it.
struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

// A RECT with constructors, 16 bytes. The four values are stored as passed, never put in order.
// On Windows: with many more members, such as Width; Porting.h adds its operators.
class CRect : public RECT
{
public:
    // All four edges 0.
    CRect() : RECT{0, 0, 0, 0} {}

    CRect(int leftEdge, int topEdge, int rightEdge, int bottomEdge)
        : RECT{leftEdge, topEdge, rightEdge, bottomEdge}
    {}
};

// ---- Colours and bitmaps -----------------------------------------------------------------------

// A palette colour, 4 bytes: red, green and blue from 0 to 255, and PC_ flags.
struct PALETTEENTRY
{
    BYTE peRed;
    BYTE peGreen;
    BYTE peBlue;
    BYTE peFlags;
};

// A palette, 8 bytes with its first colour; the other colours follow it in memory.
struct LOGPALETTE
{
    WORD palVersion;
    WORD palNumEntries;
    PALETTEENTRY palPalEntry[1];
};

// A bitmap colour, 4 bytes, blue first.
struct RGBQUAD
{
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};

// A bitmap's size and format, 40 bytes; biSize is the record's own size. With a negative height the
// bitmap's first row is the upper one.
struct BITMAPINFOHEADER
{
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};

// A bitmap's header and colours, 44 bytes with the first colour; the others follow it in memory.
struct BITMAPINFO
{
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};

// ---- Fonts -------------------------------------------------------------------------------------

// The description of a font, 156 bytes. Angles are tenths of a degree, the weight is 0 to 1000
// (FW_), the face name is UTF-32 of at most 31 characters and a NUL.
struct LOGFONTW
{
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    wchar_t lfFaceName[32];
};

// ---- Numbers -----------------------------------------------------------------------------------

// How a number is formatted, 40 bytes. The two texts belong to the caller.
struct NUMBERFMTW
{
    UINT NumDigits;
    UINT LeadingZero;
    UINT Grouping;
    wchar_t* lpDecimalSep;
    wchar_t* lpThousandSep;
    UINT NegativeOrder;
};

// ---- System and threads ------------------------------------------------------------------------

// The system's version, 532 bytes; dwOSVersionInfoSize is the record's own size.
struct OSVERSIONINFOW
{
    DWORD dwOSVersionInfoSize;
    DWORD dwMajorVersion;
    DWORD dwMinorVersion;
    DWORD dwBuildNumber;
    DWORD dwPlatformId;
    wchar_t szCSDVersion[128];
};

// A link of a doubly linked list, 16 bytes.
struct LIST_ENTRY
{
    LIST_ENTRY* Flink;
    LIST_ENTRY* Blink;
};

struct RTL_CRITICAL_SECTION;

// What Windows records about a lock for debuggers, 48 bytes.
struct RTL_CRITICAL_SECTION_DEBUG
{
    WORD Type;
    WORD CreatorBackTraceIndex;
    RTL_CRITICAL_SECTION* CriticalSection;
    LIST_ENTRY ProcessLocksList;
    DWORD EntryCount;
    DWORD ContentionCount;
    DWORD Flags;
    WORD CreatorBackTraceIndexHigh;
    WORD SpareWORD;
};

// A lock, 40 bytes; no function of this library reads or writes one.
struct RTL_CRITICAL_SECTION
{
    RTL_CRITICAL_SECTION_DEBUG* DebugInfo;
    LONG LockCount;
    LONG RecursionCount;
    HANDLE OwningThread;
    HANDLE LockSemaphore;
    unsigned long long SpinCount;
};

using CRITICAL_SECTION = RTL_CRITICAL_SECTION;

// Who may use an object, 24 bytes; nLength is the record's own size.
struct SECURITY_ATTRIBUTES
{
    DWORD nLength;
    void* lpSecurityDescriptor;
    int bInheritHandle;
};

// ---- Files and times ---------------------------------------------------------------------------

// A time, 8 bytes: the two halves of a count of 100 nanoseconds since 1 January 1601, UTC.
struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};

// A date and a time of day, 16 bytes. Months count from 1, days of the week from 0 (Sunday).
struct SYSTEMTIME
{
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};

// A file that a search in a folder found, 1,140 bytes. Names are UTF-32 with a NUL.
struct WIN32_FIND_DATAW
{
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwReserved0;
    DWORD dwReserved1;
    wchar_t cFileName[260];
    wchar_t cAlternateFileName[14];
};

// An asynchronous transfer, 32 bytes; Offset and OffsetHigh are the file position in bytes.
struct OVERLAPPED
{
    unsigned long long Internal;
    unsigned long long InternalHigh;
    __extension__ union
    {
        __extension__ struct
        {
            DWORD Offset;
            DWORD OffsetHigh;
        };
        void* Pointer;
    };
    HANDLE hEvent;
};

// ---- Printers ----------------------------------------------------------------------------------

// A printer's or display's settings, 352 bytes; dmFields says which members hold a value. Paper
// lengths are tenths of a millimetre, resolutions dots per inch, sizes pixels.
struct DEVMODEW
{
    wchar_t dmDeviceName[32];
    WORD dmSpecVersion;
    WORD dmDriverVersion;
    WORD dmSize;
    WORD dmDriverExtra;
    DWORD dmFields;
    __extension__ union
    {
        __extension__ struct
        {
            short dmOrientation;
            short dmPaperSize;
            short dmPaperLength;
            short dmPaperWidth;
            short dmScale;
            short dmCopies;
            short dmDefaultSource;
            short dmPrintQuality;
        };
        __extension__ struct
        {
            POINTL dmPosition;
            DWORD dmDisplayOrientation;
            DWORD dmDisplayFixedOutput;
        };
    };
    short dmColor;
    short dmDuplex;
    short dmYResolution;
    short dmTTOption;
    short dmCollate;
    wchar_t dmFormName[32];
    WORD dmLogPixels;
    DWORD dmBitsPerPel;
    DWORD dmPelsWidth;
    DWORD dmPelsHeight;
    __extension__ union
    {
        DWORD dmDisplayFlags;
        DWORD dmNup;
    };
    DWORD dmDisplayFrequency;
    DWORD dmICMMethod;
    DWORD dmICMIntent;
    DWORD dmMediaType;
    DWORD dmDitherType;
    DWORD dmReserved1;
    DWORD dmReserved2;
    DWORD dmPanningWidth;
    DWORD dmPanningHeight;
};

// What a printer is opened with, 24 bytes.
struct PRINTER_DEFAULTSW
{
    wchar_t* pDatatype;
    DEVMODEW* pDevMode;
    DWORD DesiredAccess;
};

// ---- The file dialog ---------------------------------------------------------------------------

// A hook procedure of the Windows file dialog: dialog, message and its two parameters.
using LPOFNHOOKPROC = unsigned long long (*)(HWND, UINT, WPARAM, LPARAM);

// What a file dialog shows and gives back, 152 bytes; lStructSize is the record's own size. Lengths
// named nMax... and the offsets nFile... count characters.
struct OPENFILENAMEW
{
    DWORD lStructSize;
    HWND hwndOwner;
    HINSTANCE hInstance;
    const wchar_t* lpstrFilter;
    wchar_t* lpstrCustomFilter;
    DWORD nMaxCustFilter;
    DWORD nFilterIndex;
    wchar_t* lpstrFile;
    DWORD nMaxFile;
    wchar_t* lpstrFileTitle;
    DWORD nMaxFileTitle;
    const wchar_t* lpstrInitialDir;
    const wchar_t* lpstrTitle;
    DWORD Flags;
    WORD nFileOffset;
    WORD nFileExtension;
    const wchar_t* lpstrDefExt;
    LPARAM lCustData;
    LPOFNHOOKPROC lpfnHook;
    const wchar_t* lpTemplateName;
    void* pvReserved;
    DWORD dwReserved;
    DWORD FlagsEx;
};

#endif
