// SPDX-License-Identifier: MIT
//
// CStdStr<wchar_t>, the wide string of every interface of this library: a standard wide string
// with the MFC-style operations that ported code calls.
//
//     CStdStr<wchar_t> name = L"  Report.TXT ";
//     name.TrimLeft().TrimRight();
//     if (name.Find(L".TXT") != -1)
//         name = name.Left(6) + L".txt";
//
// Text is UTF-32, one code point an element. Positions and lengths of the operations below are int,
// -1 meaning not found. The class adds no data: it is as large as a standard wide string and may be
// passed wherever one is expected.
#ifndef KTQTBASE_WIDESTRING_H
#define KTQTBASE_WIDESTRING_H

#include <KtQtBase/Export.h>

#include <algorithm>
#include <cstddef>
#include <locale>
#include <string>
#include <utility>

// ---- The string --------------------------------------------------------------------------------

template<class T>
class CStdStr : public std::basic_string<T>
{
public:
    using std::basic_string<T>::basic_string;
    using std::basic_string<T>::operator=;

    // An empty string.
    CStdStr() = default;

    // The same text as a standard string, so that `s = s + L"b"` compiles.
    CStdStr(const std::basic_string<T>& text) : std::basic_string<T>(text) {}
    CStdStr(std::basic_string<T>&& text) noexcept : std::basic_string<T>(std::move(text)) {}

    // Looks for a text, by exact comparison of its characters.
    //   sub    in: the text, zero-terminated; null counts as empty
    // Result: the position of the first occurrence, or -1.
    //   L"abcabc", L"ca"   => 2
    //   L"abc",    L"B"    => -1
    //   L"abc",    L""     => 0
    //   L"",       L""     => 0
    //   L"ab",     L"abc"  => -1
    int Find(const T* sub) const;

    // A part of the string.
    //   first    in: position of its first character; negative counts as 0
    //   count    in: how many characters; negative counts as 0, too many are cut
    // Result: a new string; empty if first lies beyond the end.
    //   L"abcdef", -3, 2       => L"ab"
    //   L"abcdef", 4, 10       => L"ef"
    //   L"abcdef", 4, INT_MAX  => L"ef"
    //   L"abcdef", 10, 2       => L""
    CStdStr Mid(int first, int count) const;

    // The beginning of the string.
    //   count    in: how many characters; below 1 gives an empty string, too many are cut
    //   L"abc", 2   => L"ab"
    //   L"abc", 99  => L"abc"
    //   L"abc", -1  => L""
    CStdStr Left(int count) const;

    // Removes white space from the start, or from the end. The global std::locale at the time of
    // the call decides what is white space.
    // Result: the string itself.
    //   L"  a b ", TrimLeft   => L"a b "
    //   L"  a b ", TrimRight  => L"  a b"
    //   L" \t ",   either     => L""
    CStdStr& TrimLeft();
    CStdStr& TrimRight();

    // Replaces every character in place by its upper-case, or lower-case, form in a locale.
    //   locale    in: its ctype<wchar_t> facet decides
    // Result: the string itself.
    // Kept: one name begins with a small letter, the other with a capital one; a host that calls
    // them would not compile otherwise.
    CStdStr& toUpper(const std::locale& locale);
    CStdStr& ToLower(const std::locale& locale);

    // Reads a string of the module that AfxSetResourceHandle set.
    //   id    in: the string's number
    // Result: whether the module has such a string and it is not empty.
    // The text is cut to 1,023 characters. Afterwards the string has at least 1,024 characters,
    // whatever the result: a shorter one is filled up with NULs, a longer one keeps its length and
    // what it holds from place 1,023 on. So load into an empty string and read it with c_str().
    // If the module's "loadstring" has no such string, the former characters stay; without a
    // module, or in one without "loadstring", the first 1,023 become NULs.
    //   L"", the module has L"Ready"  => true, L"Ready" and 1,019 NULs
    //   L"ab", no such string         => false, L"ab" and 1,022 NULs
    //   L"ab", no module              => false, 1,024 NULs
    // Kept: the length is not cut to the text; a host that reads it would see another number.
    // On Windows: the string gets the text's own length, and is emptied on failure.
    bool LoadString(unsigned int id);
};

// Defined in the header: a call into the library would cost as much as the copy of a short text. The
// brackets are for hosts with macros named min and max.
template<class T>
CStdStr<T> CStdStr<T>::Mid(int first, int count) const
{
    const std::size_t start =
        (std::min)(static_cast<std::size_t>((std::max)(first, 0)), this->size());
    const std::size_t wanted = static_cast<std::size_t>((std::max)(count, 0));
    return CStdStr(this->data() + start, (std::min)(wanted, this->size() - start));
}

template<class T>
CStdStr<T> CStdStr<T>::Left(int count) const
{
    const std::size_t wanted = static_cast<std::size_t>((std::max)(count, 0));
    return CStdStr(this->data(), (std::min)(wanted, this->size()));
}

// The operations are compiled once, in the library, and for the wide string only.
extern template class KTQTBASE_EXPORT CStdStr<wchar_t>;

// ---- Helpers -----------------------------------------------------------------------------------

namespace KtErrorEat {

// Upper-cases, or lower-cases, a string in place by the global std::locale.
//   s    in/out: the string
KTQTBASE_EXPORT void strMakeUpper(CStdStr<wchar_t>& s);
KTQTBASE_EXPORT void strMakeLower(CStdStr<wchar_t>& s);

} // namespace KtErrorEat

// Deletes a string and forgets it.
//   pp    in/out: where the owning pointer lies; set to null. Null, or a null pointer there, stays
//         as it is.
KTQTBASE_EXPORT void ReleaseCStrPtr(CStdStr<wchar_t>** pp);

#endif
