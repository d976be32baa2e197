// SPDX-License-Identifier: MIT
#include "Reasons.h"

#include "Narrow.h"

#include <KtQtBase/WindowsFunctions.h>

#include <dlfcn.h>

namespace {

// In the words of this program's messages, which go on behind a colon.
std::wstring InPlainWords(const std::error_code& error)
{
    if (error == std::errc::no_such_file_or_directory)
        return L"there is no such file or folder";
    if (error == std::errc::not_a_directory)
        return L"a part of its path is no folder";
    if (error == std::errc::permission_denied)
        return L"it is not permitted";
    if (error == std::errc::no_space_on_device)
        return L"the disk is full";
    if (error == std::errc::read_only_file_system)
        return L"the disk is read-only";
    if (error == std::errc::filename_too_long)
        return L"the name is too long";
    if (error == std::errc::file_too_large)
        return L"the file would be too large";
    return std::wstring();
}

} // namespace

std::wstring ReasonOf(const std::error_code& error)
{
    const std::wstring words = InPlainWords(error);
    return words.empty() ? WidenForDisplay(error.message()) : words;
}

std::wstring LastErrorReason()
{
    const auto code = static_cast<int>(GetLastError()); // errno, not a Windows number
    return code ? ReasonOf({code, std::generic_category()}) : L"the disk did not take it";
}

// GetLastError knows nothing of modules here.
std::wstring LoaderReason()
{
    const char* const reason = dlerror();
    return reason ? WidenForDisplay(reason) : L"it is no module of this program";
}
