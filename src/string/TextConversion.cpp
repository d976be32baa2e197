// SPDX-License-Identifier: MIT
#include "string/TextConversion.h"

#include "platform/Platform.h"
#include "string/WideBlock.h"

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
    Found others;
    std::size_t i = 0;
    for (; length - i >= WideBlock::kSize; i += WideBlock::kSize) {
        const WideBlock block(wide + i);
        others.add(block.placesOfOthers());
        block.narrowTo(narrow + i);
    }
    for (; i < length; ++i) {
        others.add(static_cast<unsigned int>(wide[i]) > kLastAscii);
        narrow[i] = static_cast<Unit>(wide[i]);
    }
    return !others.anywhere();
}

template bool narrowAscii(const wchar_t*, std::size_t, char*);
template bool narrowAscii(const wchar_t*, std::size_t, char16_t*);

NarrowText::NarrowText(const wchar_t* wide)
{
    if (wide && !copyAscii(wide))
        convertAny(wide);
}

bool NarrowText::copyAscii(const wchar_t* wide)
{
    const std::size_t length = std::wcslen(wide);
    if (length >= kShortRoom || !narrowAscii(wide, length, m_short))
        return false;
    m_short[length] = '\0';
    m_text = m_short;
    m_length = length;
    return true;
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
