// SPDX-License-Identifier: MIT
#include "Reasons.h"

#include "Narrow.h"

#include <KtQtBase/WindowsFunctions.h>

#include <utility>

#include <dlfcn.h>

namespace {

// In the words of this program's messages, which go on behind a colon.
const std::pair<std::errc, const wchar_t*> kPlainWords[] = {
    {std::errc::no_such_file_or_directory, L"there is no such file or folder"},
    {std::errc::not_a_directory, L"a part of its path is no folder"},
    {std::errc::permission_denied, L"it is not permitted"},
    {std::errc::no_space_on_device, L"the disk is full"},
    {std::errc::read_only_file_system, L"the disk is read-only"},
    {std::errc::filename_too_long, L"the name is too long"},
    {std::errc::file_too_large, L"the file would be too large"},
};

} // namespace

std::wstring ReasonOf(const std::error_code& error)
{
    for (const auto& [code, words] : kPlainWords) {
        if (error == code)
            return words;
    }
    return WidenForDisplay(error.message());
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
