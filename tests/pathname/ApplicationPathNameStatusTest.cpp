// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

namespace {

// Bit 0 of a mode is the execute permission of others.
struct StatusRow
{
    const char* name;
    mode_t folder;
    mode_t file; // 0 for none
    int status;
};

const StatusRow kRows[] = {
    {"plain file, plain folder", 0700, 0644, 15}, {"open file, plain folder", 0700, 0645, 11},
    {"plain file, open folder", 0701, 0644, 7},   {"open file, open folder", 0701, 0645, 3},
    {"no file, plain folder", 0700, 0, 8},        {"no file, open folder", 0701, 0, 0},
};

// A name of the given row, as an application parses it.
void makeName(const ScratchFolder& scratch, const StatusRow& row, CRnUiPathname& name)
{
    scratch.addFolder("dir", row.folder);
    if (row.file)
        scratch.addFile("dir/file", row.file);
    ASSERT_EQ(name.Parse(scratch.widePath("dir/file").c_str(), false), 0);
}

// A parse that returns 1 although it leaves a name, or 0 although it leaves none.
class ContraryPath : public CRnUiPathname
{
public:
    explicit ContraryPath(int result) : m_result(result) {}

    int Parse(const wchar_t* name, bool flag) override
    {
        if (m_result == 1)
            CRnUiPathname::Parse(name, flag);
        return m_result;
    }

private:
    int m_result;
};

} // namespace

TEST(Status, AddsWhatFileAndFolderAllow)
{
    for (const StatusRow& row : kRows) {
        SCOPED_TRACE(row.name);
        const ScratchFolder scratch;
        CRnUiPathname name;
        makeName(scratch, row, name);
        const auto before = fieldsOf(name);
        EXPECT_EQ(name.Status(), row.status);
        EXPECT_EQ(fieldsOf(name), before);
    }
}

TEST(Status, IsZeroForAnUnparsedName)
{
    EXPECT_EQ(CRnUiPathname().Status(), 0);
}

TEST(Status, IsZeroForTextWithoutAType)
{
    const ScratchFolder scratch;
    scratch.addFolder("dir", 0700);
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(scratch.widePath("dir/a").c_str(), false), 0);
    EXPECT_EQ(name.Status(), 8);
    name.m_type = PT_NONE;
    EXPECT_EQ(name.Status(), 0);
}

TEST(Status, TakesAClosingSeparatorOff)
{
    const ScratchFolder scratch;
    scratch.addFolder("dir", 0700);
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(scratch.widePath("dir/").c_str(), false), 0);
    EXPECT_EQ(name.Status(), 15);
    EXPECT_EQ(workOf(name), scratch.widePath("dir/"));
}

TEST(Status, ParsesARelativeNameInThePrefix)
{
    const PrefixScope unparsed;
    const ScratchFolder scratch;
    scratch.addFile("file");
    ASSERT_EQ(g_CurrentDirPrefix.ParseRelative(scratch.widePath().c_str(), nullptr, false), 0);
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(L"file", false), 0);
    EXPECT_EQ(name.Status(), 15);
}

TEST(Status, AsksForABareNameWithoutPrefixByItself)
{
    const PrefixScope unparsed;
    const ScratchFolder scratch;
    scratch.addFile("file");
    ASSERT_EQ(g_CurrentDirPrefix.ParseRelative(scratch.widePath().c_str(), nullptr, false), 0);
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(L"file", false), 0);
    ReleaseCStrPtr(&name.m_pRelPath);
    const WorkingFolder inside(scratch.path());
    EXPECT_EQ(name.Status(), 7);
}

TEST(Status, MayNotWriteOnAReadOnlyVolume)
{
    const ScratchFolder scratch;
    const WorkingFolder inside(scratch.path());
    ListedVolume volume(L"C:");
    scratch.addFolder("C:", 0700);
    scratch.addFile("C:/file", 0644);
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(L"c:\\file", false), 0);
    EXPECT_EQ(name.Status(), 15);
    volume.m_flags |= 0x20;
    EXPECT_EQ(name.Status(), 3);
    ASSERT_EQ(name.Parse(L"c:\\none", false), 0);
    EXPECT_EQ(name.Status(), 0);
}

