// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

namespace {

struct TextRow
{
    const wchar_t* before;
    const wchar_t* after;
};

struct CaseRow
{
    const wchar_t* work;
    const wchar_t* lower;
    const wchar_t* upper;
};

// Folds and blanks that no other locale has.
class ForeignClasses : public std::ctype<wchar_t>
{
protected:
    wchar_t do_toupper(wchar_t ch) const override { return ch == L'a' ? L'#' : ch; }
    wchar_t do_tolower(wchar_t ch) const override { return ch == L'A' ? L'%' : ch; }
    const wchar_t* do_toupper(wchar_t* low, const wchar_t* high) const override
    {
        for (; low < high; ++low)
            *low = do_toupper(*low);
        return high;
    }
    const wchar_t* do_tolower(wchar_t* low, const wchar_t* high) const override
    {
        for (; low < high; ++low)
            *low = do_tolower(*low);
        return high;
    }
};

} // namespace

TEST(RemoveSpaces, TrimsTheStemOfTheLastComponent)
{
    for (const TextRow& row : std::initializer_list<TextRow>{
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

TEST(BaseCase, ChangesTheLastComponentOnly)
{
    for (const CaseRow& row : std::initializer_list<CaseRow>{
             {L"/Dir/Name.Txt", L"/Dir/name.txt", L"/Dir/NAME.TXT"},
             {L"C:File", L"C:file", L"C:FILE"},
             {L"Name", L"name", L"NAME"},
             {L"/Dir/", L"/Dir/", L"/Dir/"},
             {L"", L"", L""},
             {L"Dir/1.2", L"Dir/1.2", L"Dir/1.2"},
         }) {
        SCOPED_TRACE(row.work);
        HandMadePath lower(PC_ROOTED, row.work, PT_WILDCARD);
        HandMadePath upper(PC_ROOTED, row.work, kTypeOfHost);
        lower.BaseToLower();
        upper.BaseToUpper();
        EXPECT_EQ(workOf(lower), row.lower);
        EXPECT_EQ(workOf(upper), row.upper);
        EXPECT_EQ(lower.m_type, PT_WILDCARD);
        EXPECT_EQ(upper.m_type, kTypeOfHost);
    }
}

TEST(BaseCase, FoldsByTheGlobalLocale)
{
    const GlobalLocaleScope foreign(std::locale(std::locale::classic(), new ForeignClasses));
    HandMadePath name(PC_ROOTED, L"/aA/aAbB");
    name.BaseToUpper();
    EXPECT_EQ(workOf(name), L"/aA/#AbB");
    name.BaseToLower();
    EXPECT_EQ(workOf(name), L"/aA/#%bB");
}

TEST(BaseCase, ChangesNothingThatIsNotParsed)
{
    HandMadePath name(PC_ROOTED, L"/Dir/Name", PT_NONE);
    name.BaseToLower();
    name.BaseToUpper();
    EXPECT_EQ(workOf(name), L"/Dir/Name");
    CRbUiPathname empty;
    empty.BaseToLower();
    empty.BaseToUpper();
    expectUnparsed(empty);
}

TEST(UpperPathFirstChar, TouchesALeadingDriveOnly)
{
    const Utf8Scope utf8;
    for (const TextRow& row : std::initializer_list<TextRow>{
             {L"c:/x", L"C:/x"},
             {L"c:", L"C:"},
             {L"C:", L"C:"},
             {L"\u00e9:/x", L"\u00c9:/x"},
             {L"\u0436:", L"\u0416:"},
             {L"1:/x", L"1:/x"},
             {L"c", L"c"},
             {L"", L""},
             {L"c/x:", L"c/x:"},
             {L":c", L":c"},
             {L"/c:", L"/c:"},
         }) {
        SCOPED_TRACE(row.before);
        CStdStr<wchar_t> text(row.before);
        upperPathFirstChar(text);
        EXPECT_EQ(std::wstring(text), row.after);
    }
}
