// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

namespace {

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
