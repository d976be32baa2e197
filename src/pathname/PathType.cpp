// SPDX-License-Identifier: MIT
#include "pathname/PathType.h"

#include "string/TextRoom.h"

#include <algorithm>

unsigned int ktqtbase::attributesInPrefix(const CStdStr<wchar_t>& work,
                                          const CStdStr<wchar_t>& prefix)
{
    TextRoom<wchar_t> room;
    wchar_t* const text = room.of(prefix.size() + 1 + work.size() + 1);
    wchar_t* end = std::copy(prefix.begin(), prefix.end(), text);
    *end++ = kSlash;
    end = std::copy(work.begin(), work.end(), end);
    *end = kEOS;
    return GetFileAttributes(text);
}

void CRbUiPathname::GetAttributes(const CStdStr<wchar_t>* work, const CStdStr<wchar_t>* relPath,
                                  path_type* type)
{
    ktqtbase::workOutType(*this, work, relPath, *type);
}

bool CRbUiPathname::Exists()
{
    if (!ktqtbase::canBeLookedUp(m_type))
        return m_type == ktqtbase::kKnownToExist;
    // Not into m_type at once, which would stay at not found where an allocation fails.
    path_type type = m_type;
    GetAttributes(m_pWork, m_pRelPath, &type);
    m_type = type;
    return type != PT_NOT_FOUND;
}
