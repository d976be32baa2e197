// SPDX-License-Identifier: MIT
//
// The binary interface of the descriptor: its fields' places and its virtual functions' slots. Hosts
// are compiled against both.
#include <KtQtBase/VolumeDescriptor.h>

#include "support/DestructorSlots.h"
#include "volume/PlainVolume.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>

namespace {

using ktqtbase::test::callSlot;
using ktqtbase::test::expectDestructorInTheFirstSlots;
using Text = CStdStr<wchar_t>;
using Volume = CRbUiVolumeDescriptor;

// Tells which of its functions was called. It has one more than its base class.
class RecordingVolume : public PlainVolume
{
public:
    using PlainVolume::PlainVolume;

    mutable std::string called;

    bool CheckReadOnly() const override { return record("CheckReadOnly"); }
    bool ValidateFilename(const Text*, bool) const override { return record("ValidateFilename"); }
    bool ValidateSegment(const Text*, bool) const override { return record("ValidateSegment"); }
    bool IsCaseSensitive() const override { return record("IsCaseSensitive"); }
    bool PreservesCase() const override { return record("PreservesCase"); }
    bool AllowsCaseSensitiveLookup() const override { return record("AllowsCaseSensitiveLookup"); }
    void VolCase(Text&) const override { record("VolCase"); }
    bool VolMatch(const wchar_t*, const Text*) const override { return record("VolMatch wide"); }
    bool VolMatch(const Text*, const Text*) const override { return record("VolMatch text"); }
    const Text* GetLocalName() const override { return record("GetLocalName"), nullptr; }
    unsigned int GetVolFreeSpace() const override { return record("GetVolFreeSpace"); }
    bool WillFit(unsigned int) const override { return record("WillFit"); }
    bool VolumeValid() const override { return record("VolumeValid"); }
    virtual bool next() { return record("next"); }

private:
    bool record(const char* name) const
    {
        called = name;
        return true;
    }
};

// The destructor takes the first two slots: one only destroys, the other deletes as well. Since the
// function that the derived class adds is in the slot behind the last one, no other is virtual.
TEST(VolumeSlots, FollowTheDeclaredOrder)
{
    RecordingVolume volume(L"C:");
    const Text text;
    Text changed;
    const auto called = [&volume](std::size_t slot, auto... arguments) {
        volume.called.clear();
        callSlot<bool>(volume, slot, arguments...);
        return volume.called;
    };
    EXPECT_EQ(called(2), "CheckReadOnly");
    EXPECT_EQ(called(3, &text, true), "ValidateFilename");
    EXPECT_EQ(called(4, &text, true), "ValidateSegment");
    EXPECT_EQ(called(5), "IsCaseSensitive");
    EXPECT_EQ(called(6), "PreservesCase");
    EXPECT_EQ(called(7), "AllowsCaseSensitiveLookup");
    callSlot<void, Text&>(volume, 8, changed);
    EXPECT_EQ(volume.called, "VolCase");
    EXPECT_EQ(called(9, L"a", &text), "VolMatch wide");
    EXPECT_EQ(called(10, &text, &text), "VolMatch text");
    callSlot<const Text*>(volume, 11);
    EXPECT_EQ(volume.called, "GetLocalName");
    callSlot<unsigned int>(volume, 12);
    EXPECT_EQ(volume.called, "GetVolFreeSpace");
    EXPECT_EQ(called(13, 1u), "WillFit");
    EXPECT_EQ(called(14), "VolumeValid");
    EXPECT_EQ(called(15), "next");
}

TEST(VolumeSlots, BeginWithTheTwoFormsOfTheDestructor)
{
    expectDestructorInTheFirstSlots<PlainVolume>(L"C:");
    expectDestructorInTheFirstSlots<CRbUiNTFSVolumeDescriptor>(L"C:");
}

class RecordingNtfsVolume : public CRbUiNTFSVolumeDescriptor
{
public:
    using CRbUiNTFSVolumeDescriptor::CRbUiNTFSVolumeDescriptor;

    mutable std::string called;

    bool ValidateFilename(const Text*, bool) const override { return record("ValidateFilename"); }
    bool ValidateSegment(const Text*, bool) const override { return record("ValidateSegment"); }
    virtual bool next() { return record("next"); }

private:
    bool record(const char* name) const
    {
        called = name;
        return true;
    }
};

TEST(VolumeSlots, AreTheSameOfAnNtfsVolume)
{
    RecordingNtfsVolume volume(L"C:");
    const Text text;
    callSlot<bool, const Text*, bool>(volume, 3, &text, true);
    EXPECT_EQ(volume.called, "ValidateFilename");
    callSlot<bool, const Text*, bool>(volume, 4, &text, true);
    EXPECT_EQ(volume.called, "ValidateSegment");
    callSlot<bool>(volume, 15);
    EXPECT_EQ(volume.called, "next");
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
