// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"

#include <cwchar>

namespace {

constexpr int kDone = 0;
constexpr int kNotParsed = 2;
constexpr int kReachesIntoRoot = 3;
constexpr int kCannotBeCut = 4;

constexpr std::size_t kNowhere = std::wstring::npos;
constexpr std::size_t kDriveLength = 2;

bool endsWithSeparator(const CRbUiPathname& name)
{
    return !name.m_pWork->empty() && name.m_pWork->back() == name.m_separator;
}

int cutTo(CRbUiPathname& name, std::size_t length)
{
    name.m_pWork->resize(length);
    // What is left of a bare drive is its root.
    if (name.m_category == PC_DRIVE && length == kDriveLength)
        name.m_pWork->push_back(name.m_separator);
    name.m_type = PT_NOT_FOUND;
    return kDone;
}

bool isRoot(const CRbUiPathname& name)
{
    const std::size_t length = name.m_pWork->size();
    switch (name.m_category) {
    case PC_DRIVE:
        return length - 1 == kDriveLength;
    case PC_UNC:
        return length - 1 <= ktqtbase::volumeNameLength(name);
    case PC_ROOTED:
        return length == 1;
    default:
        return false;
    }
}

// Whether the last component of a name that is not on a drive can be cut off at a separator.
int canCutAt(const CRbUiPathname& name, std::size_t separator)
{
    if (separator == kNowhere)
        return name.m_category == PC_RELATIVE ? kReachesIntoRoot : kCannotBeCut;
    if (name.m_category == PC_UNC && separator < ktqtbase::volumeNameLength(name))
        return kReachesIntoRoot;
    return kDone;
}

} // namespace

int CRbUiPathname::TrimSlash()
{
    if (!ktqtbase::isParsed(*this))
        return kNotParsed;
    if (!endsWithSeparator(*this))
        return kDone;
    if (!ktqtbase::isKnown(m_category))
        return kCannotBeCut;
    if (isRoot(*this))
        return kReachesIntoRoot;
    m_pWork->pop_back();
    m_type = PT_NOT_FOUND;
    return kDone;
}

int CRbUiPathname::Trim()
{
    if (!ktqtbase::isParsed(*this))
        return kNotParsed;
    if (endsWithSeparator(*this))
        return kDone;
    std::size_t position = m_pWork->rfind(m_separator);
    if (!ktqtbase::isKnown(m_category))
        return kCannotBeCut;
    if (m_category == PC_DRIVE) {
        if (position == kNowhere)
            position = m_pWork->find(kColon);
        return position == kNowhere ? kCannotBeCut : cutTo(*this, position + 1);
    }
    const int refused = canCutAt(*this, position);
    return refused ? refused : cutTo(*this, position + 1);
}

int CRbUiPathname::TrimComponent()
{
    if (!ktqtbase::isParsed(*this))
        return kNotParsed;
    std::size_t position = m_pWork->rfind(m_separator);
    if (!ktqtbase::isKnown(m_category))
        return kCannotBeCut;
    if (m_category == PC_DRIVE)
        return cutTo(*this, position == kNowhere ? m_pWork->find(kColon) + 1 : position);
    const int refused = canCutAt(*this, position);
    if (refused)
        return refused;
    const bool leavesNothing = m_category == PC_ROOTED && position == 0;
    return cutTo(*this, leavesNothing ? 1 : position);
}

int CRbUiPathname::Append(const wchar_t* text)
{
    if (!ktqtbase::isParsed(*this))
        return kNotParsed;
    if (text && ktqtbase::liesIn(*m_pWork, text))
        m_pWork->append(CStdStr<wchar_t>(text));
    else if (text)
        m_pWork->append(text);
    m_type = PT_NOT_FOUND;
    return kDone;
}

int CRbUiPathname::AppendComponent(const wchar_t* text)
{
    if (!ktqtbase::isParsed(*this))
        return kNotParsed;
    if (text && ktqtbase::liesIn(*m_pWork, text))
        return AppendComponent(CStdStr<wchar_t>(text).c_str());
    // All the room first, so that a name is never left with the separator alone.
    const std::size_t length = text ? std::wcslen(text) : 0;
    m_pWork->reserve(m_pWork->size() + 1 + length);
    if (!endsWithSeparator(*this))
        m_pWork->push_back(m_separator);
    if (text)
        m_pWork->append(text, length);
    m_type = PT_NOT_FOUND;
    return kDone;
}
