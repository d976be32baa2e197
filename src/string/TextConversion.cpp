// SPDX-License-Identifier: MIT
#include "string/TextConversion.h"

#include "platform/Platform.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace {

constexpr unsigned int kLastAscii = 0x7F;

// Converts one character, ASCII without the C library. Result: as of mbrtowc.
std::size_t widenCharacter(wchar_t* wide, const char* narrow, std::size_t left,
                           std::mbstate_t* state)
{
    const auto byte = static_cast<unsigned char>(*narrow);
    if (byte > kLastAscii)
        return std::mbrtowc(wide, narrow, left, state);
    *wide = static_cast<wchar_t>(byte);
    return byte ? 1 : 0;
}

} // namespace

namespace ktqtbase {

NarrowText::NarrowText(const wchar_t* wide)
{
    if (wide && !copyAscii(wide))
        convertAny(wide);
}

// Takes a short ASCII text, which is the same bytes in every LC_CTYPE: at the length of a usual
// file name the C library's conversion costs more than the system call that the name is made for.
// The loop looks at every character, since without a way out it takes several at once.
bool NarrowText::copyAscii(const wchar_t* wide)
{
    const std::size_t length = std::wcslen(wide);
    if (length >= kShortRoom)
        return false;
    unsigned int bits = 0;
    for (std::size_t i = 0; i < length; ++i) {
        bits |= static_cast<unsigned int>(wide[i]);
        m_short[i] = static_cast<char>(wide[i]);
    }
    m_short[length] = '\0';
    m_text = bits <= kLastAscii ? m_short : nullptr;
    m_length = length;
    return m_text;
}

void NarrowText::convertAny(const wchar_t* wide)
{
    // Not four bytes a character: some C libraries write six for values beyond the last code point,
    // and a room too small would cut the text without a terminator.
    const std::size_t room = std::wcslen(wide) * MB_CUR_MAX + 1;
    if (room <= kShortRoom) {
        convert(wide, m_short, kShortRoom);
        return;
    }
    m_long = std::make_unique<char[]>(room);
    convert(wide, m_long.get(), room);
}

void NarrowText::convert(const wchar_t* wide, char* room, std::size_t size)
{
    const std::size_t length = std::wcstombs(room, wide, size);
    // Also -1, for text that does not convert.
    if (length >= size)
        return;
    m_text = room;
    m_length = length;
}

bool widen(const char* narrow, wchar_t* wide, std::size_t size)
{
    if (!wide)
        return true;
    std::mbstate_t state{};
    const char* const end = narrow + std::strlen(narrow) + 1;
    for (std::size_t written = 0; written < size; ++written) {
        const auto left = static_cast<std::size_t>(end - narrow);
        const std::size_t bytes = widenCharacter(&wide[written], narrow, left, &state);
        if (bytes == 0)
            return true;
        if (bytes > left) {
            wide[written] = L'\0';
            return false;
        }
        narrow += bytes;
    }
    return true;
}

void useUtf8Locale()
{
    std::setlocale(LC_CTYPE, platform::utf8LocaleName());
}

} // namespace ktqtbase
