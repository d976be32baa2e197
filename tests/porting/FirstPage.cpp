// SPDX-License-Identifier: MIT
//
// The first page of an ordinary Windows source, after the one include that a port puts in place of
// <windows.h> and <tchar.h>.
#include <KtQtBase/Porting.h>

// NOLINTBEGIN(modernize-*): as Windows sources are written.

#define IDI_PANEL 101
#define IDS_CAPTION 102

static const TCHAR kClassName[] = _T("Panel");
static const TCHAR* const kSection = TEXT("Window");

typedef struct tagPANEL
{
    HWND hWnd;
    CPoint ptLast;
    CSize szPage;
    CRect rcPage;
    DWORD_PTR dwData;
    BYTE FAR* lpBits;
} PANEL, *PPANEL, FAR* LPPANEL;

static HINSTANCE g_hInstance = NULL;

INT_PTR CALLBACK PanelDlgProc(HWND hDlg, UINT uMsg, WPARAM wParam, LPARAM lParam);
BOOL CALLBACK EnumPanels(HWND hWnd, LPARAM lParam);
UINT WINAPI PanelThread(_In_ LPVOID lpParameter);
VOID PASCAL ResetPanel(_Inout_ LPPANEL lpPanel, _In_opt_ LPCRECT lpcPage);

static VOID OnMouse(IN OUT LPPANEL lpPanel, IN LPARAM lParam)
{
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    if (PtInRect(&lpPanel->rcPage, point))
        lpPanel->rcPage += point - lpPanel->ptLast;
    lpPanel->ptLast = point;
}

LRESULT CALLBACK PanelProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam)
{
    static PANEL panel;
    UNREFERENCED_PARAMETER(wParam);
    switch (uMsg) {
    case WM_CREATE:
    case WM_SETFOCUS:
        return 0;
    case WM_MBUTTONDOWN:
    case WM_LBUTTONDOWN:
    case WM_MOUSEMOVE:
        OnMouse(&panel, lParam);
        return 0;
    case WM_SIZE:
        panel.szPage.SetSize(LOWORD(lParam), HIWORD(lParam));
        return 0;
    case WM_CLOSE:
        return ::PostMessageW(hWnd, WM_USER + 1, 0, MAKELPARAM(1, 2)) ? TRUE : FALSE;
    }
    return 0;
}

INT_PTR CALLBACK PanelDlgProc(HWND hDlg, UINT uMsg, WPARAM wParam, LPARAM lParam)
{
    switch (uMsg) {
    case WM_INITDIALOG:
        return hDlg != NULL && lParam != 0 ? TRUE : FALSE;
    case WM_COMMAND:
        return wParam == IDOK || wParam == IDCANCEL ? TRUE : FALSE;
    case WM_HSCROLL:
    case WM_NOTIFY:
    case WM_DESTROY:
        return TRUE;
    }
    return FALSE;
}

BOOL CALLBACK EnumPanels(HWND hWnd, LPARAM lParam)
{
    LPDWORD lpdwCount = reinterpret_cast<LPDWORD>(lParam);
    *lpdwCount += hWnd != NULL ? 1 : 0;
    return TRUE;
}

UINT WINAPI PanelThread(_In_ LPVOID lpParameter)
{
    WNDPROC lpfnProc = PanelProc;
    HRESULT hr = lpfnProc(static_cast<LPPANEL>(lpParameter)->hWnd, WM_TIMER, 0, 0) ? E_FAIL : S_OK;
    return SUCCEEDED(hr) ? 0U : static_cast<UINT>(hr);
}

VOID PASCAL ResetPanel(_Inout_ LPPANEL lpPanel, _In_opt_ LPCRECT lpcPage)
{
    ZeroMemory(lpPanel, sizeof(PANEL) - sizeof(lpPanel->lpBits));
    if (lpcPage)
        CopyRect(&lpPanel->rcPage, lpcPage);
    lpPanel->szPage.cx = MulDiv(lpPanel->rcPage.right - lpPanel->rcPage.left, 254, 720);
}

int APIENTRY WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow)
{
    TCHAR szCaption[MAX_PATH] = {0};
    WIN32_FIND_DATA findData = {};
    LOGFONT logFont = {};
    unsigned __int64 ullCount = 0;
    g_hInstance = hInstance;
    LPCTSTR lpszIcon = MAKEINTRESOURCE(IDI_PANEL);
    LoadStringW(g_hInstance, IDS_CAPTION, szCaption, _countof(szCaption) - 1);
    GetPrivateProfileStringW(kSection, _T("Caption"), kClassName, szCaption, MAX_PATH, _T("a.ini"));
    HANDLE hFind = FindFirstFile(_T("*.pnl"), &findData);
    if (hFind != NULL && hFind != INVALID_HANDLE_VALUE)
        ullCount += static_cast<ULONGLONG>(findData.nFileSizeHigh) << 32;
    logFont.lfHeight = -MulDiv(10, 96, 72);
    DLGPROC lpfnDialog = PanelDlgProc;
    FARPROC lpfnEntry = GetProcAddress(g_hInstance, "PanelEntry");
    const BOOL bDone = hPrevInstance == NULL && lpfnEntry == NULL && IS_INTRESOURCE(lpszIcon);
    return bDone && lpfnDialog && lpCmdLine && ullCount == 0 ? nCmdShow + logFont.lfItalic : FALSE;
}

// NOLINTEND(modernize-*)
