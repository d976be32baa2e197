// SPDX-License-Identifier: MIT
//
// The steps of a parse, in the order in which CRbUiPathname::ParseRelative takes them. Hosts call
// some of them as functions of PathFunctions.h or as members of CRbUiPathname, which use these.
#ifndef KTQTBASE_PATHNAME_PARSESTEPS_H
#define KTQTBASE_PATHNAME_PARSESTEPS_H

#include "pathname/PathInternals.h"
#include "string/CaseFolding.h"
#include "string/WhiteSpace.h"

#include <string_view>

namespace ktqtbase {

// A text without one pair of double quotes around it and the white space outside them. A text
// without such a pair stays as it is.
inline std::wstring_view unquoted(std::wstring_view text, const WhiteSpace& isSpace)
{
    const std::wstring_view inner = trimmed(text, isSpace);
    const bool isQuoted =
        inner.size() >= 2 && inner.front() == kDoubleQuote && inner.back() == kDoubleQuote;
    return isQuoted ? inner.substr(1, inner.size() - 2) : text;
}

// A name given without its quotes, and without the white space around and inside them.
inline std::wstring_view bareName(std::wstring_view given)
{
    const WhiteSpace isSpace;
    return trimmed(unquoted(given, isSpace), isSpace);
}

inline bool holdsSeveralColons(std::wstring_view text)
{
    const std::size_t first = text.find(kColon);
    return first != text.npos && text.find(kColon, first + 1) != text.npos;
}

inline void putSeparators(CStdStr<wchar_t>& text, wchar_t separator)
{
    if (!holds(text, kBackslash))
        return;
    for (wchar_t& ch : text)
        ch = ch == kBackslash ? separator : ch;
}

inline wchar_t secondCharacter(const CStdStr<wchar_t>& text)
{
    return text.size() > 1 ? text[1] : kEOS;
}

inline bool isDrive(wchar_t first, wchar_t second)
{
    return second == kColon && isLetter(first);
}

inline void raiseDriveLetter(CStdStr<wchar_t>& text)
{
    if (!text.empty())
        text.front() = upperCase(text.front());
}

// Changes a category to what a text's first two characters tell, and puts a drive's letter in upper
// case. Result: whether it is a drive.
inline bool classify(wchar_t first, wchar_t second, wchar_t separator, path_category& category,
                     CStdStr<wchar_t>& text)
{
    if (first == separator) {
        category = second == separator ? PC_UNC : PC_ROOTED;
        return false;
    }
    if (!isDrive(first, second))
        return false;
    category = PC_DRIVE;
    raiseDriveLetter(text);
    return true;
}

// Classifies a name by classify. Result: whether it is good: only a drive may hold a colon, and a
// relative name needs a parsed base.
inline bool classifyName(wchar_t first, wchar_t second, wchar_t separator, path_category& category,
                         CStdStr<wchar_t>& text, const CRbUiPathname* base)
{
    if (classify(first, second, separator, category, text))
        return true;
    if (holds(text, kColon))
        return false;
    return category != PC_RELATIVE || (base && isParsed(base->m_type));
}

// The prefix of a name: its base's full path for a relative one, a text that is passed for a rooted one. A
// drive has none, and neither has a relative name whose base has an empty path.
//   ofRooted    in: the prefix of a rooted name
//   former      in: a string that is filled instead of a new one, or null
inline OwnedText prefixOf(path_category category, std::wstring_view ofRooted,
                          const CRbUiPathname* base, OwnedText former)
{
    if (category != PC_RELATIVE && category != PC_ROOTED)
        return nullptr;
    OwnedText prefix = former ? std::move(former) : std::make_unique<CStdStr<wchar_t>>();
    prefix->clear();
    if (category == PC_ROOTED) {
        prefix->append(ofRooted);
        return prefix;
    }
    if (base)
        base->GetFullPath(*prefix);
    return prefix->empty() ? nullptr : std::move(prefix);
}

} // namespace ktqtbase

#endif
