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

template<class Unit>
bool narrowAscii(const wchar_t* wide, std::size_t length, Unit* narrow)
{
    unsigned int bitsOfAll = 0;
    for (std::size_t i = 0; i < length; ++i) {
        bitsOfAll |= static_cast<unsigned int>(wide[i]);
        narrow[i] = static_cast<Unit>(wide[i]);
    }
    return bitsOfAll <= kLastAscii;
}

template bool narrowAscii(const wchar_t*, std::size_t, char*);
template bool narrowAscii(const wchar_t*, std::size_t, char16_t*);

NarrowText::NarrowText(const wchar_t* wide)
{
    if (!wide)
        return;
    const std::size_t characters = std::wcslen(wide);
    char* const room = m_room.of(characters + 1);
    if (!narrowAscii(wide, characters, room)) {
        // Not four bytes a character: some C libraries write six for values beyond the last code
        // point, and a room too small would cut the text without a terminator.
        convert(wide, characters * MB_CUR_MAX + 1);
        return;
    }
    room[characters] = '\0';
    m_text = room;
    m_length = characters;
}

void NarrowText::convert(const wchar_t* wide, std::size_t size)
{
    char* const room = m_room.of(size);
    const std::size_t bytes = std::wcstombs(room, wide, size);
    // Also -1, for text that does not convert.
    if (bytes >= size)
        return;
    m_text = room;
    m_length = bytes;
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
