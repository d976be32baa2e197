// SPDX-License-Identifier: MIT
//
// The process-wide objects of the library, in the order of their creation at load. They are
// destroyed in the reverse order at unload: first the descriptors, then the list that held them,
// then the prefix, which points to a descriptor and never follows that pointer when it dies.
#include <KtQtBase/PathName.h>
#include <KtQtBase/VolumeDescriptor.h>

CRnUiPathname g_CurrentDirPrefix;

QList<CRbUiVolumeDescriptor*> volumeList;

static CDelVolumeList volumelistdel;

CDelVolumeList::~CDelVolumeList()
{
    // By index, since a host's descriptor may look at the list while it dies.
    for (int i = 0; i < volumeList.size(); ++i)
        delete volumeList.at(i);
}
