// SPDX-License-Identifier: MIT
//
// Types under their Windows names, besides those of windows/Scalars.h and windows/Records.h.
//
//     LPCTSTR caption = _T("Panel");
//     DWORD_PTR data = reinterpret_cast<DWORD_PTR>(caption);
//
// Texts are wide, as in a Windows program that is compiled with UNICODE. A long of Windows has 32
// bits, so ULONG is an unsigned int here; what has the size of a pointer there is a long long.
#ifndef KTQTBASE_PORTING_TYPES_H
#define KTQTBASE_PORTING_TYPES_H

#include <KtQtBase/windows/Records.h>
#include <KtQtBase/windows/Scalars.h>

#include <cstddef>

#include <KtQtBase/porting/HostMacros.h> // sets the host's macros aside

// ---- Characters and texts ----------------------------------------------------------------------

KTQTBASE_PORTING_TYPE(CHAR, char);              // a narrow character
KTQTBASE_PORTING_TYPE(WCHAR, wchar_t);          // a wide character, 32 bits here
KTQTBASE_PORTING_TYPE(TCHAR, wchar_t);          // a character
KTQTBASE_PORTING_TYPE(PCHAR, char*);            // a narrow character's address
KTQTBASE_PORTING_TYPE(PWCHAR, wchar_t*);        // a wide character's address
KTQTBASE_PORTING_TYPE(PTCHAR, wchar_t*);        // a character's address
KTQTBASE_PORTING_TYPE(PSTR, char*);             // a narrow text
KTQTBASE_PORTING_TYPE(LPSTR, char*);            // a narrow text
KTQTBASE_PORTING_TYPE(PCSTR, const char*);      // a narrow text to read
KTQTBASE_PORTING_TYPE(LPCSTR, const char*);     // a narrow text to read
KTQTBASE_PORTING_TYPE(PWSTR, wchar_t*);         // a wide text
KTQTBASE_PORTING_TYPE(LPWSTR, wchar_t*);        // a wide text
KTQTBASE_PORTING_TYPE(PCWSTR, const wchar_t*);  // a wide text to read
KTQTBASE_PORTING_TYPE(LPCWSTR, const wchar_t*); // a wide text to read
KTQTBASE_PORTING_TYPE(PTSTR, wchar_t*);         // a text
KTQTBASE_PORTING_TYPE(LPTSTR, wchar_t*);        // a text
KTQTBASE_PORTING_TYPE(PCTSTR, const wchar_t*);  // a text to read
KTQTBASE_PORTING_TYPE(LPCTSTR, const wchar_t*); // a text to read

// ---- Numbers -----------------------------------------------------------------------------------

KTQTBASE_PORTING_TYPE(VOID, void);                    // nothing
KTQTBASE_PORTING_TYPE(BOOLEAN, unsigned char);        // a truth value of one byte
KTQTBASE_PORTING_TYPE(FLOAT, float);                  // a real number, 32 bits
KTQTBASE_PORTING_TYPE(UCHAR, unsigned char);          // 8 bits
KTQTBASE_PORTING_TYPE(INT8, signed char);             // 8 bits
KTQTBASE_PORTING_TYPE(UINT8, unsigned char);          // 8 bits
KTQTBASE_PORTING_TYPE(SHORT, short);                  // 16 bits
KTQTBASE_PORTING_TYPE(USHORT, unsigned short);        // 16 bits
KTQTBASE_PORTING_TYPE(INT16, short);                  // 16 bits
KTQTBASE_PORTING_TYPE(UINT16, unsigned short);        // 16 bits
KTQTBASE_PORTING_TYPE(INT, int);                      // 32 bits
KTQTBASE_PORTING_TYPE(ULONG, unsigned int);           // 32 bits
KTQTBASE_PORTING_TYPE(INT32, int);                    // 32 bits
KTQTBASE_PORTING_TYPE(UINT32, unsigned int);          // 32 bits
KTQTBASE_PORTING_TYPE(LONG32, int);                   // 32 bits
KTQTBASE_PORTING_TYPE(ULONG32, unsigned int);         // 32 bits
KTQTBASE_PORTING_TYPE(DWORD32, unsigned int);         // 32 bits
KTQTBASE_PORTING_TYPE(LONGLONG, long long);           // 64 bits
KTQTBASE_PORTING_TYPE(ULONGLONG, unsigned long long); // 64 bits
KTQTBASE_PORTING_TYPE(DWORDLONG, unsigned long long); // 64 bits
KTQTBASE_PORTING_TYPE(INT64, long long);              // 64 bits
KTQTBASE_PORTING_TYPE(UINT64, unsigned long long);    // 64 bits
KTQTBASE_PORTING_TYPE(LONG64, long long);             // 64 bits
KTQTBASE_PORTING_TYPE(ULONG64, unsigned long long);   // 64 bits
KTQTBASE_PORTING_TYPE(DWORD64, unsigned long long);   // 64 bits
KTQTBASE_PORTING_TYPE(INT_PTR, long long);            // a pointer's size
KTQTBASE_PORTING_TYPE(UINT_PTR, unsigned long long);  // a pointer's size
KTQTBASE_PORTING_TYPE(LONG_PTR, long long);           // a pointer's size
KTQTBASE_PORTING_TYPE(ULONG_PTR, unsigned long long); // a pointer's size
KTQTBASE_PORTING_TYPE(DWORD_PTR, unsigned long long); // a pointer's size
KTQTBASE_PORTING_TYPE(SIZE_T, std::size_t);           // a number of bytes
KTQTBASE_PORTING_TYPE(SSIZE_T, std::ptrdiff_t);       // a number of bytes, with a sign
KTQTBASE_PORTING_TYPE(ATOM, WORD);                    // the number of a registered text
KTQTBASE_PORTING_TYPE(LANGID, WORD);                  // a language
KTQTBASE_PORTING_TYPE(LCID, DWORD);                   // a locale, such as LOCALE_USER_DEFAULT
KTQTBASE_PORTING_TYPE(HFILE, int);                    // a file of the oldest functions

