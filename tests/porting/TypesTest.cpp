// SPDX-License-Identifier: MIT
//
// The types of the porting headers, and what they do for the macros that they go with.
#include <KtQtBase/Porting.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <type_traits>

#define ROW(name, ...)                                                                             \
    {                                                                                              \
#name, std::is_same_v < name, __VA_ARGS__>                                                 \
    }

struct TypeRow
{
    const char* name;
    bool same;
};

static const TypeRow kTypes[] = {
    ROW(CHAR, char),
    ROW(WCHAR, wchar_t),
    ROW(TCHAR, wchar_t),
    ROW(PCHAR, char*),
    ROW(PWCHAR, wchar_t*),
    ROW(PTCHAR, wchar_t*),
    ROW(PSTR, char*),
    ROW(LPSTR, char*),
    ROW(PCSTR, const char*),
    ROW(LPCSTR, const char*),
    ROW(PWSTR, wchar_t*),
    ROW(LPWSTR, wchar_t*),
    ROW(PCWSTR, const wchar_t*),
    ROW(LPCWSTR, const wchar_t*),
    ROW(PTSTR, wchar_t*),
    ROW(LPTSTR, wchar_t*),
    ROW(PCTSTR, const wchar_t*),
    ROW(LPCTSTR, const wchar_t*),
    ROW(VOID, void),
    ROW(BOOLEAN, unsigned char),
    ROW(FLOAT, float),
    ROW(UCHAR, unsigned char),
    ROW(INT8, signed char),
    ROW(UINT8, unsigned char),
    ROW(SHORT, short),
    ROW(USHORT, unsigned short),
    ROW(INT16, short),
    ROW(UINT16, unsigned short),
    ROW(INT, int),
    ROW(ULONG, unsigned int),
    ROW(INT32, int),
    ROW(UINT32, unsigned int),
    ROW(LONG32, int),
    ROW(ULONG32, unsigned int),
    ROW(DWORD32, unsigned int),
    ROW(LONGLONG, long long),
    ROW(ULONGLONG, unsigned long long),
    ROW(DWORDLONG, unsigned long long),
    ROW(INT64, long long),
    ROW(UINT64, unsigned long long),
    ROW(LONG64, long long),
    ROW(ULONG64, unsigned long long),
    ROW(DWORD64, unsigned long long),
    ROW(INT_PTR, long long),
    ROW(UINT_PTR, unsigned long long),
    ROW(LONG_PTR, long long),
    ROW(ULONG_PTR, unsigned long long),
    ROW(DWORD_PTR, unsigned long long),
    ROW(SIZE_T, std::size_t),
    ROW(SSIZE_T, std::ptrdiff_t),
    ROW(ATOM, WORD),
    ROW(LANGID, WORD),
    ROW(LCID, DWORD),
    ROW(HFILE, int),
    ROW(PVOID, void*),
    ROW(LPVOID, void*),
    ROW(LPCVOID, const void*),
    ROW(PBYTE, BYTE*),
    ROW(LPBYTE, BYTE*),
    ROW(PUCHAR, unsigned char*),
    ROW(PSHORT, short*),
    ROW(PUSHORT, unsigned short*),
    ROW(PWORD, WORD*),
    ROW(LPWORD, WORD*),
    ROW(PINT, int*),
    ROW(LPINT, int*),
    ROW(PUINT, UINT*),
    ROW(LPUINT, UINT*),
    ROW(PLONG, LONG*),
    ROW(LPLONG, LONG*),
    ROW(PULONG, unsigned int*),
    ROW(PDWORD, DWORD*),
    ROW(LPDWORD, DWORD*),
    ROW(PBOOL, int*),
    ROW(LPBOOL, int*),
    ROW(PFLOAT, float*),
    ROW(PHANDLE, HANDLE*),
    ROW(LPHANDLE, HANDLE*),
    ROW(LPCOLORREF, COLORREF*),
    ROW(HGLOBAL, void*),
    ROW(HLOCAL, void*),
    ROW(HICON, HCURSOR),
    ROW(HBRUSH, struct HBRUSH__*),
    ROW(HPEN, struct HPEN__*),
    ROW(HRGN, struct HRGN__*),
    ROW(HRSRC, struct HRSRC__*),
    ROW(HHOOK, struct HHOOK__*),
    ROW(FARPROC, void*),
    ROW(WNDPROC, LRESULT (*)(HWND, UINT, WPARAM, LPARAM)),
    ROW(DLGPROC, long long (*)(HWND, UINT, WPARAM, LPARAM)),
    ROW(TIMERPROC, void (*)(HWND, UINT, unsigned long long, DWORD)),
    ROW(LPTHREAD_START_ROUTINE, DWORD (*)(void*)),
    ROW(LOGFONT, LOGFONTW),
    ROW(NUMBERFMT, NUMBERFMTW),
    ROW(OSVERSIONINFO, OSVERSIONINFOW),
    ROW(WIN32_FIND_DATA, WIN32_FIND_DATAW),
    ROW(DEVMODE, DEVMODEW),
    ROW(PRINTER_DEFAULTS, PRINTER_DEFAULTSW),
    ROW(OPENFILENAME, OPENFILENAMEW),
    ROW(PPOINT, POINT*),
    ROW(LPPOINT, POINT*),
    ROW(PSIZE, SIZE*),
    ROW(LPSIZE, SIZE*),
    ROW(PRECT, RECT*),
    ROW(LPRECT, RECT*),
    ROW(LPCRECT, const RECT*),
    ROW(PPALETTEENTRY, PALETTEENTRY*),
    ROW(LPPALETTEENTRY, PALETTEENTRY*),
    ROW(PLOGPALETTE, LOGPALETTE*),
    ROW(LPLOGPALETTE, LOGPALETTE*),
    ROW(LPRGBQUAD, RGBQUAD*),
    ROW(PBITMAPINFOHEADER, BITMAPINFOHEADER*),
    ROW(LPBITMAPINFOHEADER, BITMAPINFOHEADER*),
    ROW(PBITMAPINFO, BITMAPINFO*),
    ROW(LPBITMAPINFO, BITMAPINFO*),
    ROW(PLOGFONTW, LOGFONTW*),
    ROW(LPLOGFONTW, LOGFONTW*),
    ROW(PLOGFONT, LOGFONTW*),
    ROW(LPLOGFONT, LOGFONTW*),
    ROW(LPOSVERSIONINFOW, OSVERSIONINFOW*),
    ROW(LPOSVERSIONINFO, OSVERSIONINFOW*),
    ROW(PLIST_ENTRY, LIST_ENTRY*),
    ROW(PCRITICAL_SECTION, CRITICAL_SECTION*),
    ROW(LPCRITICAL_SECTION, CRITICAL_SECTION*),
    ROW(PSECURITY_ATTRIBUTES, SECURITY_ATTRIBUTES*),
    ROW(LPSECURITY_ATTRIBUTES, SECURITY_ATTRIBUTES*),
    ROW(PFILETIME, FILETIME*),
    ROW(LPFILETIME, FILETIME*),
    ROW(PSYSTEMTIME, SYSTEMTIME*),
    ROW(LPSYSTEMTIME, SYSTEMTIME*),
    ROW(PWIN32_FIND_DATAW, WIN32_FIND_DATAW*),
    ROW(LPWIN32_FIND_DATAW, WIN32_FIND_DATAW*),
    ROW(PWIN32_FIND_DATA, WIN32_FIND_DATAW*),
    ROW(LPWIN32_FIND_DATA, WIN32_FIND_DATAW*),
    ROW(LPOVERLAPPED, OVERLAPPED*),
    ROW(PDEVMODEW, DEVMODEW*),
    ROW(LPDEVMODEW, DEVMODEW*),
    ROW(PDEVMODE, DEVMODEW*),
    ROW(LPDEVMODE, DEVMODEW*),
    ROW(LPPRINTER_DEFAULTSW, PRINTER_DEFAULTSW*),
    ROW(LPPRINTER_DEFAULTS, PRINTER_DEFAULTSW*),
    ROW(LPOPENFILENAMEW, OPENFILENAMEW*),
    ROW(LPOPENFILENAME, OPENFILENAMEW*),
};

