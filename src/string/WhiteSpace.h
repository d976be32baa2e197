// SPDX-License-Identifier: MIT
//
// White space as the global std::locale has it, and texts without it at their ends.
#ifndef KTQTBASE_STRING_WHITESPACE_H
#define KTQTBASE_STRING_WHITESPACE_H

#include <locale>
#include <string_view>

namespace ktqtbase {

// White space as the classic locale has it.
template<class Ch>
constexpr bool isClassicSpace(Ch ch)
{
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}

// The test of one operation. The host may change the global locale between two of them.
class WhiteSpace
{
public:
    WhiteSpace() : m_classes(classesOf(m_locale)) {}
    WhiteSpace(const WhiteSpace&) = delete;
    WhiteSpace& operator=(const WhiteSpace&) = delete;

    bool operator()(wchar_t ch) const
    {
        return m_classes ? m_classes->is(std::ctype_base::space, ch) : isClassicSpace(ch);
    }

private:
    // The classic locale's white space is known. To ask a facet costs more than the rest of a short
    // trim.
    static const std::ctype<wchar_t>* classesOf(const std::locale& locale)
    {
        static const std::locale& classic = std::locale::classic();
        return locale == classic ? nullptr : &std::use_facet<std::ctype<wchar_t>>(locale);
    }

    std::locale m_locale;
    const std::ctype<wchar_t>* m_classes;
};

// A text without the white space at its start, at its end, at both.
//   isSpace    in: the test of a character
template<class Ch, class Test>
std::basic_string_view<Ch> trimmedStart(std::basic_string_view<Ch> text, const Test& isSpace)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

template<class Ch, class Test>
std::basic_string_view<Ch> trimmedEnd(std::basic_string_view<Ch> text, const Test& isSpace)
{
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

template<class Ch, class Test>
std::basic_string_view<Ch> trimmed(std::basic_string_view<Ch> text, const Test& isSpace)
{
    return trimmedEnd(trimmedStart(text, isSpace), isSpace);
}

} // namespace ktqtbase

#endif
