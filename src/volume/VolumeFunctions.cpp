// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

#include "volume/FileSystemNames.h"

#include <cwchar>

namespace {

constexpr unsigned int kLongestFatComponent = 12;

const wchar_t* label(FS_TYPE type)
{
    switch (type) {
    case FS_NOFS:
        return L"NOFS\n";
    case FS_NTFS:
        return L"NTFS\n";
    case FS_FAT:
        return L"FAT\n";
    case FS_VFAT:
        return L"VFAT\n";
    case FS_HPFS:
        return L"HPFS\n";
    case FS_CDFS:
        return L"CDFS\n";
    case FS_NFS:
        return L"UFS\n";
    }
    return L"???\n";
}

} // namespace

int dump_file_type(FILE** stream, FS_TYPE type)
{
    if (!stream || !*stream)
        return -1;
    return std::fwprintf(*stream, label(type));
}

void GetDriveTypeByVol(wchar_t* fsName, FS_TYPE& type, unsigned int maxComponentLen)
{
    if (!fsName)
        return;
    for (FS_TYPE known : {FS_NTFS, FS_HPFS, FS_CDFS, FS_NFS}) {
        if (ktqtbase::isFileSystemNamed(known, fsName)) {
            type = known;
            return;
        }
    }
    type = maxComponentLen == kLongestFatComponent ? FS_FAT : FS_VFAT;
}

void GetVolumeInfo(CStdStr<wchar_t>&, wchar_t*, unsigned int&, bool&) {}

bool GetVolumeInfo(CStdStr<wchar_t>, wchar_t*, CStdStr<wchar_t>*, int, unsigned int)
{
    return true;
}

void ParseVolumeStr(CStdStr<wchar_t>&, char*, unsigned int) {}

void InitVolumeChar(CStdStr<wchar_t>&, char*) {}

int InitModeMultiByte()
{
    return 0;
}

void ReleaseStringPtr(CStdStr<wchar_t>** pp)
{
    ReleaseCStrPtr(pp);
}
