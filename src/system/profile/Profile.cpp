// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Profiles.h>

#include "string/TextConversion.h"
#include "string/TextRoom.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kNumberRoom = 64;

// Names that no file holds: a section's ends before its first "]", a key's before its first "=".
char kNoSection[] = "]";
char kNoKey[] = "=";
char kEmpty[] = "";

// A wide argument in multibyte form. Null counts as the empty text; a text that is too long or does
// not convert is replaced.
class Argument
{
public:
    Argument(const wchar_t* wide, char* replacement)
        : m_narrow(wide ? wide : L""), m_replacement(replacement)
    {}

    char* text()
    {
        const bool usable = m_narrow.converted() && m_narrow.length() < ktqtbase::kTextRoom;
        return usable ? m_narrow.data() : m_replacement;
    }

private:
    ktqtbase::NarrowText m_narrow;
    char* m_replacement;
};

int read(const wchar_t* section, const wchar_t* key, const wchar_t* defaultText, char* out,
         int size, const wchar_t* fileName)
{
    return read_profile_string(Argument(section, kNoSection).text(), Argument(key, kNoKey).text(),
                               Argument(defaultText, kEmpty).text(), out, size,
                               Argument(fileName, nullptr).text());
}

} // namespace

unsigned int GetPrivateProfileString(const wchar_t* lpAppName, const wchar_t* lpKeyName,
                                     const wchar_t* lpDefault, wchar_t* lpReturnedString,
                                     unsigned int nSize, const wchar_t* lpFileName)
{
    char result[ktqtbase::kTextRoom] = {};
    const std::size_t size = std::min<std::size_t>(nSize, sizeof result);
    const int count =
        read(lpAppName, lpKeyName, lpDefault, result, static_cast<int>(size), lpFileName);
    ktqtbase::widen(result, lpReturnedString, size);
    return static_cast<unsigned int>(count);
}

int GetPrivateProfileInt(const wchar_t* lpAppName, const wchar_t* lpKeyName, int,
                         const wchar_t* lpFileName)
{
    char result[kNumberRoom] = {};
    read(lpAppName, lpKeyName, nullptr, result, kNumberRoom, lpFileName);
    return std::atoi(result);
}

unsigned int GetPrivateProfileSectionNames(wchar_t*, unsigned int, const wchar_t*)
{
    return 0;
}

int WritePrivateProfileString(const wchar_t*, const wchar_t*, const wchar_t*, const wchar_t*)
{
    return 1;
}
