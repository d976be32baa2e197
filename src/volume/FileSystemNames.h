// SPDX-License-Identifier: MIT
//
// The names by which Windows knows its file systems.
#ifndef KTQTBASE_VOLUME_FILESYSTEMNAMES_H
#define KTQTBASE_VOLUME_FILESYSTEMNAMES_H

#include <KtQtBase/VolumeDescriptor.h>

namespace ktqtbase {

// What every volume's file system is called while nothing can be asked about volumes.
extern const wchar_t* const kUnknownFileSystem;

// Whether a file system may report a name: its own, for FS_NFS any name that holds "NFS".
bool isFileSystemNamed(FS_TYPE type, const wchar_t* name);

} // namespace ktqtbase

#endif
