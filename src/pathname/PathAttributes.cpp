// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathTypeLookup.h"

void CRbUiPathname::GetAttributes(const CStdStr<wchar_t>* work, const CStdStr<wchar_t>* relPath,
                                  path_type* type)
{
    // Set before the last component is asked for, which an unparsed name does not have: the parse
    // hands in this object's own type.
    *type = PT_NOT_FOUND;
    if (m_type != PT_NONE && m_pWork && ktqtbase::isPattern(*m_pWork, m_separator))
        *type = PT_WILDCARD;
    else if (work)
        *type = ktqtbase::typeOnDisk(*work, relPath);
}

bool IsPathType(CStdStr<wchar_t> name, path_type* type)
{
    if (!ktqtbase::holdsWildcard(name))
        return false;
    *type = PT_WILDCARD;
    return true;
}

void GetAttByPath(const CStdStr<wchar_t>** work, const CStdStr<wchar_t>** relPath, path_type** type)
{
    **type = ktqtbase::typeOnDisk(**work, relPath ? *relPath : nullptr);
}