TEST(PortingTypes, AreThoseOfWindows)
{
    for (const TypeRow& row : kTypes)
        EXPECT_TRUE(row.same) << row.name;
}

struct SizeRow
{
    const char* name;
    std::size_t size;
    std::size_t expected;
};

#define SIZE_ROW(name, expected)                                                                   \
    {                                                                                              \
#name, sizeof(name), expected                                                              \
    }

static const SizeRow kSizes[] = {
    SIZE_ROW(ATOM, 2),      SIZE_ROW(BOOLEAN, 1),       SIZE_ROW(CHAR, 1),
    SIZE_ROW(DWORD64, 8),   SIZE_ROW(DWORD_PTR, 8),     SIZE_ROW(FLOAT, 4),
    SIZE_ROW(INT, 4),       SIZE_ROW(INT_PTR, 8),       SIZE_ROW(LCID, 4),
    SIZE_ROW(LANGID, 2),    SIZE_ROW(LONG_PTR, 8),      SIZE_ROW(LONGLONG, 8),
    SIZE_ROW(LPVOID, 8),    SIZE_ROW(SHORT, 2),         SIZE_ROW(SIZE_T, 8),
    SIZE_ROW(UCHAR, 1),     SIZE_ROW(UINT_PTR, 8),      SIZE_ROW(ULONG, 4),
    SIZE_ROW(ULONGLONG, 8), SIZE_ROW(ULONG_PTR, 8),     SIZE_ROW(USHORT, 2),
    SIZE_ROW(POINTS, 4),    SIZE_ROW(LARGE_INTEGER, 8), SIZE_ROW(ULARGE_INTEGER, 8),
    SIZE_ROW(GUID, 16)};

