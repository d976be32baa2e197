// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"

namespace {

struct SpacesRow
{
    const wchar_t* before;
    const wchar_t* after;
};

} // namespace

TEST(RemoveSpaces, TrimsTheStemOfTheLastComponent)
{
    for (const SpacesRow& row : std::initializer_list<SpacesRow>{
             {L"dir/  name  .txt", L"dir/name.txt"},
             {L"dir/ name. txt", L"dir/name. txt"},
             {L"dir/ name .txt ", L"dir/name.txt "},
             {L"dir/ name ", L"dir/name"},
             {L" dir / name ", L" dir /name"},
             {L"C: name .txt", L"C:name.txt"},
             {L"\t name \n.txt", L"name.txt"},
             {L"a b .c d .txt", L"a b .c d.txt"},
             {L"dir/   ", L"dir/"},
             {L"dir/  .txt", L"dir/.txt"},
             {L"dir/.txt ", L"dir/.txt "},
             {L"a. b/ c ", L"a. b/c"},
             {L"dir/", L"dir/"},
             {L"C:", L"C:"},
             {L"name", L"name"},
             {L"", L""},
             {L".", L"."},
             {L"..", L".."},
             {L" ..", L".."},
             {L"dir/ .", L"dir/."},
         }) {
        SCOPED_TRACE(row.before);
        HandMadePath name(PC_RELATIVE, row.before);
        name.RemoveSpaces();
        EXPECT_EQ(workOf(name), row.after);
        EXPECT_EQ(name.m_type, PT_FILE);
    }
}

TEST(RemoveSpaces, AsksOnlyForAWorkString)
{
    HandMadePath unparsed(PC_RELATIVE, L" a ", PT_NONE);
    unparsed.RemoveSpaces();
    EXPECT_EQ(workOf(unparsed), L"a");
    CRbUiPathname empty;
    empty.RemoveSpaces();
    EXPECT_EQ(empty.m_pWork, nullptr);
}
