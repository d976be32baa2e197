// SPDX-License-Identifier: MIT
#include "Dots.h"

#include <QtWidgets/QWidget>

#include <cwchar>
#include <string>

namespace {

const TCHAR kKey[] = _T("Software\\FirstWindow");

// ---- Settings ----------------------------------------------------------------------------------

// GetPrivateProfileInt never gives its default here, so the default is a text.
int ReadNumber(LPCTSTR name, LPCTSTR byDefault, LPCTSTR fileName)
{
    TCHAR text[32] = {};
    GetPrivateProfileString(_T("Dots"), name, byDefault, text, 32, fileName);
    return static_cast<int>(std::wcstol(text, nullptr, 0));
}

// ---- Answers to messages -----------------------------------------------------------------------

// In place of InvalidateRect, which is not here.
void Repaint(HWND window)
{
    if (QWidget* widget = QWidget::find(reinterpret_cast<WId>(window)))
        widget->update();
}

void AskToClear(Dots& dots)
{
    if (AfxMessageBox(_T("Remove all dots?"), MB_YESNO) == IDYES)
        dots.places.clear();
}

} // namespace

void ReadSettings(Dots& dots, LPCTSTR fileName)
{
    const std::wstring size = std::to_wstring(dots.size);
    const std::wstring color = std::to_wstring(dots.color);
    dots.size = ReadNumber(_T("Size"), size.c_str(), fileName);
    dots.color = static_cast<COLORREF>(ReadNumber(_T("Color"), color.c_str(), fileName));
}

int ReadCount()
{
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, kKey);
    TCHAR text[16] = {}; // zeros, since no terminator is written
    UINT room = 15;
    key.QueryValue(text, _T("Count"), &room);
    return static_cast<int>(std::wcstol(text, nullptr, 10));
}

void WriteCount(const Dots& dots)
{
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, kKey);
    key.SetValue(std::to_wstring(dots.places.size()).c_str(), _T("Count"));
}

LRESULT CALLBACK DotsProc(Dots& dots, HWND window, UINT message, WPARAM, LPARAM lParam)
{
    switch (message) {
    case WM_LBUTTONDOWN:
        dots.places.emplace_back(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        break;
    case WM_RBUTTONDOWN:
        AskToClear(dots);
        break;
    case WM_CLOSE:
        WriteCount(dots);
        break;
    default:
        return 0;
    }
    Repaint(window);
    return 0;
}

void Paint(const Dots& dots, KtQtPainterWrapper& painter)
{
    painter.setPen(PS_SOLID, 2, RGB(40, 40, 40));
    painter.setBrush(dots.color);
    for (const CPoint& place : dots.places) {
        const int half = dots.size / 2;
        const POINT corners[] = {place - CSize(half, 0), place - CSize(0, half),
                                 place + CSize(half, 0), place + CSize(0, half)};
        painter.drawPolygon(corners, 4);
    }
}
