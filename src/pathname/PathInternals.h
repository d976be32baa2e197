// SPDX-License-Identifier: MIT
//
// What the sources of the path family share.
#ifndef KTQTBASE_PATHNAME_PATHINTERNALS_H
#define KTQTBASE_PATHNAME_PATHINTERNALS_H

#include <KtQtBase/PathName.h>

#include "pathname/PathTypes.h"

#include <functional>

namespace ktqtbase {

// The results of type int.
enum PathResult : int
{
    kDone = 0,
    kBadArgument = 1,
    kNotParsed = 2,
    kReachesIntoRoot = 3,
    kCannotBeDone = 4
};

// Whether a path object holds a name that can be edited.
inline bool isParsed(const CRbUiPathname& path)
{
    return isParsed(path.m_type) && path.m_pWork;
}

// Whether a category is one of the four; a host may have stored another.
inline bool isKnown(path_category category)
{
    return static_cast<unsigned int>(category) <= PC_RELATIVE;
}

// Where the last component of a work string begins.
inline std::size_t lastComponent(const CStdStr<wchar_t>& work, wchar_t separator)
{
    std::size_t position = work.rfind(separator);
    if (position == work.npos)
        position = work.rfind(kColon);
    return position + 1;
}

// The length of the local name of a path object's volume, 0 without a volume.
inline std::size_t volumeNameLength(const CRbUiPathname& path)
{
    const CStdStr<wchar_t>* localName = path.m_pVolume ? path.m_pVolume->GetLocalName() : nullptr;
    return localName ? localName->size() : 0;
}

// Whether a text lies in a string's own characters, which an edit of the string moves or
// overwrites.
inline bool liesIn(const CStdStr<wchar_t>& s, const wchar_t* text)
{
    const std::less_equal<const wchar_t*> notAfter;
    return notAfter(s.data(), text) && notAfter(text, s.data() + s.size());
}

} // namespace ktqtbase

#endif