TEST(Status, GoesByTheVolumeOfTheNewParse)
{
    const ScratchFolder scratch;
    const WorkingFolder inside(scratch.path());
    scratch.addFolder("C:", 0700);
    CRbUiNTFSVolumeDescriptor unlisted(L"C:");
    unlisted.m_flags |= 0x20;
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(L"c:\\none", false), 0);
    name.m_pVolume = &unlisted;
    EXPECT_EQ(name.Status(), 8);
}

TEST(Status, AnswersAHostsTypeByAParse)
{
    const ScratchFolder scratch;
    CRnUiPathname name;
    makeName(scratch, kRows[0], name);
    name.m_type = kTypeOfHost;
    EXPECT_EQ(name.Status(), 7);
}

TEST(Status, WorksOnPlainCopies)
{
    const ScratchFolder scratch;
    CountingPath<CRnUiPathname> name;
    makeName(scratch, kRows[0], name);
    const std::size_t parses = name.parsed.size();
    EXPECT_EQ(name.Status(), 15);
    EXPECT_EQ(name.parsed.size(), parses);
    EXPECT_EQ(name.copies, 0);
}

TEST(ProcessPathStatus, TrimsBeforeItParses)
{
    const ScratchFolder scratch;
    scratch.addFolder("dir", 0700);
    CountingPath<CRnUiPathname> name;
    ASSERT_EQ(name.Parse(scratch.widePath("dir/").c_str(), false), 0);
    EXPECT_EQ(ProcessPathStatus(name, &name.m_pWork), 7);
    EXPECT_EQ(name.parsed.size(), 2u);
    EXPECT_EQ(name.parsed.back(), scratch.widePath("dir"));
    EXPECT_EQ(workOf(name), scratch.widePath("dir"));
}

TEST(ProcessParentStatus, ParsesBeforeItTrims)
{
    const ScratchFolder scratch;
    scratch.addFolder("dir", 0700);
    CountingPath<CRnUiPathname> name;
    ASSERT_EQ(name.Parse(scratch.widePath("dir/").c_str(), false), 0);
    int status = 3;
    ProcessParentStatus(name, &name.m_pWork, status);
    EXPECT_EQ(status, 11);
    EXPECT_EQ(name.parsed.back(), scratch.widePath("dir/"));
    EXPECT_EQ(workOf(name), scratch.widePath("dir"));
}

TEST(ProcessPathStatus, AnswersByFileAndByNothing)
{
    for (const StatusRow& row : kRows) {
        SCOPED_TRACE(row.name);
        const ScratchFolder scratch;
        CRnUiPathname name;
        makeName(scratch, row, name);
        EXPECT_EQ(ProcessPathStatus(name, &name.m_pWork), row.status & 7);
    }
    CRnUiPathname unparsed;
    EXPECT_EQ(ProcessPathStatus(unparsed, &unparsed.m_pWork), 0);
}

TEST(ProcessPathStatus, IsZeroForAnUnparsedNameWhateverTheText)
{
    CRnUiPathname folder;
    ASSERT_EQ(folder.Parse(L"/tmp", false), 0);
    CRnUiPathname unparsed;
    EXPECT_EQ(ProcessPathStatus(unparsed, &folder.m_pWork), 0);
}

TEST(ProcessParentStatus, AddsNothingForAMissingFolder)
{
    CRnUiPathname name;
    ASSERT_EQ(name.Parse(L"/no/such/folder/", false), 0);
    int status = 7;
    ProcessParentStatus(name, &name.m_pWork, status);
    EXPECT_EQ(status, 7);
    CRnUiPathname unparsed;
    ProcessParentStatus(unparsed, &unparsed.m_pWork, status);
    EXPECT_EQ(status, 7);
}

TEST(ProcessPathStatus, JudgesByTheTypeAndTheFolderByTheResult)
{
    const ScratchFolder scratch;
    ContraryPath refused(1);
    refused.ParseRelative(scratch.widePath().c_str(), nullptr, false);
    EXPECT_EQ(ProcessPathStatus(refused, &refused.m_pWork), 7);
    int status = 0;
    ProcessParentStatus(refused, &refused.m_pWork, status);
    EXPECT_EQ(status, 0);
}

TEST(ProcessParentStatus, CopesWithAParseThatLeavesNothing)
{
    const ScratchFolder scratch;
    ContraryPath empty(0);
    empty.ParseRelative(scratch.widePath().c_str(), nullptr, false);
    int status = 0;
    ProcessParentStatus(empty, &empty.m_pWork, status);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(ProcessPathStatus(empty, &empty.m_pWork), 0);
}
