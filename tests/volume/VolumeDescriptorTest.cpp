// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

#include "volume/PlainVolume.h"

#include <gtest/gtest.h>

namespace {

using Text = CStdStr<wchar_t>;

constexpr unsigned int kNotFound = 0xFFFFFFFF;

// Calls a check with every value that m_flags can have.
template<class Check>
void withEveryFlags(Check check)
{
    PlainVolume volume(L"C:");
    for (int flags = 0; flags <= 0xFF; ++flags) {
        volume.m_flags = static_cast<unsigned char>(flags);
        check(volume, flags);
    }
}

TEST(CheckReadOnly, IsBit5)
{
    withEveryFlags([](const CRbUiVolumeDescriptor& volume, int flags) {
        EXPECT_EQ(volume.CheckReadOnly(), (flags & 0x20) != 0) << flags;
    });
}

TEST(IsCaseSensitive, IsBit6)
{
    withEveryFlags([](const CRbUiVolumeDescriptor& volume, int flags) {
        EXPECT_EQ(volume.IsCaseSensitive(), (flags & 0x40) != 0) << flags;
    });
}

TEST(PreservesCase, IsAlwaysTrue)
{
    withEveryFlags([](const CRbUiVolumeDescriptor& volume, int flags) {
        EXPECT_TRUE(volume.PreservesCase()) << flags;
        EXPECT_TRUE(volume.AllowsCaseSensitiveLookup()) << flags;
    });
}

TEST(VolCase, KeepsTheName)
{
    withEveryFlags([](const CRbUiVolumeDescriptor& volume, int flags) {
        Text name = L"c:/NaMe\u00e9";
        volume.VolCase(name);
        EXPECT_EQ(name, L"c:/NaMe\u00e9") << flags;
    });
}

TEST(GetLocalName, GivesTheOwnedStringItself)
{
    PlainVolume volume(L" c:");
    EXPECT_EQ(volume.GetLocalName(), volume.m_pLocalName);
    EXPECT_EQ(*volume.GetLocalName(), L" c:");
    ReleaseStringPtr(&volume.m_pLocalName);
    EXPECT_EQ(volume.GetLocalName(), nullptr);
}

TEST(GetVolFreeSpace, IsTheGreatestSignedNumber)
{
    EXPECT_EQ(PlainVolume(L"C:").GetVolFreeSpace(), 2147483647u);
}

TEST(WillFit, IsAlwaysTrue)
{
    const PlainVolume volume(L"C:");
    for (unsigned int bytes : {0u, 1u, 2147483647u, 2147483648u, 4294967295u})
        EXPECT_TRUE(volume.WillFit(bytes)) << bytes;
}

TEST(IsControl, IsAlwaysFalse)
{
    const PlainVolume volume(L"C:");
    for (int ch = -1; ch <= 0x100; ++ch)
        EXPECT_FALSE(volume.IsControl(ch)) << ch;
}

// Bits 0 and 4 are trusted; nothing else can make a descriptor valid, since the file system's name
// is never known.
TEST(VolumeValid, IsTrueForTrustedDescriptorsOnly)
{
    for (const wchar_t* name : {L"C:", L"C:\\", L""}) {
        PlainVolume volume(name);
        for (int type = -1; type <= 10; ++type) {
            volume.m_fsType = static_cast<FS_TYPE>(type);
            for (int flags = 0; flags <= 0xFF; ++flags) {
                volume.m_flags = static_cast<unsigned char>(flags);
                ASSERT_EQ(volume.VolumeValid(), (flags & 0x11) != 0) << type << ' ' << flags;
            }
        }
    }
}

TEST(VolumeValid, IsTrueForAnyNameAfterConstruction)
{
    for (const wchar_t* name : {L"C:", L"", L" ", L"\\\\Server\\Share"})
        EXPECT_TRUE(PlainVolume(name).VolumeValid()) << name;
}

TEST(VolumeValid, IsFalseWithoutAName)
{
    PlainVolume volume(L"C:");
    ReleaseStringPtr(&volume.m_pLocalName);
    volume.m_flags = 0;
    volume.m_fsType = FS_NTFS;
    EXPECT_FALSE(volume.VolumeValid());
}

TEST(VolumeValid, KeepsTheName)
{
    PlainVolume volume(L"C:");
    volume.m_flags = 0;
    volume.m_fsType = FS_NTFS;
    EXPECT_FALSE(volume.VolumeValid());
    EXPECT_EQ(*volume.m_pLocalName, L"C:");
}

TEST(GetConnectionName, AlwaysFails)
{
    PlainVolume volume(L"C:");
    volume.GetConnectionName();
    ASSERT_NE(volume.m_pConnectionName, nullptr);
    EXPECT_EQ(*volume.m_pConnectionName, L"GetConnectionName Failed");
}

TEST(GetConnectionName, LeavesTheEarlierStringToWhoHoldsIt)
{
    PlainVolume volume(L"C:");
    volume.GetConnectionName();
    Text* first = volume.m_pConnectionName;
    volume.GetConnectionName();
    EXPECT_NE(volume.m_pConnectionName, first);
    EXPECT_EQ(*volume.m_pConnectionName, L"GetConnectionName Failed");
    EXPECT_EQ(*first, L"GetConnectionName Failed");
    delete first;
}

struct FindRow
{
    const char* name;
    Text text;
    wchar_t ch;
    unsigned int found;
    unsigned int foundByCSearch;
};

const FindRow kFindRows[] = {
    {"first of two", L"abcb", L'b', 1, 1},
    {"at the start", L"abc", L'a', 0, 0},
    {"at the end", L"abc", L'c', 2, 2},
    {"absent", L"abc", L'x', kNotFound, kNotFound},
    {"other case", L"abc", L'A', kNotFound, kNotFound},
    {"empty text", L"", L'a', kNotFound, kNotFound},
    {"beyond the basic plane", L"a\U0001F600", L'\U0001F600', 1, 1},
    {"behind a terminator", Text(L"ab\0cd", 5), L'd', 4, kNotFound},
    {"before a terminator", Text(L"ab\0cd", 5), L'b', 1, 1},
    {"terminator inside", Text(L"ab\0cd", 5), L'\0', 2, 2},
    {"terminator at the end", L"ab", L'\0', kNotFound, 2},
};

TEST(VolumeFind, SearchesTheWholeText)
{
    const PlainVolume volume(L"C:");
    for (const FindRow& row : kFindRows)
        EXPECT_EQ(volume.Find(row.text, row.ch), row.found) << row.name;
}

TEST(VolumeFind, SearchesUpToTheFirstTerminatorByCSearch)
{
    PlainVolume volume(L"C:");
    volume.m_bUseCSearch = true;
    for (const FindRow& row : kFindRows)
        EXPECT_EQ(volume.Find(row.text, row.ch), row.foundByCSearch) << row.name;
}

} // namespace
