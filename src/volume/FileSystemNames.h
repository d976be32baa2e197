// SPDX-License-Identifier: MIT
//
// Windows' names of its file systems.
#ifndef KTQTBASE_VOLUME_FILESYSTEMNAMES_H
#define KTQTBASE_VOLUME_FILESYSTEMNAMES_H

#include <KtQtBase/VolumeDescriptor.h>

namespace ktqtbase {

// The file system's name of every volume, since volumes cannot be asked.
extern const wchar_t* const kUnknownFileSystem;

// Whether a file system may have a name: its own one, or for FS_NFS any name that holds "NFS".
bool isFileSystemNamed(FS_TYPE type, const wchar_t* name);

} // namespace ktqtbase

#endif
