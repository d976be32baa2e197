// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Files.h>

#include "string/TextConversion.h"

#include <KtOsBase/KtOsBase.h>

#include <cstdio>
#include <cstdlib>
#include <cwchar>

#include <unistd.h>

namespace {

// Holds the template of six characters and every 32-bit number with its sign.
constexpr std::size_t kUniqueRoom = 12;

const wchar_t* orEmpty(const wchar_t* text)
{
    return text ? text : L"";
}

// The number, or six characters that name no file in the working directory; empty if there are no
// such characters.
void makeUniquePart(unsigned int number, char (&unique)[kUniqueRoom])
{
    if (number != 0) {
        std::snprintf(unique, sizeof unique, "%d", static_cast<int>(number));
        return;
    }
    std::snprintf(unique, sizeof unique, "XXXXXX");
    // macOS marks mktemp as deprecated, since it makes no file; here the host makes it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    // NOLINTNEXTLINE(clang-analyzer-security.insecureAPI.mktemp): the host makes the file
    if (!mktemp(unique))
        unique[0] = '\0';
#pragma GCC diagnostic pop
}

} // namespace

unsigned int GetTempFileName(const wchar_t* lpPathName, const wchar_t* lpPrefixString,
                             unsigned int uUnique, wchar_t* lpTempFileName)
{
    if (!lpTempFileName)
        return 0;
    swprintf(lpTempFileName, L"%ls%ls", orEmpty(lpPathName), orEmpty(lpPrefixString));

    char unique[kUniqueRoom];
    makeUniquePart(uUnique, unique);
    ktqtbase::useUtf8Locale();
    wchar_t wideUnique[kUniqueRoom];
    ktqtbase::widen(unique, wideUnique, kUniqueRoom);

    std::wcscat(lpTempFileName, wideUnique);
    std::wcscat(lpTempFileName, L".tmp");
    return static_cast<unsigned int>(std::wcslen(lpTempFileName));
}