TEST(PortingTypes, HaveTheSizesOfA64BitWindows)
{
    for (const SizeRow& row : kSizes)
        EXPECT_EQ(row.size, row.expected) << row.name;
}

TEST(PortingTypes, CompareANumberOfBytesWithSizeof)
{
    const SIZE_T length = 100;
    const char text[8] = {};
    EXPECT_EQ(std::min(length, sizeof text), 8U);
    EXPECT_EQ(sizeof(SSIZE_T), sizeof(SIZE_T));
}

TEST(PortingRecords, HaveTheFieldsOfWindows)
{
    static_assert(offsetof(POINTS, x) == 0 && offsetof(POINTS, y) == 2);
    static_assert(offsetof(LARGE_INTEGER, LowPart) == 0 && offsetof(LARGE_INTEGER, HighPart) == 4);
    static_assert(offsetof(LARGE_INTEGER, u) == 0 && offsetof(LARGE_INTEGER, QuadPart) == 0);
    static_assert(offsetof(ULARGE_INTEGER, LowPart) == 0 &&
                  offsetof(ULARGE_INTEGER, HighPart) == 4);
    static_assert(offsetof(ULARGE_INTEGER, u) == 0 && offsetof(ULARGE_INTEGER, QuadPart) == 0);
    static_assert(offsetof(GUID, Data1) == 0 && offsetof(GUID, Data2) == 4);
    static_assert(offsetof(GUID, Data3) == 6 && offsetof(GUID, Data4) == 8);
    LARGE_INTEGER size = {};
    size.QuadPart = -2;
    EXPECT_EQ(size.LowPart, 0xFFFFFFFEU);
    EXPECT_EQ(size.u.HighPart, -1);
    ULARGE_INTEGER count = {};
    count.HighPart = 0x80000000U;
    EXPECT_EQ(count.QuadPart, 0x8000000000000000U);
    const POINTS point = {-1, 2};
    EXPECT_EQ(point.x + point.y, 1);
    const GUID number = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
    EXPECT_EQ(reinterpret_cast<const BYTE*>(&number)[8], number.Data4[0]);
}

TEST(PortingTypes, TakeWhatGetProcAddressReturns)
{
    const FARPROC found = GetProcAddress(nullptr, "anything");
    EXPECT_EQ(found, nullptr);
}

TEST(PortingMacros, AreTheTruthValuesOfWindows)
{
    EXPECT_EQ(TRUE, 1);
    EXPECT_EQ(FALSE, 0);
}

TEST(PortingMacros, MakeTextsWide)
{
    EXPECT_EQ(std::wstring(_T("ab")), L"ab");
    EXPECT_EQ(std::wstring(__T("ab")), L"ab");
    EXPECT_EQ(std::wstring(_TEXT("ab")), L"ab");
    EXPECT_EQ(std::wstring(TEXT("ab")), L"ab");
    EXPECT_EQ(std::wstring(__TEXT("ab")), L"ab");
    EXPECT_EQ(TEXT('a'), L'a');
}

TEST(PortingMacros, AreConstAndALongNumber)
{
    EXPECT_TRUE((std::is_same_v<CONST int, const int>));
    EXPECT_TRUE((std::is_same_v<__int64, long long>));
    EXPECT_TRUE((std::is_same_v<unsigned __int64, unsigned long long>));
}

