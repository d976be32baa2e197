// SPDX-License-Identifier: MIT
//
// What a name denotes. The functions are inline for the parse: behind a system call the processor
// has forgotten where the calls before it return to, so that each level of them costs extra.
#ifndef KTQTBASE_PATHNAME_PATHTYPELOOKUP_H
#define KTQTBASE_PATHNAME_PATHTYPELOOKUP_H

#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include "pathname/PathInternals.h"

#include <algorithm>
#include <cwchar>
#include <memory>

namespace ktqtbase {

// The directory attribute of Windows; in a POSIX mode the same bit is the group's write permission.
inline constexpr unsigned int kDirectoryAttribute = 0x10;

inline bool holdsWildcard(const wchar_t* text, std::size_t length)
{
    return std::wmemchr(text, kAsterisk, length) || std::wmemchr(text, kQuestionmark, length);
}

inline bool holdsWildcard(const CStdStr<wchar_t>& text)
{
    return holdsWildcard(text.data(), text.size());
}

// Whether the last component of a name is a pattern. Most names hold no wildcard anywhere, so that
// their last component need not be found.
inline bool isPattern(const CStdStr<wchar_t>& work, wchar_t separator)
{
    if (!holdsWildcard(work))
        return false;
    const std::size_t last = lastComponent(work, separator);
    return holdsWildcard(work.data() + last, work.size() - last);
}

// A prefix, a slash and a name, on the stack where they are short: a string's storage costs as much
// there as the rest of the joining.
class JoinedPath
{
public:
    JoinedPath(const CStdStr<wchar_t>& prefix, const CStdStr<wchar_t>& work)
    {
        const std::size_t size = prefix.size() + 1 + work.size() + 1;
        if (size > kShortRoom)
            m_long = std::make_unique<wchar_t[]>(size);
        m_text = m_long ? m_long.get() : m_short;
        wchar_t* const end = std::copy(prefix.begin(), prefix.end(), m_text);
        *end = kSlash;
        std::copy_n(work.c_str(), work.size() + 1, end + 1);
    }
    JoinedPath(const JoinedPath&) = delete;
    JoinedPath& operator=(const JoinedPath&) = delete;

    const wchar_t* c_str() const { return m_text; }

private:
    static constexpr std::size_t kShortRoom = 512;

    wchar_t* m_text;
    std::unique_ptr<wchar_t[]> m_long;
    wchar_t m_short[kShortRoom];
};

inline path_type typeFromAttributes(unsigned int attributes)
{
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return PT_NOT_FOUND;
    return attributes & kDirectoryAttribute ? PT_DIRECTORY : PT_FILE;
}

// What the file system has under a name behind its prefix, which may be null.
__attribute__((always_inline)) inline path_type typeOnDisk(const CStdStr<wchar_t>& work,
                                                           const CStdStr<wchar_t>* prefix)
{
    if (!prefix)
        return typeFromAttributes(GetFileAttributes(work.c_str()));
    const JoinedPath path(*prefix, work);
    return typeFromAttributes(GetFileAttributes(path.c_str()));
}

} // namespace ktqtbase

#endif
