// SPDX-License-Identifier: MIT
#ifndef KTQTBASE_TESTS_SUPPORT_RANDOMNAMES_H
#define KTQTBASE_TESTS_SUPPORT_RANDOMNAMES_H

#include <cwctype>
#include <random>
#include <string>

// Names as people and programs write them, and worse; always the same ones in the same order.
class RandomNames
{
public:
    static constexpr std::size_t kLongest = 1023;

    std::size_t below(std::size_t limit) { return m_engine() % limit; }

    bool oneIn(std::size_t chances) { return below(chances) == 0; }

    // A character of a name: mostly one that has a meaning in names.
    wchar_t character()
    {
        static const std::wstring special = L"..  \"\"\t//\\\\*?~;";
        const std::size_t kind = below(10);
        if (kind < 3)
            return special[below(special.size())];
        if (kind < 9)
            return static_cast<wchar_t>((oneIn(3) ? L'A' : L'a') + below(26));
        return codePoint();
    }

    // Any code point but NUL and those that stand for halves of others.
    wchar_t codePoint()
    {
        const auto code = 1 + below(0x10FFFF);
        return static_cast<wchar_t>(code >= 0xD800 && code < 0xE000 ? L'x' : code);
    }

    std::size_t length() { return below(oneIn(50) ? kLongest + 1 : oneIn(4) ? 60 : 16); }

    std::wstring text(std::size_t length)
    {
        std::wstring result;
        while (result.size() < length)
            result += character();
        return result;
    }

    // A text without some characters.
    std::wstring without(const wchar_t* characters, std::size_t length)
    {
        std::wstring result = text(length);
        for (wchar_t& ch : result) {
            if (std::wstring(characters).find(ch) != std::wstring::npos)
                ch = L'x';
        }
        return result;
    }

    // A drive, rooted or relative name, sometimes in quotes; not all of them parse.
    std::wstring name()
    {
        static const std::wstring starts[] = {L"c:", L"C:\\", L"z:/", L"/", L"\\", L"", L"", L" "};
        std::wstring result = starts[below(8)];
        result = (result + text(length())).substr(0, kLongest);
        return oneIn(8) ? L"\"" + result + L"\"" : result;
    }

    // The same text with other cases and perhaps another end.
    std::wstring variant(std::wstring text)
    {
        for (wchar_t& ch : text) {
            if (oneIn(3) && ch < 0x80)
                ch = static_cast<wchar_t>(oneIn(2) ? std::towupper(static_cast<std::wint_t>(ch))
                                                   : std::towlower(static_cast<std::wint_t>(ch)));
        }
        if (oneIn(3))
            text += L'/';
        if (oneIn(20))
            text += character();
        return text;
    }

private:
    std::mt19937 m_engine{20240601};
};

#endif
