// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_HOSTVOLUME_H
#define NAMEINFO_HOSTVOLUME_H

#include <KtQtBase/VolumeDescriptor.h>

// A drive of the host. Its names may be anything that the file system takes.
class HostVolume : public CRbUiVolumeDescriptor
{
public:
    explicit HostVolume(const wchar_t* drive);

    bool ValidateFilename(const CStdStr<wchar_t>* name, bool allowWildcards) const override;
    bool ValidateSegment(const CStdStr<wchar_t>* segment, bool allowWildcards) const override;
};

// Tells the library which drives there are: C: and D:.
void addHostVolumes();

#endif
