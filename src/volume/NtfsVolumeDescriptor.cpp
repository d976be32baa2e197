// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

#include "string/CaseFolding.h"

#include <KtOsBase/KtOsBase.h>

namespace {

bool isLongerThan(const CStdStr<wchar_t>& text, int limit)
{
    return static_cast<int>(text.size()) > limit;
}

// Whether a text holds none of a set's characters, and no control character, up to its terminator.
bool holdsNoneOf(const CRbUiVolumeDescriptor& volume, const CStdStr<wchar_t>& text,
                 const wchar_t* forbidden)
{
    const CStdStr<wchar_t> set(forbidden);
    for (const wchar_t* p = text.c_str(); _wcsnextc(p) != 0; p = _wcsinc(p)) {
        const unsigned int ch = _wcsnextc(p);
        if (volume.Find(set, static_cast<wchar_t>(ch)) != 0xFFFFFFFFu ||
            volume.IsControl(static_cast<int>(ch)))
            return false;
    }
    return true;
}

} // namespace

CRbUiNTFSVolumeDescriptor::CRbUiNTFSVolumeDescriptor(const CStdStr<wchar_t>& localName)
    : CRbUiVolumeDescriptor(localName)
{
    m_fsType = FS_NTFS;
}

CRbUiNTFSVolumeDescriptor::~CRbUiNTFSVolumeDescriptor() = default;

bool CRbUiNTFSVolumeDescriptor::ValidateFilename(const CStdStr<wchar_t>* name,
                                                 bool allowWildcards) const
{
    if (isLongerThan(*name, m_maxPathLen))
        return false;
    if (!ValidateVolChar(name, static_cast<int>(_wcsnextc(name->c_str()))))
        return false;
    // Two backslashes at the start belong to the name of a share.
    if (name->find(m_pUncPrefix, 1) != name->npos)
        return false;
    return holdsNoneOf(*this, *name, allowWildcards ? L"<>|/\"" : L"*<>?|/\"");
}

bool CRbUiNTFSVolumeDescriptor::ValidateSegment(const CStdStr<wchar_t>* segment,
                                                bool allowWildcards) const
{
    if (isLongerThan(*segment, m_maxComponentLen))
        return false;
    return holdsNoneOf(*this, *segment, allowWildcards ? L":<>/\\|\"" : L"*:<>?/\\|\"");
}

bool ValidateVolChar(const CStdStr<wchar_t>* name, int ch)
{
    const std::size_t colon = name ? name->rfind(kColon) : std::wstring::npos;
    if (colon == std::wstring::npos)
        return true;
    return colon == 1 && ktqtbase::isLetter(static_cast<wchar_t>(ch));
}
