// SPDX-License-Identifier: MIT
//
// Comparison of names without regard to case, and the character tests of drive letters.
#ifndef KTQTBASE_STRING_CASEFOLDING_H
#define KTQTBASE_STRING_CASEFOLDING_H

#include <cstddef>
#include <cwctype>

namespace ktqtbase {

// A to Z are upper-case letters in every LC_CTYPE, so the C library is not asked about the drive
// letters of most names.
inline bool isCapital(wchar_t ch)
{
    return ch >= L'A' && ch <= L'Z';
}

// A character in lower case by the classic locale, which folds A to Z and nothing else. Folding in
// place spares the facet's call for each character.
inline wchar_t foldClassic(wchar_t ch)
{
    return isCapital(ch) ? static_cast<wchar_t>(ch + (L'a' - L'A')) : ch;
}

// Whether two terminated texts are equal, each character lower-cased by the classic locale. The
// answer does not depend on a locale that the host has set.
inline bool equalFolded(const wchar_t* a, const wchar_t* b)
{
    while (*b && foldClassic(*a) == foldClassic(*b)) {
        ++a;
        ++b;
    }
    return *a == *b;
}

// Whether a range and a terminated text are equal in the same way.
inline bool equalFolded(const wchar_t* a, std::size_t length, const wchar_t* b)
{
    for (std::size_t i = 0; i < length; ++i) {
        if (!b[i] || foldClassic(a[i]) != foldClassic(b[i]))
            return false;
    }
    return !b[length];
}

// Whether a code point is a letter for the process's LC_CTYPE.
inline bool isLetter(wchar_t ch)
{
    return isCapital(ch) || std::iswalpha(static_cast<std::wint_t>(ch)) != 0;
}

// The upper-case form of a code point for the process's LC_CTYPE.
inline wchar_t upperCase(wchar_t ch)
{
    return isCapital(ch) ? ch : static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(ch)));
}

} // namespace ktqtbase

#endif
