// SPDX-License-Identifier: MIT
//
// The names that the porting headers declare, as a list for their HostMacros.h. Names that are
// macros themselves are not among them.
//
//     KTQTBASE_PORTING_NAMES(operation)    operation(ARRAYSIZE) operation(ATOM) ...
#ifndef KTQTBASE_PORTING_NAMES_H
#define KTQTBASE_PORTING_NAMES_H

// clang-format off
#define KTQTBASE_PORTING_NAMES(on) \
    on(ARRAYSIZE) on(ATOM) on(BOOLEAN) on(CHAR) on(CPoint) on(CSize) on(CharNextW) \
    on(CompareStringW) on(CopyFileW) on(CopyMemory) on(CopyRect) on(CreateFileW) \
    on(CreateFontIndirect) on(DEVMODE) on(DLGPROC) on(DWORD32) on(DWORD64) on(DWORDLONG) \
    on(DWORD_PTR) on(DeleteFileW) on(DeviceCapabilities) on(DocumentProperties) on(E_ABORT) \
    on(E_ACCESSDENIED) on(E_FAIL) on(E_HANDLE) on(E_INVALIDARG) on(E_NOINTERFACE) on(E_NOTIMPL) \
    on(E_OUTOFMEMORY) on(E_PENDING) on(E_POINTER) on(E_UNEXPECTED) on(EnableWindow) \
    on(EnumFontFamiliesExW) on(EnumForms) on(EqualRect) on(ExtTextOutW) on(FAILED) on(FARPROC) \
    on(FLOAT) on(FillMemory) on(FindCloseChangeNotification) on(FindFirstChangeNotification) \
    on(FindFirstFile) on(FindNextChangeNotification) on(FindNextFile) on(GUID) \
    on(GetCurrentDirectory) on(GetCursor) on(GetEnvironmentVariableW) on(GetFileAttributesW) \
    on(GetFocus) on(GetModuleFileNameW) on(GetModuleHandleW) on(GetNumberFormatW) on(GetPrinter) \
    on(GetPrivateProfileIntW) on(GetPrivateProfileSectionNamesW) on(GetPrivateProfileStringW) \
    on(GetTempFileNameW) on(GetUserName) on(GetVersionEx) on(HBRUSH) on(HFILE) on(HGLOBAL) \
    on(HHOOK) on(HIBYTE) on(HICON) on(HLOCAL) on(HPEN) on(HRESULT_CODE) on(HRESULT_FACILITY) \
    on(HRESULT_FROM_WIN32) on(HRGN) on(HRSRC) on(INT) on(INT16) on(INT32) on(INT64) on(INT8) \
    on(INT_PTR) on(IS_INTRESOURCE) on(InflateRect) on(IntersectRect) on(IsRectEmpty) on(LANGID) \
    on(LARGE_INTEGER) on(LCID) on(LOBYTE) on(LOGFONT) on(LONG32) on(LONG64) on(LONGLONG) \
    on(LONG_PTR) on(LPBITMAPINFO) on(LPBITMAPINFOHEADER) on(LPBOOL) on(LPBYTE) on(LPCOLORREF) \
    on(LPCRECT) on(LPCRITICAL_SECTION) on(LPCSTR) on(LPCTSTR) on(LPCVOID) on(LPCWSTR) \
    on(LPDEVMODE) on(LPDEVMODEW) on(LPDWORD) on(LPFILETIME) on(LPHANDLE) on(LPINT) on(LPLOGFONT) \
    on(LPLOGFONTW) on(LPLOGPALETTE) on(LPLONG) on(LPOPENFILENAME) on(LPOPENFILENAMEW) \
    on(LPOSVERSIONINFO) on(LPOSVERSIONINFOW) on(LPOVERLAPPED) on(LPPALETTEENTRY) on(LPPOINT) \
    on(LPPRINTER_DEFAULTS) on(LPPRINTER_DEFAULTSW) on(LPRECT) on(LPRGBQUAD) \
    on(LPSECURITY_ATTRIBUTES) on(LPSIZE) on(LPSTR) on(LPSYSTEMTIME) on(LPTHREAD_START_ROUTINE) \
    on(LPTSTR) on(LPUINT) on(LPVOID) on(LPWIN32_FIND_DATA) on(LPWIN32_FIND_DATAW) on(LPWORD) \
    on(LPWSTR) on(LoadLibraryExW) on(LoadLibraryW) on(LoadStringW) on(MAKEINTRESOURCE) \
    on(MAKEINTRESOURCEA) on(MAKEINTRESOURCEW) on(MAKELANGID) on(MAKELONG) on(MAKELRESULT) \
    on(MAKEWORD) on(MAKE_HRESULT) on(MessageBoxW) on(MoveMemory) on(MulDiv) on(NUMBERFMT) \
    on(OPENFILENAME) on(OSVERSIONINFO) on(OffsetRect) on(OpenPrinter) on(OutputDebugStringW) \
    on(PBITMAPINFO) on(PBITMAPINFOHEADER) on(PBOOL) on(PBYTE) on(PCHAR) on(PCRITICAL_SECTION) \
    on(PCSTR) on(PCTSTR) on(PCWSTR) on(PDEVMODE) on(PDEVMODEW) on(PDWORD) on(PFILETIME) \
    on(PFLOAT) on(PHANDLE) on(PINT) on(PLIST_ENTRY) on(PLOGFONT) on(PLOGFONTW) on(PLOGPALETTE) \
    on(PLONG) on(POINTS) on(PPALETTEENTRY) on(PPOINT) on(PRECT) on(PRINTER_DEFAULTS) \
    on(PSECURITY_ATTRIBUTES) on(PSHORT) on(PSIZE) on(PSTR) on(PSYSTEMTIME) on(PTCHAR) on(PTSTR) \
    on(PUCHAR) on(PUINT) on(PULONG) on(PUSHORT) on(PVOID) on(PWCHAR) on(PWIN32_FIND_DATA) \
    on(PWIN32_FIND_DATAW) on(PWORD) on(PWSTR) on(PathMatchSpecW) on(PostMessageW) on(PtInRect) \
    on(RegisterClipboardFormat) on(SHGetFolderPathW) on(SHGetSpecialFolderPathW) on(SHORT) \
    on(SIZE_T) on(SSIZE_T) on(SUCCEEDED) on(SendMessageW) on(SetCurrentDirectory) on(SetCursor) \
    on(SetEnvironmentVariable) on(SetFocus) on(SetLastError) on(SetRect) on(SetRectEmpty) \
    on(TCHAR) on(TIMERPROC) on(UCHAR) on(UINT16) on(UINT32) on(UINT64) on(UINT8) on(UINT_PTR) \
    on(ULARGE_INTEGER) on(ULONG) on(ULONG32) on(ULONG64) on(ULONGLONG) on(ULONG_PTR) \
    on(UNREFERENCED_PARAMETER) on(USHORT) on(UnionRect) on(VOID) on(WCHAR) on(WIN32_FIND_DATA) \
    on(WNDPROC) on(WaitForSingleObject) on(WritePrivateProfileStringW) on(ZeroMemory) \
    on(_countof)
// clang-format on

#endif
