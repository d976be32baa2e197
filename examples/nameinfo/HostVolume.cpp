// SPDX-License-Identifier: MIT
#include "HostVolume.h"

HostVolume::HostVolume(const wchar_t* drive) : CRbUiVolumeDescriptor(CStdStr<wchar_t>(drive))
{
    m_fsType = FS_NTFS;
}

bool HostVolume::ValidateFilename(const CStdStr<wchar_t>*, bool) const
{
    return true;
}

bool HostVolume::ValidateSegment(const CStdStr<wchar_t>*, bool) const
{
    return true;
}

void addHostVolumes()
{
    // The library owns its list's descriptors and deletes them when it is unloaded.
    for (const wchar_t* drive : {L"C:", L"D:"})
        volumeList.append(new HostVolume(drive));
}
