// SPDX-License-Identifier: MIT
#include "Reasons.h"

#include "Narrow.h"
#include "Texts.h"

#include <KtQtBase/WindowsFunctions.h>

#include <utility>

#include <dlfcn.h>

namespace {

// In the words of this program's messages, which go on behind a colon.
constexpr std::pair<std::errc, TextId> kPlainWords[] = {
    {std::errc::no_such_file_or_directory, IDS_NOFILE},
    {std::errc::not_a_directory, IDS_NOPATH},
    {std::errc::permission_denied, IDS_FORBIDDEN},
    {std::errc::no_space_on_device, IDS_DISKFULL},
    {std::errc::read_only_file_system, IDS_DISKREADONLY},
    {std::errc::filename_too_long, IDS_NAMETOOLONG},
    {std::errc::file_too_large, IDS_FILETOOLARGE},
};

} // namespace

std::wstring ReasonOf(const std::error_code& error)
{
    for (const auto& [code, words] : kPlainWords) {
        if (error == code)
            return Text(words);
    }
    return WidenForDisplay(error.message());
}

std::wstring LastErrorReason()
{
    const auto code = static_cast<int>(GetLastError()); // errno, not a Windows number
    return code ? ReasonOf({code, std::generic_category()}) : Text(IDS_DISKREFUSED);
}

// GetLastError knows nothing of modules here.
std::wstring LoaderReason()
{
    const char* const reason = dlerror();
    return reason ? WidenForDisplay(reason) : Text(IDS_NOMODULE);
}
