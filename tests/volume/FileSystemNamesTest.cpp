// SPDX-License-Identifier: MIT
#include "volume/FileSystemNames.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct NameRow
{
    const char* name;
    const wchar_t* reported;
    int trueFor[2]; // the file systems that may report it, -1 for none
};

const NameRow kRows[] = {
    {"NTFS", L"NTFS", {2, -1}},
    {"FAT", L"FAT", {3, 4}},
    {"HPFS", L"HPFS", {5, -1}},
    {"CDFS", L"CDFS", {6, -1}},
    {"NFS", L"NFS", {8, -1}},
    {"NFS inside", L"myNFS3", {8, -1}},
    {"lower case", L"ntfs", {-1, -1}},
    {"longer than FAT", L"FAT32", {-1, -1}},
    {"longer than NTFS", L"NTFSX", {-1, -1}},
    {"empty", L"", {-1, -1}},
    {"unknown", L"nofilesystem", {-1, -1}},
};

TEST(isFileSystemNamed, KnowsWhatEachFileSystemReports)
{
    for (const NameRow& row : kRows) {
        for (int type = -1; type <= 10; ++type) {
            const bool expected = type >= 0 && (type == row.trueFor[0] || type == row.trueFor[1]);
            EXPECT_EQ(ktqtbase::isFileSystemNamed(static_cast<FS_TYPE>(type), row.reported),
                      expected)
                << row.name << ' ' << type;
        }
    }
}

TEST(kUnknownFileSystem, IsTheFixedName)
{
    EXPECT_EQ(std::wstring(ktqtbase::kUnknownFileSystem), L"nofilesystem");
}

} // namespace
