// SPDX-License-Identifier: MIT
//
// The program as it came from Windows: dots that a click adds, with settings and a question.
#ifndef FIRSTWINDOW_DOTS_H
#define FIRSTWINDOW_DOTS_H

#include <KtQtBase/KtQtBase.h>
#include <KtQtBase/Porting.h>

#include <vector>

struct Dots
{
    std::vector<CPoint> places;
    COLORREF color = RGB(200, 30, 30);
    int size = 12;
};

// Reads size and colour from an INI file; what it does not have stays.
void ReadSettings(Dots& dots, LPCTSTR fileName);

// How many dots there were when the program ended.
int ReadCount();
void WriteCount(const Dots& dots);

// Answers a message of the window.
LRESULT CALLBACK DotsProc(Dots& dots, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

void Paint(const Dots& dots, KtQtPainterWrapper& painter);

#endif
