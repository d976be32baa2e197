// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "string/CaseFolding.h"

bool CRbUiPathname::PathMatch(const CRbUiPathname* other) const
{
    if (!other)
        return false;
    if (other == this)
        return true;
    CStdStr<wchar_t> path;
    return m_pVolume == other->m_pVolume && other->GetFullPath(path) && PathMatch(path.c_str());
}

bool CRbUiPathname::PathMatch(const wchar_t* other) const
{
    CStdStr<wchar_t> path;
    if (!other || !GetFullPath(path))
        return false;
    CStdStr<wchar_t> copy(other);
    upperPathFirstChar(copy);
    const bool pathIsClosed = GetLastCharacter(path) == m_separator;
    const bool copyIsClosed = GetLastCharacter(copy) == m_separator;
    if (pathIsClosed && !copyIsClosed)
        copy.push_back(m_separator);
    else if (copyIsClosed && !pathIsClosed)
        path.push_back(m_separator);
    return ktqtbase::equalFolded(copy.c_str(), path.c_str());
}

void CRbUiPathname::GetFullUNCPath(CStdStr<wchar_t>&) const {}
