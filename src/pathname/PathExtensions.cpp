// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"
#include "string/CaseFolding.h"

#include <cwchar>

using ktqtbase::kBadArgument;
using ktqtbase::kDone;
using ktqtbase::kNotParsed;

namespace {

constexpr wchar_t kItemSeparator = L';';

// The length of a list's first item.
std::size_t itemLength(const wchar_t* list)
{
    const wchar_t* end = std::wcschr(list, kItemSeparator);
    return end ? static_cast<std::size_t>(end - list) : std::wcslen(list);
}

// Appends a dot where one is asked for and an extension, or nothing at all.
void appendExtension(CStdStr<wchar_t>& work, bool withDot, const wchar_t* extension)
{
    const std::size_t length = std::wcslen(extension);
    work.reserve(work.size() + 1 + length);
    if (withDot)
        work.push_back(kPeriod);
    work.append(extension, length);
}

} // namespace

bool CRbUiPathname::VerifyExtension(const wchar_t* list) const
{
    CStdStr<wchar_t> extension;
    GetExtension(extension);
    const bool listIsEmpty = !list || !*list;
    if (listIsEmpty || extension.empty())
        return listIsEmpty && extension.empty();
    for (;;) {
        const std::size_t length = itemLength(list);
        if (ktqtbase::equalFolded(list, length, extension.c_str()))
            return true;
        if (list[length] != kItemSeparator)
            return false;
        list += length + 1;
    }
}

void CRbUiPathname::GetFirstExtInList(const wchar_t* list, CStdStr<wchar_t>& out) const
{
    if (list)
        out.assign(list, itemLength(list));
    else
        out.clear();
}

int CRbUiPathname::ReplaceExtensionAlways(const wchar_t* ext)
{
    if (!ktqtbase::isParsed(*this))
        return kNotParsed;
    if (!ext)
        return kBadArgument;
    if (ktqtbase::liesIn(*m_pWork, ext))
        return ReplaceExtensionAlways(CStdStr<wchar_t>(ext).c_str());
    // The room first, so that a name never loses its extension without getting the other.
    m_pWork->reserve(m_pWork->size() + 1 + std::wcslen(ext));
    GetPathStrNoExt(&m_pWork, m_separator);
    if (*ext)
        appendExtension(*m_pWork, *ext != kPeriod, ext);
    m_type = PT_NOT_FOUND;
    return kDone;
}

int CRbUiPathname::ReplaceExtensionIfNoMatch(const wchar_t* list)
{
    if (VerifyExtension(list))
        return kDone;
    CStdStr<wchar_t> first;
    GetFirstExtInList(list, first);
    return ReplaceExtensionAlways(first.c_str());
}

int CRbUiPathname::AddExtensionAlways(const wchar_t* ext)
{
    if (!ext)
        return kBadArgument;
    if (!ktqtbase::isParsed(*this))
        return kNotParsed;
    if (ktqtbase::liesIn(*m_pWork, ext))
        return AddExtensionAlways(CStdStr<wchar_t>(ext).c_str());
    if (*ext)
        appendExtension(*m_pWork, true, ext);
    m_type = PT_NOT_FOUND;
    return kDone;
}

int CRbUiPathname::AddExtensionIfNoMatch(const wchar_t* list)
{
    if (VerifyExtension(list))
        return kDone;
    CStdStr<wchar_t> first;
    GetFirstExtInList(list, first);
    return AddExtensionAlways(first.c_str());
}

void CRbUiPathname::RemoveExtensionIfMatch(const wchar_t* list)
{
    if (VerifyExtension(list))
        RemoveExtensionAlways();
}

void CRbUiPathname::RemoveExtensionAlways()
{
    if (!ktqtbase::isParsed(*this))
        return;
    GetPathStrNoExt(&m_pWork, m_separator);
    m_type = PT_NOT_FOUND;
}
