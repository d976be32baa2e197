// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Files.h>

#include "pathname/ParseSteps.h"
#include "pathname/PathType.h"
#include "string/TextRoom.h"

#include <QtCore/QScopeGuard>

#include <utility>

namespace {

using ktqtbase::kBadArgument;
using ktqtbase::kCannotBeDone;
using ktqtbase::kDone;
using ktqtbase::kNotParsed;
using ktqtbase::OwnedText;
using Text = CStdStr<wchar_t>;

// The work string of a name given, in the former one's storage if there is one. To fill a string
// costs less than to free it and to get another.
OwnedText workString(std::wstring_view given, OwnedText former)
{
    const std::wstring_view bare = ktqtbase::bareName(given);
    OwnedText work = former ? std::move(former) : std::make_unique<Text>();
    // A new string has room for the separator that AppendSlash may add.
    if (work->empty())
        work->reserve(bare.size() + 1);
    work->assign(bare);
    return work;
}

// Puts the separators into a work string and sets the category. Result: whether it is a good name.
bool normaliseName(CRbUiPathname& path, Text& work, const CRbUiPathname* base)
{
    if (work.empty() || ktqtbase::holdsSeveralColons(work))
        return false;
    ktqtbase::putSeparators(work, path.m_separator);
    path.m_category = PC_RELATIVE;
    const bool isGood = ktqtbase::classifyName(work.front(), ktqtbase::secondCharacter(work),
                                               path.m_separator, path.m_category, work, base);
    return isGood && path.m_category != PC_UNC;
}

// The first volume of the list with a local name, or null.
const CRbUiVolumeDescriptor* listedVolume(std::wstring_view name)
{
    // By index, since a host's GetLocalName may append to the list.
    // NOLINTNEXTLINE(modernize-loop-convert)
    for (int i = 0; i < volumeList.size(); ++i) {
        const CRbUiVolumeDescriptor* volume = volumeList.at(i);
        const Text* localName = volume ? volume->GetLocalName() : nullptr;
        if (localName && *localName == name)
            return volume;
    }
    return nullptr;
}

// A drive that is not in the list has no volume, since no descriptor is ever made for it.
const CRbUiVolumeDescriptor* volumeOf(path_category category, const Text& work,
                                      const CRbUiPathname* base)
{
    switch (category) {
    case PC_DRIVE:
        return listedVolume(std::wstring_view(work).substr(0, 2));
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
        return kBadArgument;
    m_pVolume = nullptr;
    m_type = PT_NONE;
    // The name given is read before the former strings are filled, in which it may lie.
    const std::wstring_view given(name);
    const bool isQualified = m_bQualified || ktqtbase::holds(given, kColon);
    OwnedText formerPrefix(std::exchange(m_pRelPath, nullptr));
    OwnedText work = workString(given, OwnedText(std::exchange(m_pWork, nullptr)));
    if (!normaliseName(*this, *work, base))
        return kBadArgument;

    // A host's volume may throw, and must not leave half of a name.
    auto emptied = qScopeGuard([this] { Empty(); });
    m_pVolume = volumeOf(m_category, *work, base);
    if (m_pVolume)
        m_pVolume->VolCase(*work);
    m_pRelPath = ktqtbase::prefixOf(m_category, L"", base, std::move(formerPrefix)).release();
    m_pWork = work.release();
    ktqtbase::workOutType(*this, m_pWork, m_pRelPath, m_type);
    emptied.dismiss();
    m_bQualified = isQualified || ktqtbase::holds(*m_pWork, m_separator);
    return kDone;
}

int CRbUiPathname::Parse(const wchar_t* name, bool flag)
{
    if (!name)
        return kBadArgument;
    CRbUiPathname base;
    wchar_t folder[ktqtbase::kTextRoom];
    if (GetCurrentDirectoryW(ktqtbase::kTextRoom, folder) != 0) {
        const int result = base.ParseRelative(folder, nullptr, flag);
        base.AppendSlash();
        if (result != kDone)
            return kCannotBeDone;
    }
    return ParseRelative(name, &base, flag);
}

int CRbUiPathname::AppendSlash()
{
    if (!ktqtbase::isParsed(*this))
        return kNotParsed;
    const wchar_t last = GetLastCharacter(*m_pWork);
    if (!m_pWork->empty() && last != kColon && last != m_separator)
        m_pWork->push_back(m_separator);
    return kDone;
}

void CRbUiPathname::Unquote(CStdStr<wchar_t>& s)
{
    const std::wstring_view inner = ktqtbase::unquoted(s, ktqtbase::WhiteSpace());
    if (inner.size() < s.size())
        s.assign(inner);
}

void CRbUiPathname::StripSpaces(CStdStr<wchar_t>& s)
{
    s.TrimLeft().TrimRight();
}

const CRbUiVolumeDescriptor* CRbUiPathname::FindVolumeDescriptor(const CStdStr<wchar_t>& name) const
{
    if (name.empty())
        return nullptr;
    const CRbUiVolumeDescriptor* volume = listedVolume(name);
    return volume ? volume : NewVolDescriptor(name);
}

const CRbUiVolumeDescriptor* CRbUiPathname::NewVolDescriptor(const CStdStr<wchar_t>&) const
{
    return nullptr;
}