// ---- Addresses ---------------------------------------------------------------------------------

KTQTBASE_PORTING_TYPE(PVOID, void*);             // of anything
KTQTBASE_PORTING_TYPE(LPVOID, void*);            // of anything
KTQTBASE_PORTING_TYPE(LPCVOID, const void*);     // of anything, to read
KTQTBASE_PORTING_TYPE(PBYTE, BYTE*);             // of a BYTE
KTQTBASE_PORTING_TYPE(LPBYTE, BYTE*);            // of a BYTE
KTQTBASE_PORTING_TYPE(PUCHAR, unsigned char*);   // of a UCHAR
KTQTBASE_PORTING_TYPE(PSHORT, short*);           // of a SHORT
KTQTBASE_PORTING_TYPE(PUSHORT, unsigned short*); // of a USHORT
KTQTBASE_PORTING_TYPE(PWORD, WORD*);             // of a WORD
KTQTBASE_PORTING_TYPE(LPWORD, WORD*);            // of a WORD
KTQTBASE_PORTING_TYPE(PINT, int*);               // of an INT
KTQTBASE_PORTING_TYPE(LPINT, int*);              // of an INT
KTQTBASE_PORTING_TYPE(PUINT, UINT*);             // of a UINT
KTQTBASE_PORTING_TYPE(LPUINT, UINT*);            // of a UINT
KTQTBASE_PORTING_TYPE(PLONG, LONG*);             // of a LONG
KTQTBASE_PORTING_TYPE(LPLONG, LONG*);            // of a LONG
KTQTBASE_PORTING_TYPE(PULONG, unsigned int*);    // of a ULONG
KTQTBASE_PORTING_TYPE(PDWORD, DWORD*);           // of a DWORD
KTQTBASE_PORTING_TYPE(LPDWORD, DWORD*);          // of a DWORD
KTQTBASE_PORTING_TYPE(PBOOL, int*);              // of what is BOOL on Windows
KTQTBASE_PORTING_TYPE(LPBOOL, int*);             // of what is BOOL on Windows
KTQTBASE_PORTING_TYPE(PFLOAT, float*);           // of a FLOAT
KTQTBASE_PORTING_TYPE(PHANDLE, HANDLE*);         // of a HANDLE
KTQTBASE_PORTING_TYPE(LPHANDLE, HANDLE*);        // of a HANDLE
KTQTBASE_PORTING_TYPE(LPCOLORREF, COLORREF*);    // of a COLORREF

// ---- Handles and functions ---------------------------------------------------------------------