// What compiles here shows that the words stand for nothing, at each of their places.
static LRESULT CALLBACK callback(_In_ IN int a, _In_opt_ OPTIONAL int* b, _Out_ OUT int* c)
{
    return *c = b ? *b : a;
}

static int WINAPI APIENTRY APIPRIVATE copied(_In_z_ const char* a, _In_opt_z_ const char FAR* b)
{
    return a == b;
}

static int PASCAL __stdcall summed(_In_reads_(2) const int* a,
                                   _In_reads_bytes_(8) const int NEAR* b)
{
    return a[0] + b[1];
}

static void __cdecl zeroed(_Out_writes_(1) int* a, _Out_writes_bytes_(4) int* b, _Outptr_ int** c)
{
    *a = *b = **c = 0;
}

static afx_msg int __fastcall WINAPIV read(_Inout_ int* a, _Inout_opt_ int* b, _Reserved_ void*)
{
    return *a + *b;
}

TEST(PortingMacros, LeaveAFunctionAsItIs)
{
    int numbers[] = {3, 4};
    int* first = numbers;
    EXPECT_EQ(callback(1, numbers + 1, numbers), 4);
    EXPECT_EQ(copied("a", nullptr), 0);
    EXPECT_EQ(summed(numbers, numbers), 8);
    EXPECT_EQ(read(numbers, numbers + 1, nullptr), 8);
    zeroed(numbers, numbers + 1, &first);
    EXPECT_EQ(numbers[0] + numbers[1], 0);
}

_Success_(return != 0) _Must_inspect_result_ _Check_return_
    static int updated(_In_reads_opt_(count) const int* from, _In_range_(0, 9) int count,
                       _Out_writes_to_(count, count) int* to, _Inout_updates_(count) int* used,
                       _Inout_updates_bytes_(4) int* bytes)
{
    *to = from ? *from : count;
    return *used + *bytes;
}

_Ret_maybenull_ static const char* formatted(_Out_writes_z_(2) char* text,
                                             _Out_writes_opt_(1) char* first,
                                             _In_z_ _Printf_format_string_ const char* format)
{
    text[0] = format[0];
    text[1] = '\0';
    return first ? nullptr : text;
}

_Use_decl_annotations_ _Ret_notnull_ static int* kept(_COM_Outptr_ int** a, _Outptr_opt_ int** b,
                                                      _Frees_ptr_opt_ int* c)
{
    return *a = *b = c;
}

TEST(PortingMacros, LeaveAnnotatedFunctionsAsTheyAre)
{
    int numbers[] = {3, 4};
    int* first = nullptr;
    int* second = nullptr;
    char text[2] = {};
    EXPECT_EQ(updated(numbers, 1, numbers + 1, numbers, numbers + 1), 6);
    EXPECT_STREQ(formatted(text, nullptr, "%d"), "%");
    EXPECT_EQ(kept(&first, &second, numbers), numbers);
    EXPECT_EQ(first, second);
}

EXTERN_C int CALLBACK portingTestAnswer();
STDAPI portingTestResult(int answer);

EXTERN_C int CALLBACK portingTestAnswer()
{
    return 42;
}

STDAPI portingTestResult(int answer)
{
    return answer == 42 ? S_OK : S_FALSE;
}

static FORCEINLINE HRESULT checkedResult()
{
    return portingTestResult(portingTestAnswer());
}

TEST(PortingMacros, DeclareFunctionsOfC)
{
    EXPECT_EQ(checkedResult(), S_OK);
}

DECLARE_HANDLE(HPANEL);
DECLARE_HANDLE(HPEN);

TEST(PortingMacros, DeclareAKindOfHandle)
{
    EXPECT_EQ(sizeof(HPANEL), sizeof(HANDLE));
    EXPECT_TRUE((std::is_convertible_v<HPANEL, HANDLE>));
    EXPECT_FALSE((std::is_convertible_v<HPANEL, HPEN>));
}

TEST(PortingMacros, TellWhereAFieldBegins)
{
    EXPECT_EQ(FIELD_OFFSET(GUID, Data1), 0);
    EXPECT_EQ(FIELD_OFFSET(GUID, Data4[1]), 9);
    EXPECT_TRUE((std::is_same_v<decltype(FIELD_OFFSET(RECT, top)), LONG>));
}
