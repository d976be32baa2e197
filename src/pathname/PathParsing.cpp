// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/NameText.h"
#include "pathname/PathInternals.h"
#include "pathname/PathTypeLookup.h"
#include "string/CaseFolding.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace {

using ktqtbase::NameMarks;
using ktqtbase::OwnedText;
using ktqtbase::TextRange;
using Text = CStdStr<wchar_t>;

bool holds(const Text& text, wchar_t ch)
{
    return text.find(ch) != text.npos;
}

bool holdsSeveralColons(const Text& text)
{
    const std::size_t first = text.find(kColon);
    return first != text.npos && text.find(kColon, first + 1) != text.npos;
}

wchar_t secondCharacter(const Text& text)
{
    return text.size() > 1 ? text[1] : kEOS;
}

// Changes a category to what a name's first two characters tell. Result: whether that is a drive.
bool classify(wchar_t first, wchar_t second, wchar_t separator, path_category& category)
{
    if (first == separator) {
        category = second == separator ? PC_UNC : PC_ROOTED;
        return false;
    }
    if (second != kColon || !ktqtbase::isLetter(first))
        return false;
    category = PC_DRIVE;
    return true;
}

// Writes only what changes: a search right behind the write would wait for it.
void raiseDriveLetter(Text& text)
{
    const wchar_t letter = ktqtbase::upperCase(text.c_str()[0]);
    if (!text.empty() && text.front() != letter)
        text.front() = letter;
}

// Whether a name's base will do: a relative name needs a parsed one.
bool acceptsBase(path_category category, const CRbUiPathname* base)
{
    return category != PC_RELATIVE || (base && ktqtbase::isParsed(base->m_type));
}

// Normalises a name's text and sets its category. Result: whether the name is a good one.
bool accept(CRbUiPathname& name, Text& text, const NameMarks& marks, const CRbUiPathname* base)
{
    if (text.empty() || (marks.colon && holdsSeveralColons(text)))
        return false;
    if (marks.backslash)
        std::replace(text.begin(), text.end(), kBackslash, name.m_separator);
    name.m_category = PC_RELATIVE;
    if (classify(text.front(), secondCharacter(text), name.m_separator, name.m_category)) {
        raiseDriveLetter(text);
        return true;
    }
    const bool hasColon = marks.colon || secondCharacter(text) == kColon;
    return !hasColon && name.m_category != PC_UNC && acceptsBase(name.m_category, base);
}

// Whether a text is a name. Compared in a loop, since most have two characters and a call of the C
// library's comparison costs more.
bool equalsName(const Text& text, const TextRange& name)
{
    return text.size() == name.size() &&
           std::mismatch(name.begin, name.end, text.data()).first == name.end;
}

// The first volume of the list with a local name, or null.
const CRbUiVolumeDescriptor* listedVolume(const TextRange& name)
{
    for (const CRbUiVolumeDescriptor* volume : qAsConst(volumeList)) {
        const Text* localName = volume ? volume->GetLocalName() : nullptr;
        if (localName && equalsName(*localName, name))
            return volume;
    }
    return nullptr;
}

// A drive that is not in the list has no volume, since no descriptor is ever made for it.
const CRbUiVolumeDescriptor* volumeOf(path_category category, const Text& text,
                                      const CRbUiPathname* base)
{
    switch (category) {
    case PC_DRIVE:
        return listedVolume({text.data(), text.data() + 2});
    case PC_RELATIVE:
        return base->m_pVolume;
    default:
        return nullptr;
    }
}

// The prefix of a name, in the string of the parse before where there is one. A drive has none, and
// neither has a relative name whose base is an empty text.
OwnedText prefixOf(path_category category, const CRbUiPathname* base, OwnedText former)
{
    if (category == PC_DRIVE)
        return nullptr;
    OwnedText prefix = former ? std::move(former) : std::make_unique<Text>();
    prefix->clear();
    if (category == PC_ROOTED)
        return prefix;
    if (base)
        base->GetFullPath(*prefix);
    return prefix->empty() ? nullptr : std::move(prefix);
}

} // namespace

int CRbUiPathname::ParseRelative(const wchar_t* name, const CRbUiPathname* base, bool)
{
    if (!name)
        return 1;
    OwnedText text(std::exchange(m_pWork, nullptr));
    OwnedText formerPrefix(std::exchange(m_pRelPath, nullptr));
    m_pVolume = nullptr;
    m_type = PT_NONE;
    // The name is read first, for it may lie in the strings that are filled next.
    const bool qualifies = m_bQualified || std::wcschr(name, kColon);
    const NameMarks marks = fill(text, ktqtbase::bareName(name));
    if (!accept(*this, *text, marks, base))
        return 1;

    ktqtbase::EmptyUnlessFinished guard(*this);
    m_pVolume = volumeOf(m_category, *text, base);
    if (m_pVolume)
        m_pVolume->VolCase(*text);
    m_pRelPath = prefixOf(m_category, base, std::move(formerPrefix)).release();
    m_pWork = text.release();
    m_type = PT_NOT_FOUND;
    // A volume may have changed any character.
    const bool mayBePattern = marks.wildcard || m_pVolume;
    m_type = mayBePattern && ktqtbase::isPattern(*m_pWork, m_separator)
                 ? PT_WILDCARD
                 : ktqtbase::typeOnDisk(*m_pWork, m_pRelPath);
    guard.finished();

    m_bQualified = qualifies || holds(*m_pWork, m_separator);
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
    const TextRange text = trimmed({s.data(), s.data() + s.size()}, isSpace);
    if (ktqtbase::isQuoted(text))
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
    const CRbUiVolumeDescriptor* volume = listedVolume({name.data(), name.data() + name.size()});
    return volume ? volume : NewVolDescriptor(name);
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
    second = secondCharacter(*s);
}

int GetPathCatType(wchar_t first, wchar_t second, wchar_t sep, path_category& cat,
                   CStdStr<wchar_t>* s, const CRbUiPathname* base)
{
    if (classify(first, second, sep, cat)) {
        raiseDriveLetter(*s);
        return 0;
    }
    return !holds(*s, kColon) && acceptsBase(cat, base) ? 0 : 1;
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
    if (cat == PC_RELATIVE)
        *out = prefixOf(cat, base ? *base : nullptr, nullptr).release();
    else if (cat == PC_ROOTED)
        *out = text ? new CStdStr<wchar_t>(*text) : new CStdStr<wchar_t>();
}

bool GetPathBuffer(CStdStr<wchar_t>**, bool, CStdStr<wchar_t>*, wchar_t,
                   const CRbUiVolumeDescriptor**)
{
    return true;
}