KTQTBASE_PORTING_TYPE(HGLOBAL, void*);           // memory
KTQTBASE_PORTING_TYPE(HLOCAL, void*);            // memory
KTQTBASE_PORTING_TYPE(HICON, HCURSOR);           // an icon; a cursor is one
KTQTBASE_PORTING_TYPE(HBRUSH, struct HBRUSH__*); // a brush
KTQTBASE_PORTING_TYPE(HPEN, struct HPEN__*);     // a pen
KTQTBASE_PORTING_TYPE(HRGN, struct HRGN__*);     // a region
KTQTBASE_PORTING_TYPE(HRSRC, struct HRSRC__*);   // a resource
KTQTBASE_PORTING_TYPE(HHOOK, struct HHOOK__*);   // a hook

// What GetProcAddress returns, so that `FARPROC p = GetProcAddress(module, name)` compiles; cast it
// to the function's own type.
// On Windows: a pointer to a function.
KTQTBASE_PORTING_TYPE(FARPROC, void*);

// The procedures of a window, a dialog, a timer and a thread.
KTQTBASE_PORTING_TYPE(WNDPROC, LRESULT (*)(HWND, UINT, WPARAM, LPARAM));
KTQTBASE_PORTING_TYPE(DLGPROC, long long (*)(HWND, UINT, WPARAM, LPARAM));
KTQTBASE_PORTING_TYPE(TIMERPROC, void (*)(HWND, UINT, unsigned long long, DWORD));
KTQTBASE_PORTING_TYPE(LPTHREAD_START_ROUTINE, DWORD (*)(void*));

// ---- Records under their names without W -------------------------------------------------------

KTQTBASE_PORTING_TYPE(LOGFONT, LOGFONTW);                   // the description of a font
KTQTBASE_PORTING_TYPE(NUMBERFMT, NUMBERFMTW);               // how a number is formatted
KTQTBASE_PORTING_TYPE(OSVERSIONINFO, OSVERSIONINFOW);       // the system's version
KTQTBASE_PORTING_TYPE(WIN32_FIND_DATA, WIN32_FIND_DATAW);   // a file that was found
KTQTBASE_PORTING_TYPE(DEVMODE, DEVMODEW);                   // a printer's settings
KTQTBASE_PORTING_TYPE(PRINTER_DEFAULTS, PRINTER_DEFAULTSW); // what a printer is opened with
KTQTBASE_PORTING_TYPE(OPENFILENAME, OPENFILENAMEW);         // a file dialog

// ---- Addresses of records ----------------------------------------------------------------------

