// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/ShellStubs.h>

HRESULT SHGetFolderPath(HWND, int, void*, unsigned int, wchar_t*)
{
    return 0;
}

int SHGetSpecialFolderPath(HWND, wchar_t*, int, bool)
{
    return 0;
}

int PathMatchSpec(const wchar_t*, const wchar_t*)
{
    return 0;
}
