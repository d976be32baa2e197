// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

#include <cstdlib>
#include <cwchar>

namespace {

// What rand() answers in this program, and how often it was asked.
int g_number = 0;
int g_calls = 0;
int g_numberAfter = 0;
int g_callsBefore = 0;

// Lets rand() answer a number always, or so many times before it answers another.
void answerRand(int number, int times = 0, int numberAfter = 0)
{
    g_number = number;
    g_callsBefore = times;
    g_numberAfter = numberAfter;
    g_calls = 0;
}

struct UniqueRow
{
    const char* file;
    const wchar_t* unique;
};

struct RoomRow
{
    std::size_t folder;
    const wchar_t* base;
    const wchar_t* unique;
};

// A work string of a folder's length, with its separator, that no file has.
std::wstring folderOfLength(std::size_t length)
{
    return length == 0 ? L"" : L"/" + std::wstring(length - 2, L'f') + L"/";
}

} // namespace

extern "C" __attribute__((visibility("default"))) int rand() noexcept
{
    ++g_calls;
    return g_callsBefore > 0 && g_calls > g_callsBefore ? g_numberAfter : g_number;
}

TEST(GetUniqueName, PutsFiveDigitsBehindTheStem)
{
    const ScratchFolder folder;
    for (const UniqueRow& row : std::initializer_list<UniqueRow>{
             {"report.txt", L"report01234.txt"},
             {"archive.tar.gz", L"archive.tar01234.gz"},
             {".profile", L"ktTmp01234.profile"},
             {"a.b", L"a01234.b"},
         }) {
        SCOPED_TRACE(row.file);
        folder.addFile(row.file);
        const HandMadePath name(PC_ROOTED, folder.widePath(row.file));
        answerRand(1234);
        CRbUiPathname result;
        EXPECT_TRUE(name.GetUniqueName(result, false));
        EXPECT_EQ(workOf(result), folder.widePath() + L"/" + row.unique);
        EXPECT_EQ(result.m_type, PT_NOT_FOUND);
        EXPECT_EQ(g_calls, 1);
    }
}

TEST(GetUniqueName, PutsDigitsOneCharacterEarlyWithoutExtension)
{
    const ScratchFolder folder;
    for (const UniqueRow& row : std::initializer_list<UniqueRow>{
             {"data", L"dat012340"}, {"x", L"012340"}, {"dot.", L"do012340"}}) {
        SCOPED_TRACE(row.file);
        folder.addFile(row.file);
        const HandMadePath name(PC_ROOTED, folder.widePath(row.file));
        answerRand(1234);
        CRbUiPathname result;
        EXPECT_TRUE(name.GetUniqueName(result, false));
        EXPECT_EQ(workOf(result), folder.widePath() + L"/" + row.unique);
    }
}

TEST(GetUniqueName, GivesANameThatIsFreeAsItIs)
{
    for (path_type type : {PT_NOT_FOUND, PT_FILE, PT_DIRECTORY}) {
        SCOPED_TRACE(type);
        const HandMadePath name(PC_ROOTED, L"/no/such/none.txt", type);
        answerRand(1234);
        CRbUiPathname result;
        EXPECT_TRUE(name.GetUniqueName(result, false));
        EXPECT_EQ(workOf(result), workOf(name));
        EXPECT_EQ(result.m_type, PT_NOT_FOUND);
        EXPECT_EQ(name.m_type, type);
        EXPECT_EQ(g_calls, 0);
    }
}

TEST(GetUniqueName, TakesAFolderOfTheNameForATakenOne)
{
    const ScratchFolder folder;
    folder.addFolder("data", 0770);
    const HandMadePath name(PC_ROOTED, folder.widePath("data"), PT_DIRECTORY);
    answerRand(1234);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, false));
    EXPECT_EQ(workOf(result), folder.widePath("dat012340"));
}

TEST(GetUniqueName, MakesANewNameByForce)
{
    const HandMadePath name(PC_ROOTED, L"/no/such/none.txt");
    answerRand(7);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, true));
    EXPECT_EQ(workOf(result), L"/no/such/none00007.txt");
}

TEST(GetUniqueName, GivesAWildcardAsItIsUnlessForced)
{
    const HandMadePath name(PC_ROOTED, L"/no/such/*.txt", PT_WILDCARD);
    answerRand(42);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, false));
    EXPECT_EQ(fieldsOf(result), fieldsOf(name));
    EXPECT_TRUE(name.GetUniqueName(result, true));
    EXPECT_EQ(workOf(result), L"/no/such/ktTmp00042.txt");
}

TEST(GetUniqueName, CopiesATypeThatNothingIsKnownOf)
{
    const HandMadePath name(PC_ROOTED, L"/", kUnknownType);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, false));
    EXPECT_EQ(fieldsOf(result), fieldsOf(name));
}

