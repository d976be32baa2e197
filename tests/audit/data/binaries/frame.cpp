// SPDX-License-Identifier: MIT
//
// Calls members of MFC's classes.
#define IMPORTED __declspec(dllimport)

class IMPORTED CFrameWnd
{
public:
    int LoadFrame(unsigned id);
};

class IMPORTED CWnd
{
public:
    int ShowWindow(int command);
};

int show(CFrameWnd& frame, CWnd& window)
{
    return frame.LoadFrame(1) + window.ShowWindow(2);
}
