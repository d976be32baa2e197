// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/UserStubs.h>

HDC GetDC(HWND)
{
    return nullptr;
}

int ReleaseDC(HWND, HDC)
{
    return 0;
}

int MessageBox(HWND, const wchar_t*, const wchar_t*, unsigned int)
{
    return 0;
}

int GetCursorPos(POINT*)
{
    return 0;
}

int DestroyMenu(HMENU)
{
    return 0;
}

int DestroyAcceleratorTable(HACCEL)
{
    return 0;
}

unsigned int RegisterClipboardFormatW(const wchar_t*)
{
    return 0;
}
