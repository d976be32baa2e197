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

HCURSOR KtUser32::GetCursor()
{
    return nullptr;
}

void KtUser32::SetCursor(HCURSOR) {}

int KtUser32::EnableWindow(HWND, bool)
{
    return 1;
}

HWND KtUser32::SetFocus(HWND)
{
    return nullptr;
}

HWND KtUser32::GetFocus()
{
    return nullptr;
}

short GetKeyState(int)
{
    return 0;
}
