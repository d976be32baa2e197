// SPDX-License-Identifier: MIT
//
// The bytes of one input, taken from the first to the last: numbers, and texts that end at a zero
// byte. Behind the end there are zero bytes without end.
#ifndef KTQTBASE_FUZZ_SUPPORT_INPUT_H
#define KTQTBASE_FUZZ_SUPPORT_INPUT_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace ktqtbase::fuzz {

class Input
{
public:
    Input(const std::uint8_t* bytes, std::size_t size) : m_next(bytes), m_end(bytes + size) {}

    bool atEnd() const { return m_next == m_end; }

    unsigned int byte() { return atEnd() ? 0 : *m_next++; }

    // Below a limit of 256 at most.
    unsigned int below(unsigned int limit) { return byte() % limit; }

    bool oneIn(unsigned int chances) { return below(chances) == 0; }

    // Any number of four bytes.
    std::uint32_t number()
    {
        std::uint32_t number = 0;
        for (int i = 0; i < 4; ++i)
            number = number << 8 | byte();
        return number;
    }

    // Mostly a small number, also a negative one, and now and then any.
    int integer()
    {
        const unsigned int first = byte();
        return first == 0xFF ? static_cast<int>(number()) : static_cast<int>(first) - 8;
    }

    // 0xFF stands for a run: the byte behind it, and how often.
    std::string bytes()
    {
        std::string text;
        for (unsigned int next = byte(); next != 0; next = byte()) {
            if (next == 0xFF)
                addRun(text);
            else
                text += static_cast<char>(next);
        }
        return text;
    }

    // A wide text in UTF-8, without any check, since all values count. Two bytes that UTF-8 does
    // not have begin other things: 0xFF a character and how often, 0xFE the four bytes of a value.
    // A value may be NUL.
    std::wstring text()
    {
        std::wstring text;
        for (unsigned int next = byte(); next != 0; next = byte()) {
            if (next == 0xFF)
                addRun(text);
            else
                text += character(next);
        }
        return text;
    }

    // A wide text up to its first NUL, as a terminated one is read.
    std::wstring name() { return text().c_str(); }

    // Such a text, or none.
    std::optional<std::wstring> optionalName()
    {
        return oneIn(16) ? std::nullopt : std::make_optional(name());
    }

private:
    static constexpr std::size_t kRun = 5;
    static constexpr std::size_t kLongest = 1024;

    template<class Text>
    void addRun(Text& text)
    {
        const unsigned int ch = byte();
        const std::size_t count = kRun * byte();
        text.append(text.size() < kLongest ? count : 1, static_cast<typename Text::value_type>(ch));
    }

    wchar_t character(unsigned int first)
    {
        if (first < 0xC0)
            return static_cast<wchar_t>(first);
        if (first == 0xFE)
            return static_cast<wchar_t>(number());
        const int more = first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
        unsigned int code = first & (0x3Fu >> more);
        for (int i = 0; i < more; ++i)
            code = code << 6 | (byte() & 0x3F);
        return static_cast<wchar_t>(code);
    }

    const std::uint8_t* m_next;
    const std::uint8_t* m_end;
};

inline const wchar_t* pointerTo(const std::optional<std::wstring>& text)
{
    return text ? text->c_str() : nullptr;
}

} // namespace ktqtbase::fuzz

#endif
