// SPDX-License-Identifier: MIT
//
// White space as the global std::locale has it, and texts without it at their ends.
#ifndef KTQTBASE_STRING_WHITESPACE_H
#define KTQTBASE_STRING_WHITESPACE_H

#include <cstring>
#include <locale>

namespace ktqtbase {

// The test of one operation. The host may change the global locale between two of them.
class WhiteSpace
{
public:
    WhiteSpace() : m_classes(classesOf(m_locale)) {}
    WhiteSpace(const WhiteSpace&) = delete;
    WhiteSpace& operator=(const WhiteSpace&) = delete;

    bool operator()(wchar_t ch) const
    {
        return m_classes ? m_classes->is(std::ctype_base::space, ch) : isClassic(ch);
    }

private:
    // Asking a facet costs more than the rest of a short trim, and the classic one is known. A
    // locale of the same bytes is the same one; where an equal one has others, its facet is asked.
    static const std::ctype<wchar_t>* classesOf(const std::locale& locale)
    {
        static const std::locale& classic = std::locale::classic();
        return std::memcmp(&locale, &classic, sizeof locale) == 0
                   ? nullptr
                   : &std::use_facet<std::ctype<wchar_t>>(locale);
    }

    static bool isClassic(wchar_t ch) { return ch == L' ' || (ch >= L'\t' && ch <= L'\r'); }

    std::locale m_locale;
    const std::ctype<wchar_t>* m_classes;
};

// A part of a text.
struct TextRange
{
    const wchar_t* begin;
    const wchar_t* end;

    std::size_t size() const { return static_cast<std::size_t>(end - begin); }
};

// A text without the white space at its ends.
inline TextRange trimmed(TextRange text, const WhiteSpace& isSpace)
{
    while (text.begin != text.end && isSpace(*text.begin))
        ++text.begin;
    while (text.begin != text.end && isSpace(text.end[-1]))
        --text.end;
    return text;
}

} // namespace ktqtbase

#endif
