// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include "string/TextConversion.h"
#include "system/FileMode.h"

unsigned int GetFileAttributes(const wchar_t* lpFileName)
{
    const ktqtbase::NarrowText name(lpFileName);
    return name.converted() ? ktqtbase::modeOf(name.c_str()) : INVALID_FILE_ATTRIBUTES;
}

unsigned int KtKernel32::GetFileAttributes(const wchar_t* lpFileName)
{
    return ::GetFileAttributes(lpFileName);
}

unsigned int KtKernel32::GetFileAttributesW(const wchar_t* lpFileName)
{
    return ::GetFileAttributes(lpFileName);
}
