// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

#include "string/CaseFolding.h"

bool CRbUiVolumeDescriptor::VolMatch(const wchar_t* a, const CStdStr<wchar_t>* b) const
{
    if (!a || !b)
        return false;
    if (IsCaseSensitive())
        return *b == a;
    return ktqtbase::equalFolded(a, b->c_str());
}

bool CRbUiVolumeDescriptor::VolMatch(const CStdStr<wchar_t>* a, const CStdStr<wchar_t>* b) const
{
    if (!b)
        return false;
    if (IsCaseSensitive())
        return *b == *a;
    return ktqtbase::equalFolded(a->c_str(), b->c_str());
}
