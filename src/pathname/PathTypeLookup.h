// SPDX-License-Identifier: MIT
//
// What a name denotes.
#ifndef KTQTBASE_PATHNAME_PATHTYPELOOKUP_H
#define KTQTBASE_PATHNAME_PATHTYPELOOKUP_H

#include <KtQtBase/WideString.h>
#include <KtQtBase/pathname/PathTypes.h>

#include "string/TextConversion.h"
#include "system/FileMode.h"

namespace ktqtbase {

// Whether a text holds an asterisk or a question mark.
bool holdsWildcard(const CStdStr<wchar_t>& text);

// Whether the last component of a name is a pattern.
bool isPattern(const CStdStr<wchar_t>& work, wchar_t separator);

// Looks up whether GetFileAttributes is the library's own. A host may have put another before it.
bool findOwnGetFileAttributes();

inline bool isOwnGetFileAttributes()
{
    static const bool isOwn = findOwnGetFileAttributes();
    return isOwn;
}

// What GetFileAttributes answers for a name behind its prefix, which may be null.
unsigned int attributesByWideName(const CStdStr<wchar_t>& work, const CStdStr<wchar_t>* prefix);

// A short ASCII name as the system calls take it: what GetFileAttributes would make of the wide
// text, without that text.
class ShortPath
{
public:
    // Keeps room for one more character, a slash or the terminator. Result: false where the name
    // gets too long, or is not ASCII and so left to LC_CTYPE.
    bool append(const CStdStr<wchar_t>& text)
    {
        if (text.size() >= kRoom - m_length ||
            !narrowAscii(text.data(), text.size(), m_text + m_length))
            return false;
        m_length += text.size();
        return true;
    }

    bool appendFolder(const CStdStr<wchar_t>& text)
    {
        if (!append(text))
            return false;
        m_text[m_length++] = '/';
        return true;
    }

    const char* terminated()
    {
        m_text[m_length] = '\0';
        return m_text;
    }

private:
    static constexpr std::size_t kRoom = 512;

    std::size_t m_length = 0;
    char m_text[kRoom];
};

// The same as of attributesByWideName. Inline, since a processor has forgotten behind a system call
// where it returns to, so that each level of calls costs extra.
__attribute__((always_inline)) inline unsigned int attributesOf(const CStdStr<wchar_t>& work,
                                                                const CStdStr<wchar_t>* prefix)
{
    ShortPath path;
    if (isOwnGetFileAttributes() && (!prefix || path.appendFolder(*prefix)) && path.append(work))
        return modeOf(path.terminated());
    return attributesByWideName(work, prefix);
}

// What the file system has under a name behind its prefix, which may be null.
__attribute__((always_inline)) inline path_type typeOnDisk(const CStdStr<wchar_t>& work,
                                                           const CStdStr<wchar_t>* prefix)
{
    // The directory attribute of Windows; in a POSIX mode the same bit is the group's write
    // permission.
    constexpr unsigned int kDirectoryAttribute = 0x10;
    const unsigned int attributes = attributesOf(work, prefix);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return PT_NOT_FOUND;
    return attributes & kDirectoryAttribute ? PT_DIRECTORY : PT_FILE;
}

} // namespace ktqtbase

#endif
