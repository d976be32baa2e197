// SPDX-License-Identifier: MIT
#include "volume/FileSystemNames.h"

#include <cwchar>

const wchar_t* const ktqtbase::kUnknownFileSystem = L"nofilesystem";

bool ktqtbase::isFileSystemNamed(FS_TYPE type, const wchar_t* name)
{
    switch (type) {
    case FS_NTFS:
        return std::wcscmp(name, L"NTFS") == 0;
    case FS_FAT:
    case FS_VFAT:
        return std::wcscmp(name, L"FAT") == 0;
    case FS_HPFS:
        return std::wcscmp(name, L"HPFS") == 0;
    case FS_CDFS:
        return std::wcscmp(name, L"CDFS") == 0;
    case FS_NFS:
        return std::wcsstr(name, L"NFS") != nullptr;
    case FS_NOFS:
        break;
    }
    return false;
}