TEST(GetUniqueName, CountsAHostsTypeAsTakenAlways)
{
    for (const wchar_t* work : {L"/no/such/none.txt", L"a", L"", L"/"}) {
        SCOPED_TRACE(work);
        const HandMadePath name(PC_ROOTED, work, kTypeOfHost);
        const HandMadePath bare(PC_RELATIVE, work, kTypeOfHost);
        for (const HandMadePath* each : {&name, &bare}) {
            answerRand(99999);
            CRbUiPathname result;
            EXPECT_TRUE(each->GetUniqueName(result, false));
            expectUnparsed(result);
            EXPECT_EQ(g_calls, 200);
        }
    }
}

TEST(GetUniqueName, CountsAHostsNameAsAFolderAsAWhole)
{
    struct
    {
        const char* name;
        std::size_t length;
        const wchar_t* extension;
        bool hasRoom;
    } const rows[] = {{"room for one character", 1016, L"", true},
                      {"no room", 1017, L"", false},
                      {"nearly the longest name", 1020, L"", false},
                      {"room beside the extension", 1013, L".txt", true},
                      {"the extension takes the room", 1014, L".txt", false}};
    for (const auto& row : rows) {
        const std::size_t stem = row.length - std::wcslen(row.extension);
        const HandMadePath name(PC_RELATIVE, std::wstring(stem, L'n') + row.extension, kTypeOfHost);
        for (bool force : {false, true}) {
            SCOPED_TRACE(testing::Message() << row.name << ", force " << force);
            answerRand(7);
            HandMadePath result(PC_ROOTED, L"/old");
            EXPECT_EQ(name.GetUniqueName(result, force), row.hasRoom);
            expectUnparsed(result);
            EXPECT_EQ(g_calls, row.hasRoom ? 200 : 0);
        }
    }
}

TEST(GetUniqueName, CutsAtTheSeparatorOfTheObject)
{
    for (const auto& [work, unique] :
         {std::make_pair(L"d!a/b.txt", L"d!a/b00007.txt"),
          std::make_pair(L"a/b.txt", L"a/b00007.txt"), std::make_pair(L"d.x!a", L"d.x!000070"),
          std::make_pair(L"!none!", L"!none!ktTm000070")}) {
        SCOPED_TRACE(work);
        HandMadePath name(PC_RELATIVE, work);
        name.m_separator = L'!';
        answerRand(7);
        CRbUiPathname result;
        EXPECT_TRUE(name.GetUniqueName(result, true));
        EXPECT_EQ(workOf(result), unique);
    }
}

TEST(GetUniqueName, LeavesTheResultAloneWhereNothingIsParsed)
{
    HandMadePath result(PC_ROOTED, L"/old");
    const auto before = fieldsOf(result);
    EXPECT_FALSE(CRbUiPathname().GetUniqueName(result, false));
    EXPECT_FALSE(CRbUiPathname().GetUniqueName(result, true));
    EXPECT_EQ(fieldsOf(result), before);
}

TEST(GetUniqueName, CopiesANameWithoutAWorkString)
{
    HandMadePath name(PC_ROOTED, L"");
    ReleaseCStrPtr(&name.m_pWork);
    HandMadePath result(PC_ROOTED, L"/old");
    EXPECT_TRUE(name.GetUniqueName(result, true));
    EXPECT_EQ(workOf(result), L"(none)");
    EXPECT_EQ(result.m_type, PT_FILE);
}

TEST(GetUniqueName, WritesTheNumberModuloAHundredThousand)
{
    const HandMadePath name(PC_ROOTED, L"/no/such/none.txt");
    for (const auto& [number, unique] : {std::make_pair(1234567, L"/no/such/none34567.txt"),
                                         std::make_pair(100000, L"/no/such/none00000.txt"),
                                         std::make_pair(99999, L"/no/such/none99999.txt")}) {
        answerRand(number);
        CRbUiPathname result;
        EXPECT_TRUE(name.GetUniqueName(result, true));
        EXPECT_EQ(workOf(result), unique);
    }
}

TEST(GetUniqueName, KeepsANameFoundFreeAtTheLastTry)
{
    const ScratchFolder folder;
    folder.addFile("report.txt");
    folder.addFile("report00007.txt");
    const HandMadePath name(PC_ROOTED, folder.widePath("report.txt"));
    answerRand(7, 199, 8);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, false));
    EXPECT_EQ(workOf(result), folder.widePath("report00008.txt"));
    EXPECT_EQ(g_calls, 200);
}

TEST(GetUniqueName, EmptiesTheResultAfterTwoHundredTakenNames)
{
    const ScratchFolder folder;
    folder.addFile("report.txt");
    folder.addFile("report00007.txt");
    const HandMadePath name(PC_ROOTED, folder.widePath("report.txt"));
    answerRand(7, 200, 8);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, false));
    expectUnparsed(result);
    EXPECT_EQ(g_calls, 200);
}

