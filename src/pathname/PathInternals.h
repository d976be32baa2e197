// SPDX-License-Identifier: MIT
//
// What the sources of the path family share.
#ifndef KTQTBASE_PATHNAME_PATHINTERNALS_H
#define KTQTBASE_PATHNAME_PATHINTERNALS_H

#include <KtQtBase/PathName.h>

#include <functional>
#include <memory>
#include <string_view>

namespace ktqtbase {

using OwnedText = std::unique_ptr<CStdStr<wchar_t>>;

inline bool holds(std::wstring_view text, wchar_t ch)
{
    return text.find(ch) != text.npos;
}

// Attributes of Windows. In the POSIX mode that GetFileAttributes gives, the same bits are the
// group's write permission and the others' execute permission.
constexpr unsigned int kDirectoryAttribute = 0x10;
constexpr unsigned int kReadOnlyAttribute = 0x01;

// The results of type int.
enum PathResult : int
{
    kDone = 0,
    kBadArgument = 1,
    kNotParsed = 2,
    kReachesIntoRoot = 3,
    kCannotBeDone = 4
};

// ---- Types -------------------------------------------------------------------------------------

// Never given by a parse. A host may set it for a name that it knows to exist.
constexpr path_type kKnownToExist = static_cast<path_type>(5);

// Whether a type is one that a parse gives, PT_NOT_FOUND to PT_DIRECTORY.
inline bool isParsed(path_type type)
{
    return type >= PT_NOT_FOUND && type <= PT_DIRECTORY;
}

// Whether a type names something, given by a parse or by a host.
inline bool isNamed(path_type type)
{
    return isParsed(type) || type == kKnownToExist;
}

// Whether a type names one thing and not a pattern.
inline bool isSingleName(path_type type)
{
    return isNamed(type) && type != PT_WILDCARD;
}

// Whether a type may be worked out again from the file system.
inline bool canBeLookedUp(path_type type)
{
    return isSingleName(type) && type != kKnownToExist;
}

// ---- Path objects ------------------------------------------------------------------------------

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

// Where the extension of the last component begins with its dot, or npos.
//   start    in: where the last component begins
inline std::size_t extensionDot(const CStdStr<wchar_t>& work, std::size_t start)
{
    const std::size_t dot = work.rfind(kPeriod);
    return dot != work.npos && dot >= start ? dot : work.npos;
}

// The length of the local name of a path object's volume, 0 without a volume.
inline std::size_t volumeNameLength(const CRbUiPathname& path)
{
    const CStdStr<wchar_t>* localName = path.m_pVolume ? path.m_pVolume->GetLocalName() : nullptr;
    return localName ? localName->size() : 0;
}

// Whether a string to be filled is one of a path object's own, which is read while it is filled.
inline bool isOwn(const CRbUiPathname& path, const CStdStr<wchar_t>& out)
{
    return &out == path.m_pWork || &out == path.m_pRelPath;
}

// Whether a text lies in a string's own characters, which an edit of the string moves or
// overwrites.
inline bool liesIn(const CStdStr<wchar_t>& s, const wchar_t* text)
{
    const std::less_equal<> notAfter;
    return notAfter(s.data(), text) && notAfter(text, s.data() + s.size());
}

} // namespace ktqtbase

#endif
