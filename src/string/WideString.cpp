// SPDX-License-Identifier: MIT
#include <KtQtBase/WideString.h>

#include "string/WhiteSpace.h"

using ktqtbase::WhiteSpace;

namespace {

template<class T>
const std::ctype<T>& characterClasses(const std::locale& locale)
{
    return std::use_facet<std::ctype<T>>(locale);
}

} // namespace

template<class T>
int CStdStr<T>::Find(const T* sub) const
{
    const std::size_t position = sub ? this->find(sub) : 0;
    return position == this->npos ? -1 : static_cast<int>(position);
}

template<class T>
CStdStr<T>& CStdStr<T>::TrimLeft()
{
    const std::basic_string_view<T> text = *this;
    this->erase(0, text.size() - ktqtbase::trimmedStart(text, WhiteSpace()).size());
    return *this;
}

template<class T>
CStdStr<T>& CStdStr<T>::TrimRight()
{
    const std::basic_string_view<T> text = *this;
    this->resize(ktqtbase::trimmedEnd(text, WhiteSpace()).size());
    return *this;
}

template<class T>
CStdStr<T>& CStdStr<T>::toUpper(const std::locale& locale)
{
    characterClasses<T>(locale).toupper(&(*this)[0], &(*this)[0] + this->size());
    return *this;
}

template<class T>
CStdStr<T>& CStdStr<T>::ToLower(const std::locale& locale)
{
    characterClasses<T>(locale).tolower(&(*this)[0], &(*this)[0] + this->size());
    return *this;
}

template class CStdStr<wchar_t>;

void KtErrorEat::strMakeUpper(CStdStr<wchar_t>& s)
{
    s.toUpper(std::locale());
}

void KtErrorEat::strMakeLower(CStdStr<wchar_t>& s)
{
    s.ToLower(std::locale());
}

void ReleaseCStrPtr(CStdStr<wchar_t>** pp)
{
    if (!pp)
        return;
    delete *pp;
    *pp = nullptr;
}
