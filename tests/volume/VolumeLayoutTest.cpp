// SPDX-License-Identifier: MIT
//
// The binary interface of the descriptor: its fields' places and its virtual functions' slots, by
// the C++ ABI of x86-64. Hosts are compiled against both.
#include <KtQtBase/VolumeDescriptor.h>

#include "volume/PlainVolume.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace {

using Text = CStdStr<wchar_t>;
using Volume = CRbUiVolumeDescriptor;

constexpr std::ptrdiff_t kNotVirtual = -1;

// A pointer to a virtual member function holds 1 plus the offset of its slot.
template<class Function>
std::ptrdiff_t slotOf(Function function)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof(words) == sizeof(function));
    std::memcpy(words, &function, sizeof(words));
    const bool isVirtual = words[0] & 1;
    return isVirtual ? (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)) : kNotVirtual;
}

using MatchWide = bool (Volume::*)(const wchar_t*, const Text*) const;
using MatchText = bool (Volume::*)(const Text*, const Text*) const;

// The destructor takes the first two slots: one only destroys, the other deletes as well.
TEST(VolumeSlots, FollowTheDeclaredOrder)
{
    EXPECT_EQ(slotOf(&Volume::CheckReadOnly), 2);
    EXPECT_EQ(slotOf(&Volume::ValidateFilename), 3);
    EXPECT_EQ(slotOf(&Volume::ValidateSegment), 4);
    EXPECT_EQ(slotOf(&Volume::IsCaseSensitive), 5);
    EXPECT_EQ(slotOf(&Volume::PreservesCase), 6);
    EXPECT_EQ(slotOf(&Volume::AllowsCaseSensitiveLookup), 7);
    EXPECT_EQ(slotOf(&Volume::VolCase), 8);
    EXPECT_EQ(slotOf(static_cast<MatchWide>(&Volume::VolMatch)), 9);
    EXPECT_EQ(slotOf(static_cast<MatchText>(&Volume::VolMatch)), 10);
    EXPECT_EQ(slotOf(&Volume::GetLocalName), 11);
    EXPECT_EQ(slotOf(&Volume::GetVolFreeSpace), 12);
    EXPECT_EQ(slotOf(&Volume::WillFit), 13);
    EXPECT_EQ(slotOf(&Volume::VolumeValid), 14);
}

class ExtendedVolume : public PlainVolume
{
public:
    virtual void next() {}
};

// With this the destructor has the first two slots to itself.
TEST(VolumeSlots, EndAfterTheLastFunction)
{
    EXPECT_EQ(slotOf(&ExtendedVolume::next), 15);
}

class ExtendedNtfsVolume : public CRbUiNTFSVolumeDescriptor
{
public:
    using CRbUiNTFSVolumeDescriptor::CRbUiNTFSVolumeDescriptor;
    virtual void next() {}
};

TEST(VolumeSlots, AreTheSameOfAnNtfsVolume)
{
    EXPECT_EQ(slotOf(&CRbUiNTFSVolumeDescriptor::ValidateFilename), 3);
    EXPECT_EQ(slotOf(&CRbUiNTFSVolumeDescriptor::ValidateSegment), 4);
    EXPECT_EQ(slotOf(&ExtendedNtfsVolume::next), 15);
}

TEST(VolumeSlots, ExcludeTheOtherMembers)
{
    EXPECT_EQ(slotOf(&Volume::GetConnectionName), kNotVirtual);
    EXPECT_EQ(slotOf(&Volume::Find), kNotVirtual);
    EXPECT_EQ(slotOf(&Volume::IsControl), kNotVirtual);
}

TEST(VolumeFields, LieInTheDeclaredOrder)
{
    const PlainVolume volume(L"C:");
    const auto offset = [&volume](const void* field) {
        return static_cast<const char*>(field) - reinterpret_cast<const char*>(&volume);
    };
    EXPECT_EQ(offset(&volume.m_fsType), 8);
    EXPECT_EQ(offset(&volume.m_flags), 12);
    EXPECT_EQ(offset(&volume.m_pLocalName), 16);
    EXPECT_EQ(offset(&volume.m_maxComponentLen), 24);
    EXPECT_EQ(offset(&volume.m_maxPathLen), 28);
    EXPECT_EQ(offset(&volume.m_separator), 32);
    EXPECT_EQ(offset(&volume.m_bUseCSearch), 36);
    EXPECT_EQ(offset(&volume.m_reserved), 40);
    EXPECT_EQ(offset(&volume.m_pAuxName), 48);
    EXPECT_EQ(offset(&volume.m_pConnectionName), 56);
    EXPECT_EQ(offset(&volume.m_pUncPrefix), 64);
    EXPECT_EQ(sizeof(CRbUiVolumeDescriptor), 72u);
    EXPECT_EQ(sizeof(CRbUiNTFSVolumeDescriptor), 72u);
}

TEST(VolumeFields, HaveTheirTypes)
{
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_fsType), FS_TYPE>));
    EXPECT_TRUE((std::is_same_v<std::underlying_type_t<FS_TYPE>, int>));
    EXPECT_EQ(sizeof(Volume::m_flags), 1u);
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_pLocalName), Text*>));
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_maxComponentLen), int>));
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_maxPathLen), int>));
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_separator), wchar_t>));
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_bUseCSearch), bool>));
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_reserved), int>));
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_pAuxName), Text*>));
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_pConnectionName), Text*>));
    EXPECT_TRUE((std::is_same_v<decltype(Volume::m_pUncPrefix), const wchar_t*>));
}

TEST(CRbUiVolumeDescriptor, IsAbstractAndDeletedThroughItsBase)
{
    EXPECT_TRUE(std::is_abstract_v<Volume>);
    EXPECT_TRUE(std::has_virtual_destructor_v<Volume>);
    EXPECT_FALSE(std::is_copy_constructible_v<Volume>);
}

} // namespace
