// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"
#include "string/CaseFolding.h"
#include "string/WhiteSpace.h"

#include <algorithm>
#include <cwchar>
#include <memory>

namespace {

bool holds(const CStdStr<wchar_t>& text, wchar_t ch)
{
    return text.find(ch) != text.npos;
}

bool hasSeveralColons(const CStdStr<wchar_t>& text)
{
    const std::size_t first = text.find(kColon);
    return first != text.npos && text.find(kColon, first + 1) != text.npos;
}

// Where the part behind the volume begins.
int volumeLength(path_category category)
{
    return category == PC_DRIVE ? 2 : 0;
}

bool isQuoted(const ktqtbase::TextRange& text)
{
    return text.size() >= 2 && *text.begin == kDoubleQuote && text.end[-1] == kDoubleQuote;
}

// A name without its quotes and the blanks around and inside them, found in place.
ktqtbase::TextRange bareName(const wchar_t* name)
{
    const ktqtbase::WhiteSpace isSpace;
    const ktqtbase::TextRange text = trimmed({name, name + std::wcslen(name)}, isSpace);
    return isQuoted(text) ? trimmed({text.begin + 1, text.end - 1}, isSpace) : text;
}

// Normalises and classifies a text into name's category. Result: as of GetPathCatType.
int classify(CRbUiPathname& name, CStdStr<wchar_t>& text, const CRbUiPathname* base)
{
    wchar_t last = 0;
    wchar_t first = 0;
    wchar_t second = 0;
    GetWorkString(&text, name.m_separator, last, first, second);
    name.m_category = PC_RELATIVE;
    return GetPathCatType(first, second, name.m_separator, name.m_category, &text, base);
}

const CRbUiVolumeDescriptor* volumeOf(const CRbUiPathname& name, const CStdStr<wchar_t>& text,
                                      const CRbUiPathname* base)
{
    switch (name.m_category) {
    case PC_DRIVE:
        return name.FindVolumeDescriptor(text.Left(2));
    case PC_RELATIVE:
        return base->m_pVolume;
    default:
        return nullptr;
    }
}

} // namespace

int CRbUiPathname::ParseRelative(const wchar_t* name, const CRbUiPathname* base, bool)
{
    if (!name)
        return 1;
    // Copied first: the name may lie in the strings that are freed next.
    const ktqtbase::TextRange bare = bareName(name);
    auto text = std::make_unique<CStdStr<wchar_t>>();
    // And room for the separator that AppendSlash puts behind a folder.
    text->reserve(bare.size() + 1);
    text->assign(bare.begin, bare.end);
    const bool hasColon = std::wcschr(name, kColon);
    Empty();
    if (text->empty() || hasSeveralColons(*text))
        return 1;
    if (classify(*this, *text, base) != 0 || m_category == PC_UNC)
        return 1;

    ktqtbase::EmptyUnlessFinished guard(*this);
    m_pVolume = volumeOf(*this, *text, base);
    GetWorkPtrByIndex(m_category, text.get(), m_separator, volumeLength(m_category));
    if (m_pVolume)
        m_pVolume->VolCase(*text);
    const CStdStr<wchar_t> noPrefix;
    GetRelPath(m_category, &noPrefix, &m_pRelPath, &base);
    GetPathBuffer(&m_pRelPath, false, text.get(), m_separator);
    m_pWork = text.release();
    GetAttributes(m_pWork, m_pRelPath, &m_type);
    guard.finished();

    if (hasColon || holds(*m_pWork, m_separator))
        m_bQualified = true;
    return 0;
}

int CRbUiPathname::AppendSlash()
{
    if (!ktqtbase::isParsed(*this))
        return 2;
    const wchar_t last = GetLastCharacter(*m_pWork);
    if (!m_pWork->empty() && last != kColon && last != m_separator)
        m_pWork->push_back(m_separator);
    return 0;
}

void CRbUiPathname::Unquote(CStdStr<wchar_t>& s)
{
    const ktqtbase::WhiteSpace isSpace;
    const ktqtbase::TextRange text = trimmed({s.data(), s.data() + s.size()}, isSpace);
    if (isQuoted(text))
        s.assign(text.begin + 1, text.size() - 2);
}

void CRbUiPathname::StripSpaces(CStdStr<wchar_t>& s)
{
    if (!s.empty())
        s.TrimLeft().TrimRight();
}

const CRbUiVolumeDescriptor* CRbUiPathname::FindVolumeDescriptor(const CStdStr<wchar_t>& name) const
{
    if (name.empty())
        return nullptr;
    for (const CRbUiVolumeDescriptor* volume : qAsConst(volumeList)) {
        const CStdStr<wchar_t>* localName = volume ? volume->GetLocalName() : nullptr;
        if (localName && *localName == name)
            return volume;
    }
    return NewVolDescriptor(name);
}

const CRbUiVolumeDescriptor* CRbUiPathname::NewVolDescriptor(const CStdStr<wchar_t>&) const
{
    return nullptr;
}

void GetWorkString(CStdStr<wchar_t>* s, wchar_t sep, wchar_t& last, wchar_t& first, wchar_t& second)
{
    if (!s->empty())
        last = s->back();
    for (std::size_t i = s->find(kBackslash); i != s->npos; i = s->find(kBackslash, i + 1))
        (*s)[i] = sep;
    first = s->c_str()[0];
    second = s->size() > 1 ? (*s)[1] : kEOS;
}

int GetPathCatType(wchar_t first, wchar_t second, wchar_t sep, path_category& cat,
                   CStdStr<wchar_t>* s, const CRbUiPathname* base)
{
    if (first == sep) {
        cat = second == sep ? PC_UNC : PC_ROOTED;
    } else if (second == kColon && ktqtbase::isLetter(first)) {
        cat = PC_DRIVE;
        if (!s->empty())
            s->front() = ktqtbase::upperCase(s->front());
        return 0;
    }
    if (holds(*s, kColon))
        return 1;
    const bool needsBase = cat == PC_RELATIVE;
    return !needsBase || (base && ktqtbase::isParsed(base->m_type)) ? 0 : 1;
}

void GetUNCScount(CStdStr<wchar_t>*, int*, unsigned int&, int&, wchar_t) {}

void GetWorkPtrByIndex(path_category cat, CStdStr<wchar_t>* s, wchar_t sep, int index)
{
    if (cat == PC_UNC && s->size() <= static_cast<std::size_t>(std::max(index, 0)))
        s->push_back(sep);
}

void GetRelPath(path_category cat, const CStdStr<wchar_t>* text, CStdStr<wchar_t>** out,
                const CRbUiPathname** base)
{
    if (cat == PC_RELATIVE) {
        auto prefix = std::make_unique<CStdStr<wchar_t>>();
        if (base && *base)
            (*base)->GetFullPath(*prefix);
        *out = prefix->empty() ? nullptr : prefix.release();
    } else if (cat == PC_ROOTED) {
        *out = text ? new CStdStr<wchar_t>(*text) : new CStdStr<wchar_t>();
    }
}

bool GetPathBuffer(CStdStr<wchar_t>**, bool, CStdStr<wchar_t>*, wchar_t,
                   const CRbUiVolumeDescriptor**)
{
    return true;
}
