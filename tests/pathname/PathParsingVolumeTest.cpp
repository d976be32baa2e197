// SPDX-License-Identifier: MIT
//
// How a parse finds the volume of a name and what the volume does to it.
#include "pathname/PathTestSupport.h"

#include <KtQtBase/PathName.h>

#include <gtest/gtest.h>

#include <new>
#include <utility>

namespace {

using ktqtbase::test::ListedVolumes;
using ktqtbase::test::RecordingVolume;
using ktqtbase::test::Text;

const Text kDriveC = L"C:";

// ---- The look-up -------------------------------------------------------------------------------

TEST(FindVolumeDescriptor, FindsNothingInAnEmptyList)
{
    const CRbUiPathname name;
    EXPECT_EQ(name.FindVolumeDescriptor(kDriveC), nullptr);
    EXPECT_EQ(name.FindVolumeDescriptor(Text()), nullptr);
}

TEST(FindVolumeDescriptor, TakesTheFirstOfTheName)
{
    RecordingVolume other(L"D:");
    RecordingVolume first(L"C:");
    RecordingVolume second(L"C:");
    const ListedVolumes listed{&other, &first, &second};
    EXPECT_EQ(CRbUiPathname().FindVolumeDescriptor(kDriveC), &first);
}

TEST(FindVolumeDescriptor, ComparesTheWholeNameExactly)
{
    RecordingVolume lower(L"c:");
    RecordingVolume longer(L"C:/");
    RecordingVolume shorter(L"C");
    const ListedVolumes listed{&lower, &longer, &shorter};
    EXPECT_EQ(CRbUiPathname().FindVolumeDescriptor(kDriveC), nullptr);
    EXPECT_EQ(CRbUiPathname().FindVolumeDescriptor(Text(L"C:/")), &longer);
}

TEST(FindVolumeDescriptor, ComparesBehindATerminatorToo)
{
    RecordingVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    EXPECT_EQ(CRbUiPathname().FindVolumeDescriptor(Text(L"C:\0x", 4)), nullptr);
}

TEST(FindVolumeDescriptor, FindsNothingForAnEmptyName)
{
    RecordingVolume nameless(L"");
    const ListedVolumes listed{&nameless};
    EXPECT_EQ(CRbUiPathname().FindVolumeDescriptor(Text()), nullptr);
}

TEST(FindVolumeDescriptor, PassesOverNullEntries)
{
    RecordingVolume volume(L"C:");
    const ListedVolumes listed{nullptr, &volume, nullptr};
    EXPECT_EQ(CRbUiPathname().FindVolumeDescriptor(kDriveC), &volume);
    EXPECT_EQ(CRbUiPathname().FindVolumeDescriptor(Text(L"D:")), nullptr);
}

// Appends volumes to the list while it is searched.
class AppendingVolume : public RecordingVolume
{
public:
    using RecordingVolume::RecordingVolume;
    const Text* GetLocalName() const override
    {
        for (CRbUiVolumeDescriptor* volume : std::exchange(m_waiting, {}))
            volumeList.append(volume);
        return m_pLocalName;
    }

    mutable std::vector<CRbUiVolumeDescriptor*> m_waiting;
};

TEST(FindVolumeDescriptor, LooksAtWhatAVolumeAppendsMeanwhile)
{
    AppendingVolume appending(L"A:");
    RecordingVolume other(L"B:");
    RecordingVolume wanted(L"C:");
    // So many that the list moves to other memory.
    appending.m_waiting.assign(1000, &other);
    appending.m_waiting.push_back(&wanted);
    const ListedVolumes listed{&appending, &other};
    EXPECT_EQ(CRbUiPathname().FindVolumeDescriptor(kDriveC), &wanted);
    EXPECT_EQ(volumeList.size(), 1003);
}

TEST(NewVolDescriptor, GivesNullAndListsNothing)
{
    const CRbUiPathname name;
    EXPECT_EQ(name.NewVolDescriptor(kDriveC), nullptr);
    EXPECT_EQ(name.NewVolDescriptor(Text(L"C:/")), nullptr);
    EXPECT_EQ(name.NewVolDescriptor(Text()), nullptr);
    EXPECT_TRUE(volumeList.isEmpty());
}

// ---- The volume in a parse ---------------------------------------------------------------------

TEST(ParseRelative, RecordsTheVolumeOfADrive)
{
    RecordingVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"c:\\dir", nullptr, false), 0);
    EXPECT_EQ(name.m_pVolume, &volume);
    EXPECT_EQ(name.m_pRelPath, nullptr);
}

TEST(ParseRelative, GoesOnWithoutAVolumeThatIsNotListed)
{
    RecordingVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"d:\\X", nullptr, false), 0);
    EXPECT_EQ(name.m_pVolume, nullptr);
    EXPECT_STREQ(name.GetPathString(), L"D:/X");
    EXPECT_EQ(volumeList.size(), 1);
    EXPECT_TRUE(volume.seen.empty());
}

TEST(ParseRelative, HandsTheWholeNormalisedNameToTheVolume)
{
    RecordingVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L" \"c:\\Xa\\X\" ", nullptr, false), 0);
    ASSERT_EQ(volume.seen.size(), 1u);
    EXPECT_STREQ(volume.seen[0].c_str(), L"C:/Xa/X");
    EXPECT_STREQ(name.GetPathString(), L"C:/ya/y");
}

