// SPDX-License-Identifier: MIT
#include "pathname/PathType.h"

#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>

#include "string/TextRoom.h"

#include <algorithm>

namespace {

// The attributes of a prefix, a slash and a work string. The slash is added also if the prefix ends
// with one, or is the empty prefix of a rooted name.
unsigned int attributesInPrefix(const CStdStr<wchar_t>& prefix, const CStdStr<wchar_t>& work)
{
    ktqtbase::TextRoom<wchar_t> room;
    wchar_t* const text = room.of(prefix.size() + 1 + work.size() + 1);
    wchar_t* end = std::copy(prefix.begin(), prefix.end(), text);
    *end++ = kSlash;
    end = std::copy(work.begin(), work.end(), end);
    *end = kEOS;
    return GetFileAttributes(text);
}

} // namespace

path_type ktqtbase::typeOnDisk(const CStdStr<wchar_t>& work, const CStdStr<wchar_t>* prefix)
{
    const unsigned int attributes =
        prefix ? attributesInPrefix(*prefix, work) : GetFileAttributes(work.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return PT_NOT_FOUND;
    return attributes & ktqtbase::kDirectoryAttribute ? PT_DIRECTORY : PT_FILE;
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
