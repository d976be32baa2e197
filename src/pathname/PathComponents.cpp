// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"

#include <cwchar>

void CRbUiPathname::GetBasename(CStdStr<wchar_t>& out) const
{
    if (m_type != PT_NONE && m_pWork)
        out.assign(*m_pWork, ktqtbase::lastComponent(*m_pWork, m_separator), m_pWork->npos);
}

void CRbUiPathname::GetFilename(CStdStr<wchar_t>& out) const
{
    if (!ktqtbase::isSingleName(m_type) || !m_pWork)
        return;
    const std::size_t start = ktqtbase::lastComponent(*m_pWork, m_separator);
    if (start == m_pWork->size())
        return;
    const std::size_t dot = ktqtbase::extensionDot(*m_pWork, start);
    out.assign(*m_pWork, start, dot == m_pWork->npos ? dot : dot - start);
}

void CRbUiPathname::GetExtension(CStdStr<wchar_t>& out) const
{
    if (m_type == PT_NONE || !m_pWork)
        return;
    const std::size_t start = ktqtbase::lastComponent(*m_pWork, m_separator);
    const std::size_t dot = ktqtbase::extensionDot(*m_pWork, start);
    if (dot != m_pWork->npos)
        out.assign(*m_pWork, dot + 1, m_pWork->npos);
}

wchar_t CRbUiPathname::GetLastCharacter(const CStdStr<wchar_t>& s)
{
    return s.empty() ? kEOS : s.back();
}

bool CRbUiPathname::GetFullPath(CStdStr<wchar_t>& out) const
{
    if (m_type == PT_NONE)
        return false;
    if (ktqtbase::isOwn(*this, out)) {
        CStdStr<wchar_t> path;
        GetFullPath(path);
        out.swap(path);
        return true;
    }
    out.clear();
    if (ktqtbase::isParsed(m_type) && m_category != PC_ROOTED && m_pRelPath) {
        out.reserve(m_pRelPath->size() + 1 + (m_pWork ? m_pWork->size() : 0));
        out.append(*m_pRelPath);
        if (GetLastCharacter(out) != m_separator)
            out.push_back(m_separator);
    }
    if (m_pWork)
        out.append(*m_pWork);
    return true;
}

bool CRbUiPathname::GetFullPath(wchar_t* out) const
{
    if (!out)
        return false;
    CStdStr<wchar_t> path;
    const bool parsed = GetFullPath(path);
    std::wcscpy(out, path.c_str());
    return parsed;
}

const wchar_t* CRbUiPathname::GetPathString() const
{
    return m_pWork ? m_pWork->c_str() : nullptr;
}

wchar_t CRbUiPathname::GetSeparator() const
{
    return m_separator;
}

bool CRbUiPathname::ParseAndOSFind(const wchar_t*)
{
    return true;
}
