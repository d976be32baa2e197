// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Files.h>

#include "platform/Platform.h"
#include "string/TextConversion.h"
#include "string/TextRoom.h"

#include <cstring>

namespace {

// Cuts a path at its last slash.
void dropFileName(char* path)
{
    if (char* slash = std::strrchr(path, '/'))
        *slash = '\0';
}

} // namespace

unsigned int GetCurrentDirectoryW(unsigned int, wchar_t* lpBuffer)
{
    char path[ktqtbase::kTextRoom] = {};
    std::uint32_t size = sizeof path;
    ktqtbase::platform::executablePath(path, &size);
    dropFileName(path);
    // A cut path would name another folder.
    if (!ktqtbase::widen(path, lpBuffer, ktqtbase::kTextRoom))
        lpBuffer[0] = L'\0';
    return size;
}

int SetCurrentDirectoryW(const wchar_t*)
{
    return 0;
}

unsigned int KtKernel32::GetCurrentDirectoryW(unsigned int nBufferLength, wchar_t* lpBuffer)
{
    return ::GetCurrentDirectoryW(nBufferLength, lpBuffer);
}

int KtKernel32::SetCurrentDirectoryW(const wchar_t*)
{
    return 0;
}
