// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include "string/TextConversion.h"

#include <sys/stat.h>

namespace {

// st_mode has 16 bits on macOS and more on Linux, where the upper ones are zero.
constexpr unsigned int kModeBits = 0xFFFF;

} // namespace

unsigned int GetFileAttributes(const wchar_t* lpFileName)
{
    const ktqtbase::NarrowText name(lpFileName);
    struct stat status;
    if (!name.converted() || stat(name.c_str(), &status) != 0)
        return INVALID_FILE_ATTRIBUTES;
    return static_cast<unsigned int>(status.st_mode) & kModeBits;
}

unsigned int KtKernel32::GetFileAttributes(const wchar_t* lpFileName)
{
    return ::GetFileAttributes(lpFileName);
}

unsigned int KtKernel32::GetFileAttributesW(const wchar_t* lpFileName)
{
    return ::GetFileAttributes(lpFileName);
}