KTQTBASE_PORTING_TYPE(PPOINT, POINT*);                              // a position
KTQTBASE_PORTING_TYPE(LPPOINT, POINT*);                             // a position
KTQTBASE_PORTING_TYPE(PSIZE, SIZE*);                                // a width and a height
KTQTBASE_PORTING_TYPE(LPSIZE, SIZE*);                               // a width and a height
KTQTBASE_PORTING_TYPE(PRECT, RECT*);                                // a rectangle
KTQTBASE_PORTING_TYPE(LPRECT, RECT*);                               // a rectangle
KTQTBASE_PORTING_TYPE(LPCRECT, const RECT*);                        // a rectangle to read
KTQTBASE_PORTING_TYPE(PPALETTEENTRY, PALETTEENTRY*);                // a palette colour
KTQTBASE_PORTING_TYPE(LPPALETTEENTRY, PALETTEENTRY*);               // a palette colour
KTQTBASE_PORTING_TYPE(PLOGPALETTE, LOGPALETTE*);                    // a palette
KTQTBASE_PORTING_TYPE(LPLOGPALETTE, LOGPALETTE*);                   // a palette
KTQTBASE_PORTING_TYPE(LPRGBQUAD, RGBQUAD*);                         // a bitmap colour
KTQTBASE_PORTING_TYPE(PBITMAPINFOHEADER, BITMAPINFOHEADER*);        // a bitmap's size
KTQTBASE_PORTING_TYPE(LPBITMAPINFOHEADER, BITMAPINFOHEADER*);       // a bitmap's size
KTQTBASE_PORTING_TYPE(PBITMAPINFO, BITMAPINFO*);                    // a bitmap's header
KTQTBASE_PORTING_TYPE(LPBITMAPINFO, BITMAPINFO*);                   // a bitmap's header
KTQTBASE_PORTING_TYPE(PLOGFONTW, LOGFONTW*);                        // a font
KTQTBASE_PORTING_TYPE(LPLOGFONTW, LOGFONTW*);                       // a font
KTQTBASE_PORTING_TYPE(PLOGFONT, LOGFONTW*);                         // a font
KTQTBASE_PORTING_TYPE(LPLOGFONT, LOGFONTW*);                        // a font
KTQTBASE_PORTING_TYPE(LPOSVERSIONINFOW, OSVERSIONINFOW*);           // the system's version
KTQTBASE_PORTING_TYPE(LPOSVERSIONINFO, OSVERSIONINFOW*);            // the system's version
KTQTBASE_PORTING_TYPE(PLIST_ENTRY, LIST_ENTRY*);                    // a link of a list
KTQTBASE_PORTING_TYPE(PCRITICAL_SECTION, CRITICAL_SECTION*);        // a lock
KTQTBASE_PORTING_TYPE(LPCRITICAL_SECTION, CRITICAL_SECTION*);       // a lock
KTQTBASE_PORTING_TYPE(PSECURITY_ATTRIBUTES, SECURITY_ATTRIBUTES*);  // who may use an object
KTQTBASE_PORTING_TYPE(LPSECURITY_ATTRIBUTES, SECURITY_ATTRIBUTES*); // who may use an object
KTQTBASE_PORTING_TYPE(PFILETIME, FILETIME*);                        // a time
KTQTBASE_PORTING_TYPE(LPFILETIME, FILETIME*);                       // a time
KTQTBASE_PORTING_TYPE(PSYSTEMTIME, SYSTEMTIME*);                    // a date and a time of day
KTQTBASE_PORTING_TYPE(LPSYSTEMTIME, SYSTEMTIME*);                   // a date and a time of day
KTQTBASE_PORTING_TYPE(PWIN32_FIND_DATAW, WIN32_FIND_DATAW*);        // a file that was found
KTQTBASE_PORTING_TYPE(LPWIN32_FIND_DATAW, WIN32_FIND_DATAW*);       // a file that was found
KTQTBASE_PORTING_TYPE(PWIN32_FIND_DATA, WIN32_FIND_DATAW*);         // a file that was found
KTQTBASE_PORTING_TYPE(LPWIN32_FIND_DATA, WIN32_FIND_DATAW*);        // a file that was found
KTQTBASE_PORTING_TYPE(LPOVERLAPPED, OVERLAPPED*);                   // an asynchronous transfer
KTQTBASE_PORTING_TYPE(PDEVMODEW, DEVMODEW*);                        // a printer's settings
KTQTBASE_PORTING_TYPE(LPDEVMODEW, DEVMODEW*);                       // a printer's settings
KTQTBASE_PORTING_TYPE(PDEVMODE, DEVMODEW*);                         // a printer's settings
KTQTBASE_PORTING_TYPE(LPDEVMODE, DEVMODEW*);                        // a printer's settings
KTQTBASE_PORTING_TYPE(LPPRINTER_DEFAULTSW, PRINTER_DEFAULTSW*);     // to open a printer
KTQTBASE_PORTING_TYPE(LPPRINTER_DEFAULTS, PRINTER_DEFAULTSW*);      // to open a printer
KTQTBASE_PORTING_TYPE(LPOPENFILENAMEW, OPENFILENAMEW*);             // a file dialog
KTQTBASE_PORTING_TYPE(LPOPENFILENAME, OPENFILENAMEW*);              // a file dialog

// ---- Records -----------------------------------------------------------------------------------

namespace KtPorting {

// A position in two short numbers, 4 bytes.
struct POINTS
{
    short x;
    short y;
};

// A number of 64 bits and its two halves, 8 bytes.
struct LARGE_INTEGER
{
    __extension__ union
    {
        __extension__ struct
        {
            DWORD LowPart;
            LONG HighPart;
        };
        struct
        {
            DWORD LowPart;
            LONG HighPart;
        } u;
        long long QuadPart;
    };
};

struct ULARGE_INTEGER
{
    __extension__ union
    {
        __extension__ struct
        {
            DWORD LowPart;
            DWORD HighPart;
        };
        struct
        {
            DWORD LowPart;
            DWORD HighPart;
        } u;
        unsigned long long QuadPart;
    };
};

// A number that is given to one thing only, 16 bytes.
struct GUID
{
    DWORD Data1;
    WORD Data2;
    WORD Data3;
    BYTE Data4[8];
};

} // namespace KtPorting

KTQTBASE_PORTING_USING(KtPorting, POINTS);
KTQTBASE_PORTING_USING(KtPorting, LARGE_INTEGER);
KTQTBASE_PORTING_USING(KtPorting, ULARGE_INTEGER);
KTQTBASE_PORTING_USING(KtPorting, GUID);

#include <KtQtBase/porting/HostMacros.h> // gives them back

#endif
