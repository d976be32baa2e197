// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>
#include <KtQtBase/VolumeDescriptor.h>

#include "volume/PlainVolume.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Text = CStdStr<wchar_t>;

// Before any test could touch the list.
const auto kSizeAtLoad = volumeList.size();

// The list as one test sees it: filled by it, emptied at its end.
class VolumeList : public testing::Test
{
protected:
    void TearDown() override { volumeList.clear(); }

    static const CRbUiVolumeDescriptor* find(const Text& name)
    {
        return CRbUiPathname().FindVolumeDescriptor(name);
    }
};

TEST_F(VolumeList, IsEmptyAtLoad)
{
    EXPECT_EQ(kSizeAtLoad, 0);
    EXPECT_EQ(find(L"C:"), nullptr);
    EXPECT_TRUE(volumeList.isEmpty());
}

TEST_F(VolumeList, FindsAVolumeByItsExactName)
{
    PlainVolume c(L"C:");
    PlainVolume d(L"D:");
    volumeList << &c << &d;
    EXPECT_EQ(find(L"C:"), &c);
    EXPECT_EQ(find(L"D:"), &d);
    for (const wchar_t* name : {L"c:", L"C", L"C:\\", L"Cx", L"CD", L"C: ", L" C:", L"E:", L""})
        EXPECT_EQ(find(name), nullptr) << name;
}

TEST_F(VolumeList, ComparesTheWholeLengthOfNames)
{
    PlainVolume c(L"C:");
    volumeList << &c;
    EXPECT_EQ(find(Text(L"C:\0x", 4)), nullptr);
    c.m_pLocalName->append(1, L'\0');
    EXPECT_EQ(find(L"C:"), nullptr);
    EXPECT_EQ(find(Text(L"C:\0", 3)), &c);
}

TEST_F(VolumeList, GivesTheFirstOfTwoVolumesOfOneName)
{
    PlainVolume other(L"D:");
    PlainVolume first(L"C:");
    PlainVolume second(L"C:");
    volumeList << &other << &first << &second;
    EXPECT_EQ(find(L"C:"), &first);
}

TEST_F(VolumeList, IsSearchedPastNullEntriesAndVolumesWithoutAName)
{
    PlainVolume nameless(L"X:");
    PlainVolume c(L"C:");
    ReleaseStringPtr(&nameless.m_pLocalName);
    volumeList << nullptr << &nameless << &c << nullptr;
    EXPECT_EQ(find(L"C:"), &c);
    EXPECT_EQ(find(L"D:"), nullptr);
}

class RenamedVolume : public PlainVolume
{
public:
    using PlainVolume::PlainVolume;
    const Text* GetLocalName() const override { return &m_otherName; }

private:
    Text m_otherName = L"Z:";
};

TEST_F(VolumeList, AsksTheDerivedClassForTheName)
{
    RenamedVolume renamed(L"C:");
    volumeList << &renamed;
    EXPECT_EQ(find(L"Z:"), &renamed);
    EXPECT_EQ(find(L"C:"), nullptr);
}

std::vector<std::wstring> deletedNames;

class LoggingVolume : public PlainVolume
{
public:
    using PlainVolume::PlainVolume;
    ~LoggingVolume() override { deletedNames.push_back(*m_pLocalName); }
};

TEST_F(VolumeList, IsDeletedEntryByEntryButNotCleared)
{
    deletedNames.clear();
    volumeList << new LoggingVolume(L"C:") << nullptr << new LoggingVolume(L"D:");
    {
        const CDelVolumeList owner;
        EXPECT_TRUE(deletedNames.empty());
    }
    EXPECT_EQ(deletedNames, (std::vector<std::wstring>{L"C:", L"D:"}));
    EXPECT_EQ(volumeList.size(), 3);
}

TEST_F(VolumeList, MayBeDeletedWhileEmpty)
{
    deletedNames.clear();
    {
        const CDelVolumeList owner;
    }
    EXPECT_TRUE(deletedNames.empty());
    EXPECT_TRUE(volumeList.isEmpty());
}

} // namespace