TEST(GetUniqueName, StopsAtACandidateThatIsAWildcard)
{
    const HandMadePath name(PC_ROOTED, L"/no/such/a.t?t");
    answerRand(7, 1, 8);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, true));
    EXPECT_EQ(workOf(result), L"/no/such/a00008.t?t");
    EXPECT_EQ(result.m_type, PT_WILDCARD);
    EXPECT_EQ(g_calls, 2);
}

TEST(GetUniqueName, CutsTheStemToTheRoomThatIsLeft)
{
    for (const RoomRow& row : std::initializer_list<RoomRow>{
             {1011, L"report", L"repor000070"}, // the stem fits, its last place is a digit's
             {1012, L"report", L"repo000070"},
             {1013, L"report", L"rep000070"},
             {1014, L"report", L"re000070"},
             {1015, L"report", L"r000070"},
             {1016, L"report", L"000070"},
             {1017, L"report", nullptr},
             {1020, L"report", nullptr},
             {1023, L"report", nullptr},
             {1011, L"report.txt", L"rep00007.txt"},
             {1012, L"report.txt", L"re00007.txt"},
             {1013, L"report.txt", L"r00007.txt"},
             {1014, L"report.txt", nullptr},
             {1020, L"a.b", nullptr},
             {1100, L"a", nullptr},
         }) {
        SCOPED_TRACE(testing::Message() << row.base << " behind " << row.folder);
        const std::wstring before = folderOfLength(row.folder);
        const HandMadePath name(PC_ROOTED, before + row.base);
        answerRand(7);
        CRbUiPathname result;
        EXPECT_EQ(name.GetUniqueName(result, true), row.unique != nullptr);
        if (row.unique) {
            EXPECT_EQ(workOf(result), before + row.unique);
        } else {
            expectUnparsed(result);
        }
    }
}

TEST(GetUniqueName, LeavesRoomForAFolderOfFourCharacters)
{
    for (std::size_t length : {0u, 2u, 4u}) {
        SCOPED_TRACE(length);
        const std::wstring before = folderOfLength(length);
        const HandMadePath name(length ? PC_ROOTED : PC_RELATIVE,
                                before + std::wstring(1020, L's') + L".txt");
        answerRand(7);
        CRbUiPathname result;
        EXPECT_TRUE(name.GetUniqueName(result, true));
        EXPECT_EQ(workOf(result), before + std::wstring(1010, L's') + L"00007.txt");
    }
}

TEST(GetUniqueName, HasNoFolderPartForABareName)
{
    const ScratchFolder folder;
    folder.addFile("report.txt");
    HandMadePath name(PC_RELATIVE, L"report.txt");
    name.setPrefix(folder.widePath());
    answerRand(1234);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, false));
    EXPECT_EQ(workOf(result), L"report01234.txt");
    EXPECT_EQ(prefixOf(result), folder.widePath());
}

TEST(GetUniqueName, RootsANameThatLiesOnABareDrive)
{
    const HandMadePath name(PC_DRIVE, L"Q:report.txt");
    answerRand(1234);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, true));
    EXPECT_EQ(workOf(result), L"Q:/report01234.txt");
}

TEST(GetUniqueName, AppendsToANameThatCannotBeCut)
{
    const HandMadePath name(kUnknownCategory, L"/no/such/data");
    answerRand(1234);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, true));
    EXPECT_EQ(workOf(result), L"/no/such/datadat012340");
}

TEST(GetUniqueName, MakesANameInAFolderWithAClosingSeparator)
{
    const HandMadePath name(PC_ROOTED, L"/no/such/");
    answerRand(1234);
    CRbUiPathname result;
    EXPECT_TRUE(name.GetUniqueName(result, true));
    EXPECT_EQ(workOf(result), L"/no/such/ktTm012340");
}

TEST(GetUniqueName, MayBeGivenTheObjectItself)
{
    HandMadePath name(PC_ROOTED, L"/no/such/none.txt");
    answerRand(7);
    EXPECT_TRUE(name.GetUniqueName(name, true));
    EXPECT_EQ(workOf(name), L"/no/such/none00007.txt");
    EXPECT_TRUE(name.GetUniqueName(name, false));
    EXPECT_EQ(workOf(name), L"/no/such/none00007.txt");
}

TEST(GetUniqueName, CopiesThroughTheResultsOwnAssignCopy)
{
    const HandMadePath name(PC_ROOTED, L"/no/such/none.txt");
    CountingPath<CRbUiPathname> base;
    CountingPath<CRnUiPathname> derived;
    EXPECT_TRUE(name.GetUniqueName(base, false));
    EXPECT_TRUE(name.GetUniqueName(derived, true));
    EXPECT_EQ(base.copies, 1);
    EXPECT_EQ(derived.copies, 1);
    EXPECT_TRUE(base.GetUniqueName(base, true));
    EXPECT_EQ(base.copies, 2);
}
