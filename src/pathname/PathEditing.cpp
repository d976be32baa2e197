// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"

#include <algorithm>
#include <cwchar>

using ktqtbase::kCannotBeDone;
using ktqtbase::kDone;
using ktqtbase::kNotParsed;
using ktqtbase::kReachesIntoRoot;

namespace {

constexpr std::size_t kNowhere = std::wstring::npos;
constexpr std::size_t kDriveLength = 2;

bool endsWithSeparator(const CRbUiPathname& path)
{
    return !path.m_pWork->empty() && path.m_pWork->back() == path.m_separator;
}

int cutTo(CRbUiPathname& path, std::size_t length)
{
    path.m_pWork->resize(length);
    // What is left of a bare drive is its root.
    if (path.m_category == PC_DRIVE && length == kDriveLength)
        path.m_pWork->push_back(path.m_separator);
    path.m_type = PT_NOT_FOUND;
    return kDone;
}

bool isRoot(const CRbUiPathname& path)
{
    const std::size_t length = path.m_pWork->size();
    switch (path.m_category) {
    case PC_DRIVE:
        return length - 1 == kDriveLength;
    case PC_UNC:
        return length - 1 <= ktqtbase::volumeNameLength(path);
    case PC_ROOTED:
        return length == 1;
    default:
        return false;
    }
}

// The result with which a cut at a separator is refused, or kDone; not for drives.
int refusalOfCut(const CRbUiPathname& path, std::size_t separator)
{
    if (separator == kNowhere)
        return path.m_category == PC_RELATIVE ? kReachesIntoRoot : kCannotBeDone;
    if (path.m_category == PC_UNC && separator < ktqtbase::volumeNameLength(path))
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
        return kCannotBeDone;
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
        return kCannotBeDone;
    if (m_category == PC_DRIVE) {
        if (position == kNowhere)
            position = m_pWork->find(kColon);
        return position == kNowhere ? kCannotBeDone : cutTo(*this, position + 1);
    }
    const int refused = refusalOfCut(*this, position);
    return refused ? refused : cutTo(*this, position + 1);
}

int CRbUiPathname::TrimComponent()
{
    if (!ktqtbase::isParsed(*this))
        return kNotParsed;
    std::size_t position = m_pWork->rfind(m_separator);
    if (!ktqtbase::isKnown(m_category))
        return kCannotBeDone;
    if (m_category == PC_DRIVE)
        return cutTo(*this, position == kNowhere ? m_pWork->find(kColon) + 1 : position);
    const int refused = refusalOfCut(*this, position);
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

void CRbUiPathname::RemoveSpaces()
{
    if (!m_pWork || *m_pWork == L"." || *m_pWork == L"..")
        return;
    const std::size_t start = ktqtbase::lastComponent(*m_pWork, m_separator);
    const std::size_t end = std::min(ktqtbase::extensionDot(*m_pWork, start), m_pWork->size());
    CStdStr<wchar_t> stem(*m_pWork, start, end - start);
    stem.TrimLeft().TrimRight();
    m_pWork->replace(start, end - start, stem);
}
