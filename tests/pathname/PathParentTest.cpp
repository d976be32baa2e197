// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

#include <stdexcept>

namespace {

struct ParentRow
{
    path_category category;
    const wchar_t* work;
    const wchar_t* parent;
    path_type type;
    path_category parentCategory;
};

const ParentRow kRows[] = {
    {PC_ROOTED, L"/tmp/dir", L"/tmp/", PT_DIRECTORY, PC_ROOTED},
    {PC_ROOTED, L"/tmp/dir/", L"/tmp/", PT_NOT_FOUND, PC_ROOTED},
    {PC_ROOTED, L"/tmp/dir//", L"/tmp/dir/", PT_NOT_FOUND, PC_ROOTED},
    {PC_ROOTED, L"/tmp", L"/", PT_DIRECTORY, PC_ROOTED},
    {PC_ROOTED, L"/tmp/", L"/", PT_NOT_FOUND, PC_ROOTED},
    {PC_ROOTED, L"/", L"/", PT_DIRECTORY, PC_ROOTED},
    {PC_DRIVE, L"C:/", L"C:/", PT_DIRECTORY, PC_DRIVE},
    {PC_DRIVE, L"C:/dir", L"C:/", PT_DIRECTORY, PC_DRIVE},
    {PC_DRIVE, L"C:/dir/", L"C:/", PT_NOT_FOUND, PC_DRIVE},
    {PC_DRIVE, L"C:file.txt", L"C:", PT_DIRECTORY, PC_DRIVE},
    {PC_DRIVE, L"C:", L"C:", PT_DIRECTORY, PC_DRIVE},
    {PC_RELATIVE, L"a/b", L"a/", PT_DIRECTORY, PC_RELATIVE},
    {PC_RELATIVE, L"a/b/", L"a/", PT_NOT_FOUND, PC_RELATIVE},
    {PC_RELATIVE, L"a/b:c", L"a/", PT_DIRECTORY, PC_RELATIVE},
    {PC_UNC, L"//s/d/x", L"//s/d/", PT_DIRECTORY, PC_UNC},
    {kUnknownCategory, L"a/b", L"a/", PT_DIRECTORY, kUnknownCategory},
    {kUnknownCategory, L"a/b/", L"a/b/", PT_DIRECTORY, kUnknownCategory},
};

struct PrefixRow
{
    const wchar_t* work;
    const wchar_t* prefix;
    const wchar_t* parent;
    path_category category;
    path_type type;
};

const PrefixRow kPrefixRows[] = {
    {L"f.txt", L"/home/u/", L"/home/u/", PC_ROOTED, PT_DIRECTORY},
    {L"f.txt", L"/home/u", L"/home/u", PC_ROOTED, PT_DIRECTORY},
    {L"dir/", L"/home/u/", L"/home/u/", PC_ROOTED, PT_NOT_FOUND},
    {L"f.txt", L"c:/home/", L"C:/home/", PC_DRIVE, PT_DIRECTORY},
    {L"f.txt", L"//s/d/", L"//s/d/", PC_UNC, PT_DIRECTORY},
    {L"f.txt", L"home/", L"home/", PC_RELATIVE, PT_DIRECTORY},
    {L"", L"/home/u/", L"/home/u/", PC_ROOTED, PT_DIRECTORY},
};

// Something that every field of the result is to replace.
void fillWithOther(CRbUiPathname& parent, const CRbUiVolumeDescriptor& volume)
{
    parent.ParseRelative(L"/something/else", nullptr, false);
    parent.m_pVolume = &volume;
    parent.m_category = kUnknownCategory;
}

} // namespace

TEST(GetParent, CutsBehindTheLastSeparatorOrColon)
{
    const CRbUiNTFSVolumeDescriptor volume(L"X:");
    for (const ParentRow& row : kRows) {
        SCOPED_TRACE(testing::Message() << "category " << row.category << ": " << row.work);
        HandMadePath name(row.category, row.work, PT_WILDCARD);
        const auto before = fieldsOf(name);
        CRbUiPathname parent;
        fillWithOther(parent, volume);
        name.GetParent(parent);
        EXPECT_EQ(workOf(parent), row.parent);
        EXPECT_EQ(parent.m_type, row.type);
        EXPECT_EQ(parent.m_category, row.parentCategory);
        EXPECT_EQ(parent.m_pVolume, nullptr);
        EXPECT_EQ(fieldsOf(name), before);
    }
}

TEST(GetParent, TakesThePrefixOfABareName)
{
    for (const PrefixRow& row : kPrefixRows) {
        SCOPED_TRACE(testing::Message() << row.work << " in " << row.prefix);
        HandMadePath name(PC_RELATIVE, row.work);
        name.setPrefix(row.prefix);
        CRbUiPathname parent;
        name.GetParent(parent);
        EXPECT_EQ(workOf(parent), row.parent);
        EXPECT_EQ(prefixOf(parent), L"(none)");
        EXPECT_EQ(parent.m_category, row.category);
        EXPECT_EQ(parent.m_type, row.type);
    }
}

