// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/KernelStubs.h>

int CloseHandle(void*)
{
    return 0;
}

HANDLE CreateFile(const wchar_t*, unsigned int, unsigned int, SECURITY_ATTRIBUTES*, unsigned int,
                  unsigned int, void*)
{
    return nullptr;
}

int DeleteFile(const wchar_t*)
{
    return 0;
}

int ReadFile(void*, void*, unsigned int, void*, OVERLAPPED*)
{
    return 0;
}

int WriteFile(void*, void*, unsigned int, void*, OVERLAPPED*)
{
    return 0;
}

unsigned int GetFileSize(void*, unsigned int*)
{
    return 0;
}

unsigned int SetFilePointer(void*, int, int*, unsigned int)
{
    return 0;
}

int GetFileTime(void*, FILETIME*, FILETIME*, FILETIME*)
{
    return 0;
}

int FileTimeToLocalFileTime(const FILETIME*, FILETIME*)
{
    return 0;
}

int FileTimeToSystemTime(const FILETIME*, SYSTEMTIME*)
{
    return 0;
}

HANDLE FindFirstFileW(const wchar_t*, WIN32_FIND_DATAW*)
{
    return nullptr;
}

int FindNextFileW(void*, WIN32_FIND_DATAW*)
{
    return 0;
}

int FindClose(void*)
{
    return 0;
}

HANDLE FindFirstChangeNotificationW(const wchar_t*, bool, unsigned int)
{
    return nullptr;
}

void InitializeCriticalSection(RTL_CRITICAL_SECTION*) {}

void DeleteCriticalSection(RTL_CRITICAL_SECTION*) {}

void EnterCriticalSection(RTL_CRITICAL_SECTION*) {}

void LeaveCriticalSection(RTL_CRITICAL_SECTION*) {}

void OutputDebugString(const wchar_t*) {}

int IsBadReadPtr(const void*, unsigned long long)
{
    return 0;
}

unsigned int GetEnvironmentVariable(const wchar_t*, wchar_t*, unsigned int)
{
    return 0;
}

int SetEnvironmentVariableW(const wchar_t*, const wchar_t*)
{
    return 0;
}

unsigned int GetVersion()
{
    return 0;
}

int GetVersionExW(OSVERSIONINFOW*)
{
    return 0;
}

int GetUserNameW(wchar_t*, unsigned int*)
{
    return 0;
}

int CompareString(unsigned int, unsigned int, const wchar_t*, int, const wchar_t*, int)
{
    return 0;
}

int GetNumberFormat(unsigned int, unsigned int, const wchar_t*, const NUMBERFMTW*, wchar_t*, int)
{
    return 0;
}

namespace KtKernel32 {

int CloseHandle(void*)
{
    return 0;
}

unsigned int GetFileSize(void* hFile, unsigned int* lpFileSizeHigh)
{
    return ::GetFileSize(hFile, lpFileSizeHigh);
}

int FindCloseChangeNotification(void*)
{
    return 0;
}

int FindNextChangeNotification(void*)
{
    return 0;
}

unsigned int WaitForSingleObject(void*, unsigned int)
{
    return 0;
}

void SetLastError(unsigned int) {}

} // namespace KtKernel32
