// SPDX-License-Identifier: MIT
//
// The process-wide objects of the library, in the order in which they are made at load. They are
// destroyed in the reverse order at unload: first the descriptors, then their list, then the
// current folder, which may point to a descriptor but does not use that pointer when it dies.
#include <KtQtBase/PathName.h>
#include <KtQtBase/VolumeDescriptor.h>

CRnUiPathname g_CurrentDirPrefix;

QList<CRbUiVolumeDescriptor*> volumeList;

static CDelVolumeList volumelistdel;

CDelVolumeList::~CDelVolumeList()
{
    // By index, since a host's descriptor may read the list while it dies.
    // NOLINTNEXTLINE(modernize-loop-convert)
    for (int i = 0; i < volumeList.size(); ++i)
        delete volumeList.at(i);
}