TEST(ParseRelative, TakesTheVolumeOfARelativeNameFromItsBase)
{
    RecordingVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"C:\\dir", nullptr, false), 0);
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"X\\b", &base, false), 0);
    EXPECT_EQ(name.m_pVolume, &volume);
    ASSERT_EQ(volume.seen.size(), 2u);
    EXPECT_STREQ(volume.seen[1].c_str(), L"X/b");
    EXPECT_STREQ(name.GetPathString(), L"y/b");
    EXPECT_STREQ(name.m_pRelPath->c_str(), L"C:/dir");
}

TEST(ParseRelative, GivesARootedNameNoVolume)
{
    RecordingVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"C:\\dir", nullptr, false), 0);
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"/X", &base, false), 0);
    EXPECT_EQ(name.m_pVolume, nullptr);
    EXPECT_STREQ(name.GetPathString(), L"/X");
    EXPECT_EQ(volume.seen.size(), 1u);
}

TEST(ParseRelative, ForgetsTheVolumeOfTheNameBefore)
{
    RecordingVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"C:\\dir", nullptr, false), 0);
    ASSERT_EQ(name.ParseRelative(L"", nullptr, false), 1);
    EXPECT_EQ(name.m_pVolume, nullptr);
}

// Looks at the name that is being parsed.
class WatchingVolume : public RecordingVolume
{
public:
    using RecordingVolume::RecordingVolume;
    void VolCase(Text&) const override
    {
        EXPECT_EQ(watched->m_type, PT_NONE);
        EXPECT_EQ(watched->m_pVolume, this);
        EXPECT_EQ(watched->m_pWork, nullptr);
        EXPECT_EQ(watched->m_pRelPath, nullptr);
        ++calls;
    }

    const CRbUiPathname* watched = nullptr;
    mutable int calls = 0;
};

TEST(ParseRelative, ShowsTheVolumeNothingOfTheNameBefore)
{
    WatchingVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    CRbUiPathname name;
    volume.watched = &name;
    ASSERT_EQ(name.ParseRelative(L"/old", nullptr, false), 0);
    ASSERT_EQ(name.ParseRelative(L"c:\\new", nullptr, false), 0);
    ASSERT_EQ(name.ParseRelative(L"c:\\newer", nullptr, false), 0);
    EXPECT_EQ(volume.calls, 2);
}

// Changes the base of the name that is being parsed.
class BaseChangingVolume : public RecordingVolume
{
public:
    using RecordingVolume::RecordingVolume;
    void VolCase(Text&) const override { base->m_pWork->assign(L"C:/changed"); }

    CRbUiPathname* base = nullptr;
};

TEST(ParseRelative, TakesThePrefixAfterTheVolumeHadTheName)
{
    BaseChangingVolume volume(L"C:");
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"C:\\dir", nullptr, false), 0);
    base.m_pVolume = &volume;
    volume.base = &base;
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"a", &base, false), 0);
    EXPECT_STREQ(name.m_pRelPath->c_str(), L"C:/changed");
}

// Replaces the separators of a name.
class SeparatorlessVolume : public RecordingVolume
{
public:
    using RecordingVolume::RecordingVolume;
    void VolCase(Text& name) const override { std::replace(name.begin(), name.end(), L'/', L'_'); }
};

TEST(ParseRelative, LooksForTheSeparatorInWhatTheVolumeMadeOfTheName)
{
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(L"/b", nullptr, false), 0);
    const SeparatorlessVolume volume(L"C:");
    base.m_pVolume = &volume;
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"a\\b", &base, false), 0);
    EXPECT_STREQ(name.GetPathString(), L"a_b");
    EXPECT_FALSE(name.m_bQualified);
}

// Puts a pattern in the place of each name.
class PatternVolume : public RecordingVolume
{
public:
    using RecordingVolume::RecordingVolume;
    void VolCase(Text& name) const override { name += L"*"; }
};

TEST(ParseRelative, LooksForAPatternInWhatTheVolumeMadeOfTheName)
{
    PatternVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"c:\\dir\\a", nullptr, false), 0);
    EXPECT_STREQ(name.GetPathString(), L"C:/dir/a*");
    EXPECT_EQ(name.m_type, PT_WILDCARD);
}

class ThrowingVolume : public RecordingVolume
{
public:
    using RecordingVolume::RecordingVolume;
    void VolCase(Text&) const override { throw std::bad_alloc(); }
};

TEST(ParseRelative, LeavesTheNameUnparsedWhenAnExceptionPasses)
{
    ThrowingVolume volume(L"C:");
    const ListedVolumes listed{&volume};
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"/old", nullptr, false), 0);
    EXPECT_THROW(name.ParseRelative(L"c:\\new", nullptr, false), std::bad_alloc);
    EXPECT_EQ(name.m_type, PT_NONE);
    EXPECT_EQ(name.m_pVolume, nullptr);
    EXPECT_EQ(name.m_pWork, nullptr);
    EXPECT_EQ(name.m_pRelPath, nullptr);
}

} // namespace
