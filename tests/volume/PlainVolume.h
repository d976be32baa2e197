// SPDX-License-Identifier: MIT
//
// A descriptor that adds nothing to the base class but the two validations it must have.
#ifndef KTQTBASE_TESTS_VOLUME_PLAINVOLUME_H
#define KTQTBASE_TESTS_VOLUME_PLAINVOLUME_H

#include <KtQtBase/VolumeDescriptor.h>

class PlainVolume : public CRbUiVolumeDescriptor
{
public:
    PlainVolume() {}
    explicit PlainVolume(const CStdStr<wchar_t>& name) : CRbUiVolumeDescriptor(name) {}

    bool ValidateFilename(const CStdStr<wchar_t>*, bool) const override { return true; }
    bool ValidateSegment(const CStdStr<wchar_t>*, bool) const override { return true; }
};

#endif
