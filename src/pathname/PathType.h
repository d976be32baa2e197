// SPDX-License-Identifier: MIT
//
// What a name denotes: a pattern, or what the file system has under it.
#ifndef KTQTBASE_PATHNAME_PATHTYPE_H
#define KTQTBASE_PATHNAME_PATHTYPE_H

#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include "pathname/PathInternals.h"

#include <string_view>

namespace ktqtbase {

// Whether a text holds an asterisk or a question mark.
inline bool holdsWildcard(std::wstring_view text)
{
    return holds(text, kAsterisk) || holds(text, kQuestionmark);
}

// The attributes of a work string in its prefix. A slash is put between them also if the prefix ends
// with one, or is the empty prefix of a rooted name.
unsigned int attributesInPrefix(const CStdStr<wchar_t>& work, const CStdStr<wchar_t>& prefix);

// What the file system has under a work string in its prefix.
//   prefix    in: may be null
inline path_type typeOnDisk(const CStdStr<wchar_t>& work, const CStdStr<wchar_t>* prefix)
{
    const unsigned int attributes =
        prefix ? attributesInPrefix(work, *prefix) : GetFileAttributes(work.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return PT_NOT_FOUND;
    return (attributes & kDirectoryAttribute) ? PT_DIRECTORY : PT_FILE;
}

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