TEST(GetParent, KeepsPrefixAndVolumeOfALongerName)
{
    const CRbUiNTFSVolumeDescriptor volume(L"C:");
    HandMadePath name(PC_RELATIVE, L"a/b");
    name.setPrefix(L"C:/home/");
    name.m_pVolume = &volume;
    CRbUiPathname parent;
    name.GetParent(parent);
    EXPECT_EQ(workOf(parent), L"a/");
    EXPECT_EQ(prefixOf(parent), L"C:/home/");
    EXPECT_EQ(parent.m_pVolume, &volume);
}

TEST(GetParent, LeavesTheParentOfABareNameWithoutPrefixUnparsed)
{
    const CRbUiNTFSVolumeDescriptor volume(L"C:");
    HandMadePath name(PC_RELATIVE, L"f.txt");
    name.m_pVolume = &volume;
    CRbUiPathname parent;
    fillWithOther(parent, volume);
    name.GetParent(parent);
    expectUnparsed(parent);
}

TEST(GetParent, LeavesTheResultAloneWhereNothingIsParsed)
{
    for (path_type type : {PT_NONE, kTypeOfHost}) {
        const HandMadePath name(PC_ROOTED, L"/tmp/dir", type);
        HandMadePath parent(PC_DRIVE, L"C:/x");
        const auto before = fieldsOf(parent);
        name.GetParent(parent);
        EXPECT_EQ(fieldsOf(parent), before);
    }
}

TEST(GetParent, MayBeGivenTheObjectItself)
{
    for (const ParentRow& row : kRows) {
        SCOPED_TRACE(row.work);
        HandMadePath name(row.category, row.work);
        name.GetParent(name);
        EXPECT_EQ(workOf(name), row.parent);
        EXPECT_EQ(name.m_type, row.type);
    }
}

TEST(GetParent, CopiesThroughTheResultsOwnAssignCopy)
{
    const HandMadePath name(PC_ROOTED, L"/tmp/dir");
    CountingPath<CRbUiPathname> base;
    CountingPath<CRnUiPathname> derived;
    name.GetParent(base);
    name.GetParent(derived);
    EXPECT_EQ(base.copies, 1);
    EXPECT_EQ(derived.copies, 1);
    base.GetParent(base);
    EXPECT_EQ(base.copies, 2);
    EXPECT_EQ(workOf(base), L"/");
}

TEST(GetParent, CopiesABareNameThroughTheResultsOwnAssignCopyToo)
{
    HandMadePath name(PC_RELATIVE, L"f.txt");
    name.setPrefix(L"/home/u/");
    CountingPath<CRbUiPathname> parent;
    name.GetParent(parent);
    EXPECT_EQ(parent.copies, 1);
    EXPECT_EQ(workOf(parent), L"/home/u/");
}

TEST(GetParent, LetsAResultCopyNothing)
{
    class Deaf : public CRbUiPathname
    {
        void AssignCopy(const CRbUiPathname&) override {}
    };
    const HandMadePath name(PC_ROOTED, L"/tmp/dir");
    Deaf parent;
    parent.ParseRelative(L"/old", nullptr, false);
    name.GetParent(parent);
    EXPECT_EQ(workOf(parent), L"(none)");
    EXPECT_EQ(parent.m_type, PT_DIRECTORY);
}

TEST(GetParent, CutsWhatAResultMadeOfItsCopy)
{
    class Rewriting : public CRbUiPathname
    {
        void AssignCopy(const CRbUiPathname& other) override
        {
            CRbUiPathname::AssignCopy(other);
            m_pWork->assign(L"/a/bcdef");
        }
    };
    const HandMadePath name(PC_ROOTED, L"/tmp/dir");
    Rewriting parent;
    name.GetParent(parent);
    EXPECT_EQ(workOf(parent), L"/a/");
}

TEST(GetParent, RaisesOutOfRangeForABareNameWithAnEmptyPrefix)
{
    HandMadePath name(PC_ROOTED, L"bare");
    name.setPrefix(L"");
    CRbUiPathname parent;
    EXPECT_THROW(name.GetParent(parent), std::out_of_range);
    EXPECT_EQ(workOf(parent), L"");
    EXPECT_EQ(prefixOf(parent), L"(none)");
    EXPECT_EQ(parent.m_type, PT_DIRECTORY);
    EXPECT_EQ(workOf(name), L"bare");
}

TEST(GetParent, CutsAtTheSeparatorOfTheObject)
{
    for (const wchar_t* text : {L"|d/x|a", L"|d/x|a|"}) {
        SCOPED_TRACE(text);
        HandMadePath name(PC_ROOTED, text);
        name.m_separator = L'|';
        CRbUiPathname parent;
        name.GetParent(parent);
        EXPECT_EQ(workOf(parent), L"|d/x|");
    }
}
