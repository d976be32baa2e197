/* SPDX-License-Identifier: MIT
 *
 * The small Windows program whose audit the pictures show: it edits notes, prints them and keeps its
 * settings. It is compiled and never run.
 */
#include <windows.h>
#include <commdlg.h>
#include <shellapi.h>

static HWND edit;
static HANDLE worker;
static CRITICAL_SECTION lock;
static WCHAR path[MAX_PATH];

static void keepSettings(HWND window)
{
    WCHAR ini[MAX_PATH];
    HKEY key;
    RECT place;
    GetWindowRect(window, &place);
    GetModuleFileNameW(NULL, ini, MAX_PATH);
    WritePrivateProfileStringW(L"Notes", L"Last", path, ini);
    GetPrivateProfileIntW(L"Notes", L"Width", 640, ini);
    GetPrivateProfileStringW(L"Notes", L"Last", L"", path, MAX_PATH, ini);
    RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\Notes", 0, NULL, 0, KEY_WRITE, NULL, &key, NULL);
    RegSetValueExW(key, L"Place", 0, REG_BINARY, (const BYTE*)&place, sizeof place);
    RegCloseKey(key);
}

static void save(HWND window)
{
    WCHAR folder[MAX_PATH];
    WCHAR name[MAX_PATH];
    DWORD written;
    HLOCAL text = LocalAlloc(LMEM_FIXED, 65536);
    HANDLE file;
    GetTempPathW(MAX_PATH, folder);
    GetTempFileNameW(folder, L"nts", 0, name);
    file = CreateFileW(name, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
    if (file == INVALID_HANDLE_VALUE || !WriteFile(file, text, 65536, &written, NULL))
        MessageBoxW(window, L"The notes cannot be saved.", L"Notes", MB_OK | MB_ICONERROR);
    CloseHandle(file);
    CopyFileW(name, path, FALSE);
    DeleteFileW(name);
    SetFileAttributesW(path, GetFileAttributesW(path) & ~FILE_ATTRIBUTE_READONLY);
    LocalFree(text);
}

static void open(HWND window)
{
    OPENFILENAMEW block = {0};
    WIN32_FIND_DATAW found;
    HANDLE search;
    block.lStructSize = sizeof block;
    block.hwndOwner = window;
    block.lpstrFile = path;
    block.nMaxFile = MAX_PATH;
    if (!GetOpenFileNameW(&block))
        return;
    search = FindFirstFileW(path, &found);
    FindNextFileW(search, &found);
    FindClose(search);
    GetFullPathNameW(path, MAX_PATH, path, NULL);
    SetWindowTextW(window, path);
}

static void print(HWND window)
{
    PRINTDLGW block = {0};
    DOCINFOW document = {0};
    block.lStructSize = sizeof block;
    block.hwndOwner = window;
    if (!PrintDlgW(&block))
        return;
    StartDocW(block.hDC, &document);
    StartPage(block.hDC);
    EndPage(block.hDC);
    EndDoc(block.hDC);
    DeleteDC(block.hDC);
}

static void copy(HWND window)
{
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 1024);
    GlobalLock(memory);
    GlobalUnlock(memory);
    OpenClipboard(window);
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

static DWORD WINAPI work(void* argument)
{
    EnterCriticalSection(&lock);
    Sleep(10);
    LeaveCriticalSection(&lock);
    return GetTickCount();
}

static void paint(HWND window)
{
    PAINTSTRUCT paint;
    RECT area;
    HDC context = BeginPaint(window, &paint);
    HFONT font = CreateFontW(-16, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, L"Courier New");
    HGDIOBJ former = SelectObject(context, font);
    GetClientRect(window, &area);
    SetTextColor(context, RGB(0, 0, 128));
    SetBkMode(context, TRANSPARENT);
    FillRect(context, &area, GetSysColorBrush(COLOR_WINDOW));
    DrawTextW(context, path, -1, &area, DT_CENTER);
    SelectObject(context, former);
    DeleteObject(font);
    EndPaint(window, &paint);
}

static void obey(HWND window, UINT command)
{
    switch (command) {
    case 1:
        open(window);
        break;
    case 2:
        save(window);
        break;
    case 3:
        print(window);
        break;
    case 4:
        copy(window);
        break;
    default:
        ShellExecuteW(window, L"open", path, NULL, NULL, SW_SHOW);
    }
}

static LRESULT CALLBACK handle(HWND window, UINT message, WPARAM first, LPARAM second)
{
    switch (message) {
    case WM_PAINT:
        paint(window);
        return 0;
    case WM_COMMAND:
        obey(window, LOWORD(first));
        return 0;
    case WM_DESTROY:
        keepSettings(window);
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, first, second);
    }
}

static HWND makeWindow(HINSTANCE module)
{
    WNDCLASSW kind = {0};
    WCHAR title[64];
    HMENU menu = CreateMenu();
    kind.lpfnWndProc = handle;
    kind.hInstance = module;
    kind.lpszClassName = L"Notes";
    kind.hCursor = LoadCursorW(NULL, (LPCWSTR)IDC_ARROW);
    RegisterClassW(&kind);
    LoadStringW(module, 1, title, 64);
    AppendMenuW(menu, MF_STRING, 1, L"&Open...");
    return CreateWindowExW(0, L"Notes", title, WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, 0,
                           GetSystemMetrics(SM_CXSCREEN) / 2, 480, NULL, menu, module, NULL);
}

void start(void)
{
    MSG message;
    HWND window = makeWindow(GetModuleHandleW(NULL));
    InitializeCriticalSection(&lock);
    worker = CreateThread(NULL, 0, work, NULL, 0, NULL);
    edit = CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 10, 10, window, NULL, NULL, NULL);
    ShowWindow(window, SW_SHOW);
    UpdateWindow(window);
    while (GetMessageW(&message, NULL, 0, 0)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    WaitForSingleObject(worker, INFINITE);
    DeleteCriticalSection(&lock);
    ExitProcess(GetLastError());
}
