// SPDX-License-Identifier: MIT
//
// What the constructors and the destructor do to the memory of a descriptor.
#include <KtQtBase/VolumeDescriptor.h>

#include "volume/PlainVolume.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace {

using Text = CStdStr<wchar_t>;

// Memory that a test fills before a descriptor is made in it, and may look at afterwards.
class Memory
{
public:
    explicit Memory(int fill) { std::memset(m_bytes, fill, sizeof(m_bytes)); }

    void* room() { return m_bytes; }
    const unsigned char* begin() const { return m_bytes; }
    const unsigned char* end() const { return m_bytes + sizeof(m_bytes); }

    template<class T>
    T at(std::size_t offset) const
    {
        T value;
        std::memcpy(&value, m_bytes + offset, sizeof(T));
        return value;
    }

private:
    alignas(PlainVolume) unsigned char m_bytes[sizeof(PlainVolume)];
};

std::size_t offsetIn(const PlainVolume& volume, const void* field)
{
    const auto* start = reinterpret_cast<const unsigned char*>(&volume);
    return static_cast<std::size_t>(static_cast<const unsigned char*>(field) - start);
}

class NameConstructor : public testing::TestWithParam<int>
{
protected:
    void TearDown() override { m_volume->~PlainVolume(); }

    Memory m_memory{GetParam()};
    PlainVolume* m_volume = new (m_memory.room()) PlainVolume(L"C:");
};

TEST_P(NameConstructor, SetsEveryFieldWithAValue)
{
    EXPECT_EQ(m_volume->m_maxComponentLen, 255);
    EXPECT_EQ(m_volume->m_maxPathLen, 1023);
    EXPECT_EQ(m_volume->m_separator, L'\\');
    EXPECT_EQ(m_volume->m_bUseCSearch, false);
    EXPECT_EQ(m_volume->m_reserved, 0);
    EXPECT_EQ(m_volume->m_pAuxName, nullptr);
    EXPECT_EQ(m_volume->m_pConnectionName, nullptr);
    EXPECT_STREQ(m_volume->m_pUncPrefix, L"\\\\");
}

TEST_P(NameConstructor, KeepsTheHighestFlagOnlyAndSetsTheLowest)
{
    const int highest = GetParam() & 0x80;
    EXPECT_EQ(m_volume->m_flags, highest | 0x01);
}

TEST_P(NameConstructor, LeavesTheFileSystemUnset)
{
    int before = 0;
    std::memset(&before, GetParam(), sizeof(before));
    EXPECT_EQ(m_memory.at<int>(offsetIn(*m_volume, &m_volume->m_fsType)), before);
}

TEST_P(NameConstructor, CopiesTheName)
{
    ASSERT_NE(m_volume->m_pLocalName, nullptr);
    EXPECT_EQ(*m_volume->m_pLocalName, L"C:");
}

INSTANTIATE_TEST_SUITE_P(Memory, NameConstructor, testing::Values(0x00, 0xFF, 0x7F, 0x80, 0xA5));

TEST(NameConstructorArgument, IsCopiedAsItIs)
{
    const Text names[] = {
        L"", L" c: ", L"C:\\", L"\\\\Server\\Share", Text(L"C\0D", 3), Text(2000, L'x')};
    for (const Text& name : names) {
        const PlainVolume volume(name);
        EXPECT_EQ(*volume.m_pLocalName, name);
        EXPECT_TRUE(volume.VolumeValid());
    }
}

TEST(NameConstructorArgument, StaysTheCallers)
{
    Text name = L"C:";
    const PlainVolume volume(name);
    name = L"D:";
    EXPECT_EQ(*volume.m_pLocalName, L"C:");
    EXPECT_NE(volume.m_pLocalName, &name);
}

TEST(DefaultConstructor, SetsNoField)
{
    Memory memory(0xA5);
    auto* volume = new (memory.room()) PlainVolume;
    const unsigned char* fields = memory.begin() + sizeof(void*);
    const bool untouched = std::all_of(fields, memory.end(), [](auto b) { return b == 0xA5; });
    volume->m_pLocalName = nullptr;
    volume->m_pAuxName = nullptr;
    volume->m_pConnectionName = nullptr;
    volume->~PlainVolume();
    EXPECT_TRUE(untouched);
}

TEST(DefaultConstructor, SetsTheDispatchTable)
{
    Memory memory(0xA5);
    CRbUiVolumeDescriptor* volume = new (memory.room()) PlainVolume;
    volume->m_pLocalName = nullptr;
    volume->m_pAuxName = nullptr;
    volume->m_pConnectionName = nullptr;
    EXPECT_TRUE(volume->ValidateSegment(nullptr, false));
    EXPECT_EQ(volume->GetVolFreeSpace(), 2147483647u);
    volume->~CRbUiVolumeDescriptor();
}

// The leak checker tests that the strings are freed, too.
TEST(Destructor, DeletesAndForgetsTheThreeStrings)
{
    Memory memory(0xA5);
    auto* volume = new (memory.room()) PlainVolume(L"C:");
    volume->m_pAuxName = new Text(100, L'a');
    volume->m_pConnectionName = new Text(100, L'c');
    const std::size_t offsets[] = {offsetIn(*volume, &volume->m_pLocalName),
                                   offsetIn(*volume, &volume->m_pAuxName),
                                   offsetIn(*volume, &volume->m_pConnectionName)};
    volume->~PlainVolume();
    for (std::size_t offset : offsets)
        EXPECT_EQ(memory.at<void*>(offset), nullptr) << offset;
}

TEST(Destructor, PassesOverNullStrings)
{
    Memory memory(0xA5);
    auto* volume = new (memory.room()) PlainVolume(L"C:");
    ReleaseStringPtr(&volume->m_pLocalName);
    const std::size_t offset = offsetIn(*volume, &volume->m_pLocalName);
    volume->~PlainVolume();
    EXPECT_EQ(memory.at<void*>(offset), nullptr);
}

} // namespace
