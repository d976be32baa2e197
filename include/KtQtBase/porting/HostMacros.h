// SPDX-License-Identifier: MIT
//
// Sets aside the host's macros that are named like something that the porting headers declare, and
// gives them back when it is included once more. Between the two these lines declare names, unless
// the host has defined KTQTBASE_PORTING_NO_<NAME>:
//
//     KTQTBASE_PORTING_TYPE(LPSTR, char*);                        a type
//     KTQTBASE_PORTING_CONSTANT(E_FAIL, HRESULT, 0x80004005U);    a constant
//     KTQTBASE_PORTING_FUNCTION(LoadLibraryW, LoadLibrary);       another name of a function
//     KTQTBASE_PORTING_INERT(GetPrinter, GetPrinterW, "...");     the same for an inert one
//     KTQTBASE_PORTING_USING(KtUser32, SetFocus);                 a name of a namespace
//
// Included in pairs, so it has no guard. Nothing here is for hosts.

#ifndef KTQTBASE_PORTING_MACROS_ASIDE
#define KTQTBASE_PORTING_MACROS_ASIDE

#include <KtQtBase/Inert.h>
#include <KtQtBase/porting/Names.h>

#define KTQTBASE_PORTING_PRAGMA(text) _Pragma(#text)
#define KTQTBASE_PORTING_PUSH(name) KTQTBASE_PORTING_PRAGMA(push_macro(#name))
#define KTQTBASE_PORTING_POP(name) KTQTBASE_PORTING_PRAGMA(pop_macro(#name))

