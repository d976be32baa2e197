// SPDX-License-Identifier: MIT
#include "support/DrawnDisk.h"

#include <KtOsBase/KtOsBase.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include <cwchar>

using ktqtbase::fuzz::drawnDisk;

ktqtbase::fuzz::DrawnDisk& ktqtbase::fuzz::drawnDisk()
{
    static DrawnDisk disk;
    return disk;
}

unsigned int ktqtbase::fuzz::drawnAttributes(const std::wstring& name)
{
    static const unsigned int answers[] = {INVALID_FILE_ATTRIBUTES, 0x81A4, 0x41FD,
                                           INVALID_FILE_ATTRIBUTES, 0x81B5, 0x41B0};
    unsigned int sum = 0;
    for (const wchar_t ch : name)
        sum = sum * 31 + static_cast<unsigned int>(ch);
    return answers[drawnDisk().isFull ? 1 : sum % 6];
}

unsigned int GetFileAttributes(const wchar_t* lpFileName)
{
    return ktqtbase::fuzz::drawnAttributes(lpFileName);
}

unsigned int GetCurrentDirectoryW(unsigned int, wchar_t* lpBuffer)
{
    const std::wstring& folder = drawnDisk().currentDirectory;
    std::wcscpy(lpBuffer, folder.c_str());
    return static_cast<unsigned int>(folder.size());
}

int SetCurrentDirectoryW(const wchar_t*)
{
    return 0;
}

int _wrename(const wchar_t* oldName, const wchar_t* newName)
{
    drawnDisk().renamed = std::wstring(oldName) + L" => " + (newName ? newName : L"(null)");
    return drawnDisk().renameResult;
}
