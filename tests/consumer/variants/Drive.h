// SPDX-License-Identifier: MIT
//
// A kind of volume of this host.
#pragma once

#include <KtQtBase/VolumeDescriptor.h>

class Drive : public CRbUiVolumeDescriptor
{
public:
    explicit Drive(const CStdStr<wchar_t>& localName);
    ~Drive() override;

    bool ValidateFilename(const CStdStr<wchar_t>* name, bool allowWildcards) const override;
    bool ValidateSegment(const CStdStr<wchar_t>* segment, bool allowWildcards) const override;
};