// Picks SKIP for a name that is switched off, else the given macro. A switch that is defined makes
// a comma here, empty or with one of these values, which moves SKIP to the second place.
#define KTQTBASE_PORTING_UNLESS_OFF(name, macro)                                                   \
    KTQTBASE_PORTING_SECOND(                                                                       \
        KTQTBASE_PORTING_COMMA(KTQTBASE_PORTING_NO_##name) KTQTBASE_PORTING_SKIP, macro, ~)
#define KTQTBASE_PORTING_SECOND(...) KTQTBASE_PORTING_SECOND_OF(__VA_ARGS__)
#define KTQTBASE_PORTING_SECOND_OF(first, second, ...) second
#define KTQTBASE_PORTING_COMMA(value) KTQTBASE_PORTING_COMMA_FOR(value)
#define KTQTBASE_PORTING_COMMA_FOR(value) KTQTBASE_PORTING_COMMA_##value
#define KTQTBASE_PORTING_COMMA_ ~,
#define KTQTBASE_PORTING_COMMA_0 ~,
#define KTQTBASE_PORTING_COMMA_1 ~,
#define KTQTBASE_PORTING_COMMA_ON ~,
#define KTQTBASE_PORTING_COMMA_true ~,
#define KTQTBASE_PORTING_SKIP(...) static_assert(true, "")

// A name that is not skipped has no switch, so that the switch's text is its own name: another
// value would be lost in silence.
#define KTQTBASE_PORTING_CHECK(name)                                                               \
    static_assert(sizeof(KTQTBASE_PORTING_TEXT(KTQTBASE_PORTING_NO_##name)) ==                     \
                      sizeof("KTQTBASE_PORTING_NO_" #name),                                        \
                  "define KTQTBASE_PORTING_NO_" #name " empty, or as 1")
#define KTQTBASE_PORTING_TEXT(value) KTQTBASE_PORTING_TEXT_OF(value)
#define KTQTBASE_PORTING_TEXT_OF(value) #value

#define KTQTBASE_PORTING_TYPE(name, ...)                                                           \
    KTQTBASE_PORTING_UNLESS_OFF(name, KTQTBASE_PORTING_ADD_TYPE)(name, __VA_ARGS__)
#define KTQTBASE_PORTING_ADD_TYPE(name, ...)                                                       \
    KTQTBASE_PORTING_CHECK(name);                                                                  \
    using name = __VA_ARGS__

#define KTQTBASE_PORTING_CONSTANT(name, type, value)                                               \
    KTQTBASE_PORTING_UNLESS_OFF(name, KTQTBASE_PORTING_ADD_CONSTANT)(name, type, value)
#define KTQTBASE_PORTING_ADD_CONSTANT(name, type, value)                                           \
    KTQTBASE_PORTING_CHECK(name);                                                                  \
    constexpr type name = static_cast<type>(value)

#define KTQTBASE_PORTING_USING(space, name)                                                        \
    KTQTBASE_PORTING_UNLESS_OFF(name, KTQTBASE_PORTING_ADD_USING)(space, name)
#define KTQTBASE_PORTING_ADD_USING(space, name)                                                    \
    KTQTBASE_PORTING_CHECK(name);                                                                  \
    using space::name

// What is declared takes no parentheses. NOLINTBEGIN(bugprone-macro-parentheses)
#define KTQTBASE_PORTING_FUNCTION(name, other)                                                     \
    KTQTBASE_PORTING_UNLESS_OFF(name, KTQTBASE_PORTING_ADD_FUNCTION)(name, other)
#define KTQTBASE_PORTING_ADD_FUNCTION(name, other)                                                 \
    KTQTBASE_PORTING_CHECK(name);                                                                  \
    inline constexpr auto& name = ::other

// Where uses are forbidden, the other function cannot be named here either.
#define KTQTBASE_PORTING_INERT(name, other, sentence)                                              \
    KTQTBASE_PORTING_UNLESS_OFF(name, KTQTBASE_PORTING_ADD_INERT)(name, other, sentence)
#if defined(KTQTBASE_FORBID_INERT)
#define KTQTBASE_PORTING_ADD_INERT(name, other, sentence)                                          \
    KTQTBASE_PORTING_CHECK(name);                                                                  \
    KTQTBASE_INERT(sentence) void name(...)
#else
#define KTQTBASE_PORTING_ADD_INERT(name, other, sentence)                                          \
    KTQTBASE_PORTING_CHECK(name);                                                                  \
    KTQTBASE_INERT(sentence) inline constexpr auto& name = ::other
#endif
// NOLINTEND(bugprone-macro-parentheses)

KTQTBASE_PORTING_NAMES(KTQTBASE_PORTING_PUSH)

#undef ARRAYSIZE
#undef ATOM
#undef BOOLEAN
#undef CHAR
#undef CPoint
#undef CSize
#undef CharNextW
#undef CompareStringW
#undef CopyFileW
#undef CopyMemory
#undef CopyRect
#undef CreateFileW
#undef CreateFontIndirect
#undef DEVMODE
#undef DLGPROC
#undef DWORD32
#undef DWORD64
#undef DWORDLONG
#undef DWORD_PTR
#undef DeleteFileW
#undef DeviceCapabilities
#undef DocumentProperties
#undef E_ABORT
#undef E_ACCESSDENIED
#undef E_FAIL
#undef E_HANDLE
#undef E_INVALIDARG
#undef E_NOINTERFACE
#undef E_NOTIMPL
#undef E_OUTOFMEMORY
#undef E_PENDING
#undef E_POINTER
#undef E_UNEXPECTED
#undef EnableWindow
#undef EnumFontFamiliesExW
#undef EnumForms
#undef EqualRect
#undef ExtTextOutW
#undef FAILED
#undef FARPROC
#undef FLOAT
#undef FillMemory
#undef FindCloseChangeNotification
#undef FindFirstChangeNotification
#undef FindFirstFile
#undef FindNextChangeNotification
#undef FindNextFile
#undef GUID
#undef GetCurrentDirectory
#undef GetCursor
#undef GetEnvironmentVariableW
#undef GetFileAttributesW
#undef GetFocus
#undef GetModuleFileNameW
#undef GetModuleHandleW
#undef GetNumberFormatW
#undef GetPrinter
#undef GetPrivateProfileIntW
#undef GetPrivateProfileSectionNamesW
#undef GetPrivateProfileStringW
#undef GetTempFileNameW
#undef GetUserName
#undef GetVersionEx
#undef HBRUSH
#undef HFILE
#undef HGLOBAL
#undef HHOOK
#undef HIBYTE
#undef HICON
#undef HLOCAL
#undef HPEN
#undef HRESULT_CODE
#undef HRESULT_FACILITY
#undef HRESULT_FROM_WIN32
#undef HRGN
#undef HRSRC
#undef INT
#undef INT16
#undef INT32
#undef INT64
#undef INT8
#undef INT_PTR
#undef IS_INTRESOURCE
#undef InflateRect
#undef IntersectRect
#undef IsRectEmpty
#undef LANGID
#undef LARGE_INTEGER
#undef LCID
#undef LOBYTE
#undef LOGFONT
#undef LONG32
#undef LONG64
#undef LONGLONG
#undef LONG_PTR
#undef LPBITMAPINFO
#undef LPBITMAPINFOHEADER
#undef LPBOOL
#undef LPBYTE
#undef LPCOLORREF
#undef LPCRECT
#undef LPCRITICAL_SECTION
#undef LPCSTR
#undef LPCTSTR
#undef LPCVOID
#undef LPCWSTR
#undef LPDEVMODE
#undef LPDEVMODEW
#undef LPDWORD
#undef LPFILETIME
#undef LPHANDLE
#undef LPINT
#undef LPLOGFONT
#undef LPLOGFONTW
#undef LPLOGPALETTE
#undef LPLONG
#undef LPOPENFILENAME
#undef LPOPENFILENAMEW
#undef LPOSVERSIONINFO
#undef LPOSVERSIONINFOW
#undef LPOVERLAPPED
#undef LPPALETTEENTRY
#undef LPPOINT
#undef LPPRINTER_DEFAULTS
#undef LPPRINTER_DEFAULTSW
#undef LPRECT
#undef LPRGBQUAD
#undef LPSECURITY_ATTRIBUTES
#undef LPSIZE
#undef LPSTR
#undef LPSYSTEMTIME
#undef LPTHREAD_START_ROUTINE
#undef LPTSTR
#undef LPUINT
#undef LPVOID
#undef LPWIN32_FIND_DATA
#undef LPWIN32_FIND_DATAW
#undef LPWORD
#undef LPWSTR
#undef LoadLibraryExW
#undef LoadLibraryW
#undef LoadStringW
#undef MAKEINTRESOURCE
#undef MAKEINTRESOURCEA
#undef MAKEINTRESOURCEW
#undef MAKELANGID
#undef MAKELONG
#undef MAKELRESULT
#undef MAKEWORD
#undef MAKE_HRESULT
#undef MessageBoxW
#undef MoveMemory
#undef MulDiv
#undef NUMBERFMT
#undef OPENFILENAME
#undef OSVERSIONINFO
#undef OffsetRect
#undef OpenPrinter
#undef OutputDebugStringW
#undef PBITMAPINFO
#undef PBITMAPINFOHEADER
#undef PBOOL
#undef PBYTE
#undef PCHAR
#undef PCRITICAL_SECTION
#undef PCSTR
#undef PCTSTR
#undef PCWSTR
#undef PDEVMODE
#undef PDEVMODEW
#undef PDWORD
#undef PFILETIME
#undef PFLOAT
#undef PHANDLE
#undef PINT
#undef PLIST_ENTRY
#undef PLOGFONT
#undef PLOGFONTW
#undef PLOGPALETTE
#undef PLONG
#undef POINTS
#undef PPALETTEENTRY
#undef PPOINT
#undef PRECT
#undef PRINTER_DEFAULTS
#undef PSECURITY_ATTRIBUTES
#undef PSHORT
#undef PSIZE
#undef PSTR
#undef PSYSTEMTIME
#undef PTCHAR
#undef PTSTR
#undef PUCHAR
#undef PUINT
#undef PULONG
#undef PUSHORT
#undef PVOID
#undef PWCHAR
#undef PWIN32_FIND_DATA
#undef PWIN32_FIND_DATAW
#undef PWORD
#undef PWSTR
#undef PathMatchSpecW
#undef PostMessageW
#undef PtInRect
#undef RegisterClipboardFormat
#undef SHGetFolderPathW
#undef SHGetSpecialFolderPathW
#undef SHORT
#undef SIZE_T
#undef SSIZE_T
#undef SUCCEEDED
#undef SendMessageW
#undef SetCurrentDirectory
#undef SetCursor
#undef SetEnvironmentVariable
#undef SetFocus
#undef SetLastError
#undef SetRect
#undef SetRectEmpty
#undef TCHAR
#undef TIMERPROC
#undef UCHAR
#undef UINT16
#undef UINT32
#undef UINT64
#undef UINT8
#undef UINT_PTR
#undef ULARGE_INTEGER
#undef ULONG
#undef ULONG32
#undef ULONG64
#undef ULONGLONG
#undef ULONG_PTR
#undef UNREFERENCED_PARAMETER
#undef USHORT
#undef UnionRect
#undef VOID
#undef WCHAR
#undef WIN32_FIND_DATA
#undef WNDPROC
#undef WaitForSingleObject
#undef WritePrivateProfileStringW
#undef ZeroMemory
#undef _countof

#else
#undef KTQTBASE_PORTING_MACROS_ASIDE

KTQTBASE_PORTING_NAMES(KTQTBASE_PORTING_POP)

#undef KTQTBASE_PORTING_PRAGMA
#undef KTQTBASE_PORTING_PUSH
#undef KTQTBASE_PORTING_POP
#undef KTQTBASE_PORTING_UNLESS_OFF
#undef KTQTBASE_PORTING_SECOND
#undef KTQTBASE_PORTING_SECOND_OF
#undef KTQTBASE_PORTING_COMMA
#undef KTQTBASE_PORTING_COMMA_FOR
#undef KTQTBASE_PORTING_COMMA_
#undef KTQTBASE_PORTING_COMMA_0
#undef KTQTBASE_PORTING_COMMA_1
#undef KTQTBASE_PORTING_COMMA_ON
#undef KTQTBASE_PORTING_COMMA_true
#undef KTQTBASE_PORTING_SKIP
#undef KTQTBASE_PORTING_CHECK
#undef KTQTBASE_PORTING_TEXT
#undef KTQTBASE_PORTING_TEXT_OF
#undef KTQTBASE_PORTING_TYPE
#undef KTQTBASE_PORTING_ADD_TYPE
#undef KTQTBASE_PORTING_CONSTANT
#undef KTQTBASE_PORTING_ADD_CONSTANT
#undef KTQTBASE_PORTING_USING
#undef KTQTBASE_PORTING_ADD_USING
#undef KTQTBASE_PORTING_FUNCTION
#undef KTQTBASE_PORTING_ADD_FUNCTION
#undef KTQTBASE_PORTING_INERT
#undef KTQTBASE_PORTING_ADD_INERT

#endif
