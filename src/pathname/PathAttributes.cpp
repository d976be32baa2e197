// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include "pathname/PathInternals.h"

namespace {

// The directory attribute of Windows; in a POSIX mode the same bit is the group's write permission.
constexpr unsigned int kDirectoryAttribute = 0x10;

bool holdsWildcard(const CStdStr<wchar_t>& text, std::size_t from)
{
    return text.find(kAsterisk, from) != text.npos || text.find(kQuestionmark, from) != text.npos;
}

path_type typeFromAttributes(unsigned int attributes)
{
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return PT_NOT_FOUND;
    return attributes & kDirectoryAttribute ? PT_DIRECTORY : PT_FILE;
}

} // namespace

void CRbUiPathname::GetAttributes(const CStdStr<wchar_t>* work, const CStdStr<wchar_t>* relPath,
                                  path_type* type)
{
    // Set before the last component is asked for, which an unparsed name does not have: the parse
    // hands in this object's own type.
    *type = PT_NOT_FOUND;
    const bool hasBase = m_type != PT_NONE && m_pWork;
    if (hasBase && holdsWildcard(*m_pWork, ktqtbase::lastComponent(*m_pWork, m_separator)))
        *type = PT_WILDCARD;
    else if (work)
        GetAttByPath(&work, &relPath, &type);
}

bool IsPathType(CStdStr<wchar_t> name, path_type* type)
{
    if (!holdsWildcard(name, 0))
        return false;
    *type = PT_WILDCARD;
    return true;
}

void GetAttByPath(const CStdStr<wchar_t>** work, const CStdStr<wchar_t>** relPath, path_type** type)
{
    if (!relPath || !*relPath) {
        **type = typeFromAttributes(GetFileAttributes((*work)->c_str()));
        return;
    }
    CStdStr<wchar_t> text;
    text.reserve((*relPath)->size() + 1 + (*work)->size());
    text.append(**relPath).append(1, kSlash).append(**work);
    **type = typeFromAttributes(GetFileAttributes(text.c_str()));
}
