// SPDX-License-Identifier: MIT
#include <KtQtBase/Messages.h>

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
