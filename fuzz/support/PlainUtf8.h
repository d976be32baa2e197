// SPDX-License-Identifier: MIT
//
// A plain second reading of UTF-8, which shares no code with the library, with Qt and with libc.
#ifndef KTQTBASE_FUZZ_SUPPORT_PLAINUTF8_H
#define KTQTBASE_FUZZ_SUPPORT_PLAINUTF8_H

#include <optional>
#include <string>

namespace ktqtbase::fuzz::plain {

// The bytes of a character by its first byte; 0 for a byte that begins none.
inline std::size_t lengthOf(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first < 0xC0)
        return 0;
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF8 ? 4 : 0;
}

// Whether a number is a character, and written in no more bytes than it needs.
inline bool isCharacter(unsigned value, std::size_t length)
{
    const unsigned least[] = {0, 0, 0x80, 0x800, 0x10000};
    return value >= least[length] && value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

// Result: nothing if the bytes are not UTF-8.
inline std::optional<std::wstring> decode(const std::string& bytes)
{
    std::wstring text;
    for (std::size_t at = 0; at < bytes.size();) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const std::size_t length = lengthOf(first);
        if (length == 0 || length > bytes.size() - at)
            return std::nullopt;
        unsigned value = length == 1 ? first : first & (0xFFu >> (length + 1));
        for (std::size_t i = 1; i < length; ++i) {
            const auto next = static_cast<unsigned char>(bytes[at + i]);
            if (next >> 6 != 2)
                return std::nullopt;
            value = value << 6 | (next & 0x3Fu);
        }
        if (!isCharacter(value, length))
            return std::nullopt;
        text += static_cast<wchar_t>(value);
        at += length;
    }
    return text;
}

} // namespace ktqtbase::fuzz::plain

#endif
