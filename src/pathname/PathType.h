// SPDX-License-Identifier: MIT
//
// What a name denotes: a pattern, or what the file system has under it.
#ifndef KTQTBASE_PATHNAME_PATHTYPE_H
#define KTQTBASE_PATHNAME_PATHTYPE_H

#include "pathname/PathInternals.h"

#include <string_view>

namespace ktqtbase {

// Whether a text holds an asterisk or a question mark.
inline bool holdsWildcard(std::wstring_view text)
{
    return text.find(kAsterisk) != text.npos || text.find(kQuestionmark) != text.npos;
}

// What the file system has under a work string in its prefix.
//   prefix    in: may be null
path_type typeOnDisk(const CStdStr<wchar_t>& work, const CStdStr<wchar_t>* prefix);

// Whether a path object holds a pattern: a wildcard in its last component.
inline bool isPattern(const CRbUiPathname& path)
{
    if (path.m_type == PT_NONE || !path.m_pWork)
        return false;
    // Few names hold a wildcard anywhere, so the last component is seldom looked for.
    const std::wstring_view work = *path.m_pWork;
    return holdsWildcard(work) &&
           holdsWildcard(work.substr(lastComponent(*path.m_pWork, path.m_separator)));
}

// Works out a type as CRbUiPathname::GetAttributes does.
inline void workOutType(const CRbUiPathname& path, const CStdStr<wchar_t>* work,
                        const CStdStr<wchar_t>* prefix, path_type& type)
{
    // Set first: it may be the path object's own type, and an object of type PT_NONE holds no
    // pattern.
    type = PT_NOT_FOUND;
    if (isPattern(path))
        type = PT_WILDCARD;
    else if (work)
        type = typeOnDisk(*work, prefix);
}

} // namespace ktqtbase

#endif
