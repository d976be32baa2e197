/* SPDX-License-Identifier: MIT */
/* A program of Windows, compiled with Windows' headers. */
#include <windows.h>

int main(void)
{
    return CopyFileW(L"a", L"b", FALSE) + MessageBoxW(NULL, L"a", L"b", MB_OK) + MessageBeep(0);
}
