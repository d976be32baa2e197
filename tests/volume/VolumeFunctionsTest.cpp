// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cwchar>
#include <string>

namespace {

using Text = CStdStr<wchar_t>;

constexpr FS_TYPE kNoFileSystem = static_cast<FS_TYPE>(42);

TEST(CharacterConstants, HaveTheirValues)
{
    EXPECT_EQ(kBackslash, 92);
    EXPECT_EQ(kColon, 58);
    EXPECT_EQ(kDoubleQuote, 34);
    EXPECT_EQ(kEOS, 0);
    EXPECT_EQ(kPeriod, 46);
    EXPECT_EQ(kSlash, 47);
    EXPECT_EQ(kSpace, 32);
    EXPECT_EQ(kAsterisk, 42);
    EXPECT_EQ(kQuestionmark, 63);
    EXPECT_EQ(kZero, 48);
    EXPECT_EQ(sizeof(kZero), 4u);
}

TEST(FS_TYPE, HasFixedNumbers)
{
    EXPECT_EQ(int{FS_NOFS}, 0);
    EXPECT_EQ(int{FS_NTFS}, 2);
    EXPECT_EQ(int{FS_FAT}, 3);
    EXPECT_EQ(int{FS_VFAT}, 4);
    EXPECT_EQ(int{FS_HPFS}, 5);
    EXPECT_EQ(int{FS_CDFS}, 6);
    EXPECT_EQ(int{FS_NFS}, 8);
    EXPECT_EQ(sizeof(FS_TYPE), 4u);
}

// What a dump writes, and its result.
std::wstring dumped(int type, int& result)
{
    FILE* stream = std::tmpfile();
    result = dump_file_type(&stream, static_cast<FS_TYPE>(type));
    std::rewind(stream);
    wchar_t text[32] = L"";
    std::fgetws(text, 32, stream);
    std::fclose(stream);
    return text;
}

struct LabelRow
{
    int type;
    const wchar_t* label;
};

TEST(dump_file_type, WritesTheLabelAndCountsIt)
{
    const LabelRow rows[] = {
        {-1, L"???\n"}, {0, L"NOFS\n"}, {1, L"???\n"},  {2, L"NTFS\n"},  {3, L"FAT\n"},
        {4, L"VFAT\n"}, {5, L"HPFS\n"}, {6, L"CDFS\n"}, {7, L"???\n"},   {8, L"UFS\n"},
        {9, L"???\n"},  {10, L"???\n"}, {42, L"???\n"}, {256, L"???\n"}, {-2147483647, L"???\n"}};
    for (const LabelRow& row : rows) {
        int result = -77;
        EXPECT_EQ(dumped(row.type, result), row.label) << row.type;
        EXPECT_EQ(result, static_cast<int>(std::wcslen(row.label))) << row.type;
    }
}

TEST(dump_file_type, GivesTheStreamsErrorBack)
{
    FILE* readOnly = std::fopen("/dev/null", "r");
    ASSERT_NE(readOnly, nullptr);
    EXPECT_LT(dump_file_type(&readOnly, FS_NTFS), 0);
    std::fclose(readOnly);
}

TEST(dump_file_type, RefusesANullStream)
{
    FILE* none = nullptr;
    EXPECT_EQ(dump_file_type(&none, FS_NTFS), -1);
    EXPECT_EQ(dump_file_type(nullptr, FS_NTFS), -1);
}

struct DriveTypeRow
{
    const wchar_t* name;
    unsigned int maxComponentLen;
    FS_TYPE type;
};

const DriveTypeRow kDriveTypeRows[] = {
    {L"NTFS", 255, FS_NTFS},
    {L"NTFS", 12, FS_NTFS},
    {L"FAT", 12, FS_FAT},
    {L"FAT", 255, FS_VFAT},
    {L"FAT", 11, FS_VFAT},
    {L"FAT", 13, FS_VFAT},
    {L"FAT", 0, FS_VFAT},
    {L"HPFS", 12, FS_HPFS},
    {L"HPFS", 255, FS_HPFS},
    {L"CDFS", 12, FS_CDFS},
    {L"CDFS", 255, FS_CDFS},
    {L"NFS", 12, FS_NFS},
    {L"NFS", 255, FS_NFS},
    {L"myNFS", 255, FS_NFS},
    {L"NFS4", 12, FS_NFS},
    {L"myNFS3", 255, FS_NFS},
    {L"ntfs", 255, FS_VFAT},
    {L"ntfs", 12, FS_FAT},
    {L"Ntfs", 255, FS_VFAT},
    {L"NTFS ", 255, FS_VFAT},
    {L"XNTFS", 255, FS_VFAT},
    {L"NTF", 255, FS_VFAT},
    {L"hpfs", 255, FS_VFAT},
    {L"HPFS2", 255, FS_VFAT},
    {L"cdfs", 12, FS_FAT},
    {L"CDFSX", 12, FS_FAT},
    {L"nfs", 255, FS_VFAT},
    {L"nfs", 12, FS_FAT},
    {L"FAT32", 12, FS_FAT},
    {L"fat", 255, FS_VFAT},
    {L"", 255, FS_VFAT},
    {L"", 12, FS_FAT},
    {L"VFAT", 4294967295u, FS_VFAT},
    {L"\u00e9NFS\u00e9", 12, FS_NFS},
};

TEST(GetDriveTypeByVol, ClassifiesTheNameByItsExactCase)
{
    for (const DriveTypeRow& row : kDriveTypeRows) {
        std::wstring name = row.name;
        FS_TYPE type = kNoFileSystem;
        GetDriveTypeByVol(name.data(), type, row.maxComponentLen);
        EXPECT_EQ(type, row.type) << row.name << ' ' << row.maxComponentLen;
        EXPECT_EQ(name, row.name);
    }
}

TEST(GetDriveTypeByVol, LeavesTheTypeWithoutAName)
{
    FS_TYPE type = kNoFileSystem;
    GetDriveTypeByVol(nullptr, type, 12);
    EXPECT_EQ(type, kNoFileSystem);
}

TEST(GetVolumeInfo, LeavesEveryOutput)
{
    Text volume = L"C:";
    wchar_t fsName[] = L"poison";
    unsigned int maxComponentLen = 77;
    bool caseSensitive = true;
    GetVolumeInfo(volume, fsName, maxComponentLen, caseSensitive);
    EXPECT_EQ(volume, L"C:");
    EXPECT_STREQ(fsName, L"poison");
    EXPECT_EQ(maxComponentLen, 77u);
    EXPECT_TRUE(caseSensitive);
}

TEST(GetVolumeInfo, OfAConnectionIsTrueAndLeavesEveryOutput)
{
    wchar_t fsName[] = L"poison";
    Text connection = L"poison";
    EXPECT_TRUE(GetVolumeInfo(Text(L"C:"), fsName, &connection, 1, 7));
    EXPECT_STREQ(fsName, L"poison");
    EXPECT_EQ(connection, L"poison");
    EXPECT_TRUE(GetVolumeInfo(Text(), nullptr, nullptr, 0, 0));
}

TEST(ParseVolumeStr, HasNoEffect)
{
    Text volume = L"C:\\x";
    char text[] = "poison";
    ParseVolumeStr(volume, text, sizeof(text));
    ParseVolumeStr(volume, nullptr, 0);
    EXPECT_EQ(volume, L"C:\\x");
    EXPECT_STREQ(text, "poison");
}

TEST(InitVolumeChar, HasNoEffect)
{
    Text volume = L"C:\\x";
    char text[] = "poison";
    InitVolumeChar(volume, text);
    InitVolumeChar(volume, nullptr);
    EXPECT_EQ(volume, L"C:\\x");
    EXPECT_STREQ(text, "poison");
}

TEST(InitModeMultiByte, Gives0)
{
    EXPECT_EQ(InitModeMultiByte(), 0);
}

// The leak checker tests that the string is freed, too.
TEST(ReleaseStringPtr, DeletesAndForgetsTheString)
{
    auto* text = new Text(100, L'a');
    ReleaseStringPtr(&text);
    EXPECT_EQ(text, nullptr);
}

TEST(ReleaseStringPtr, LeavesNullAlone)
{
    Text* text = nullptr;
    ReleaseStringPtr(&text);
    EXPECT_EQ(text, nullptr);
    EXPECT_NO_FATAL_FAILURE(ReleaseStringPtr(nullptr));
}

} // namespace
