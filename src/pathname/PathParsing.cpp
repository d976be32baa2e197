// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"
#include "string/CaseFolding.h"

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
    return text.find(kColon) != text.rfind(kColon);
}

// Where the part behind the volume begins.
int volumeLength(path_category category)
{
    return category == PC_DRIVE ? 2 : 0;
}

// Empties a path name again unless the parse was finished.
class ParseGuard
{
public:
    explicit ParseGuard(CRbUiPathname& name) : m_name(&name) {}
    ParseGuard(const ParseGuard&) = delete;
    ParseGuard& operator=(const ParseGuard&) = delete;
    ~ParseGuard()
    {
        if (m_name)
            m_name->Empty();
    }

    void finished() { m_name = nullptr; }

private:
    CRbUiPathname* m_name;
};

// The text of a name without quotes and blanks, and whether it can be one: it is not empty and has
// no second colon.
bool prepare(CRbUiPathname& name, CStdStr<wchar_t>& text)
{
    CRbUiPathname::Unquote(text);
    name.StripSpaces(text);
    return !hasSeveralColons(text) && !text.empty();
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
    // The name may lie in the strings that are freed next.
    auto text = std::make_unique<CStdStr<wchar_t>>(name);
    const bool hasColon = holds(*text, kColon);
    Empty();
    if (!prepare(*this, *text) || classify(*this, *text, base) != 0 || m_category == PC_UNC)
        return 1;

    ParseGuard guard(*this);
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
    CStdStr<wchar_t> trimmed = s;
    trimmed.TrimLeft().TrimRight();
    if (trimmed.size() < 2 || trimmed.front() != kDoubleQuote || trimmed.back() != kDoubleQuote)
        return;
    s.assign(trimmed, 1, trimmed.size() - 2);
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
    std::replace(s->begin(), s->end(), kBackslash, sep);
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
            s->front() = ktqtbase::upperCase(first);
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
