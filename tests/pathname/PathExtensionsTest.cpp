// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"

#include "pathname/Scopes.h"

namespace {

struct VerifyRow
{
    const wchar_t* work;
    const wchar_t* list;
    bool result;
};

struct ExtensionRow
{
    const wchar_t* work;
    const wchar_t* extension;
    const wchar_t* after;
    path_type type = PT_NOT_FOUND;
};

void expectExtensions(int (CRbUiPathname::*edit)(const wchar_t*),
                      std::initializer_list<ExtensionRow> rows)
{
    for (const ExtensionRow& row : rows) {
        SCOPED_TRACE(testing::Message() << row.work << ", " << row.extension);
        HandMadePath name(PC_ROOTED, row.work);
        EXPECT_EQ((name.*edit)(row.extension), 0);
        EXPECT_EQ(workOf(name), row.after);
        EXPECT_EQ(name.m_type, row.type);
    }
}

// The LC_CTYPE of Turkish, in which I and i are letters of two pairs; where it is not installed,
// one in which letters outside ASCII have two cases.
class CaseRulesScope : public Utf8Scope
{
public:
    CaseRulesScope() { std::setlocale(LC_CTYPE, "tr_TR.UTF-8"); }
};

// A host's global locale does not take part.
class ForeignCase : public std::ctype<wchar_t>
{
protected:
    wchar_t do_tolower(wchar_t) const override { return L'#'; }
};

} // namespace

TEST(VerifyExtension, FindsTheExtensionInAList)
{
    for (const VerifyRow& row : std::initializer_list<VerifyRow>{
             {L"/d/a.ABC", L"abc;xyz", true},
             {L"/d/a.xyz", L"abc;xyz", true},
             {L"/d/a.lmn", L"abc;LMN;xyz", true},
             {L"/d/a.txt", L"abc;xyz", false},
             {L"/d/a.ab", L"abc", false},
             {L"/d/a.abcd", L"abc", false},
             {L"/d/a.abc", L"*.abc", false},
             {L"/d/a.abc", L".abc", false},
             {L"/d/a.abc", L" abc", false},
             {L"/d/a.abc", L";;abc", true},
             {L"/d/a.abc", L"abc;", true},
             {L"/d/a.txt", L"abc;", false},
             {L"/d/a.abc", L";", false},
             {L"/d/a", L"abc", false},
             {L"/d/a", L"", true},
             {L"/d/a", nullptr, true},
             {L"/d/a", L";", false},
             {L"/d/a.", L"", true},
             {L"/d/a.txt", L"", false},
             {L"/d/a.txt", nullptr, false},
             {L"/d.txt/a", L"txt", false},
             {L"/d/*.abc", L"abc", true},
             {L"/d/a.\u00c9", L"\u00c9", true},
             {L"/d/a.\u00c9", L"\u00e9", false},
         }) {
        SCOPED_TRACE(testing::Message() << row.work << ", " << row.list);
        EXPECT_EQ(HandMadePath(PC_ROOTED, row.work).VerifyExtension(row.list), row.result);
    }
}

TEST(VerifyExtension, ComparesWhatPrecedesATerminatorInTheExtension)
{
    const HandMadePath name(PC_ROOTED, std::wstring(L"/d/a.abc\0d", 10));
    EXPECT_TRUE(name.VerifyExtension(L"abc"));
    EXPECT_TRUE(name.VerifyExtension(L"xyz;abc"));
    EXPECT_FALSE(name.VerifyExtension(L"abcd"));
    const HandMadePath nothingBefore(PC_ROOTED, std::wstring(L"/d/a.\0d", 7));
    EXPECT_FALSE(nothingBefore.VerifyExtension(L""));
    EXPECT_FALSE(nothingBefore.VerifyExtension(L"abc"));
    EXPECT_TRUE(nothingBefore.VerifyExtension(L"abc;"));
}

TEST(VerifyExtension, TakesAnUnparsedNameForOneWithoutExtension)
{
    const HandMadePath name(PC_ROOTED, L"/d/a.abc", PT_NONE);
    EXPECT_TRUE(name.VerifyExtension(L""));
    EXPECT_TRUE(name.VerifyExtension(nullptr));
    EXPECT_FALSE(name.VerifyExtension(L"abc"));
    EXPECT_TRUE(HandMadePath(PC_ROOTED, L"/d/a.abc", kTypeOfHost).VerifyExtension(L"abc"));
}

TEST(VerifyExtension, FoldsByNoLocaleOfTheHost)
{
    const GlobalLocaleScope foreign(std::locale(std::locale::classic(), new ForeignCase));
    const HandMadePath name(PC_ROOTED, L"/d/a.ABC");
    EXPECT_TRUE(name.VerifyExtension(L"abc"));
    EXPECT_FALSE(name.VerifyExtension(L"xyz"));
}

TEST(VerifyExtension, FoldsAsciiOnlyWhateverTheProcesssCharacterTypes)
{
    const CaseRulesScope rules;
    for (const VerifyRow& row : std::initializer_list<VerifyRow>{
             {L"/d/a.GIF", L"gif", true},
             {L"/d/a.gif", L"GIF", true},
             {L"/d/a.GIF", L"g\u0131f", false}, // a small i without a dot
             {L"/d/a.G\u0130F", L"gif", false}, // a capital I with a dot
             {L"/d/a.g\u0131f", L"gif", false},
             {L"/d/a.\u212A", L"k", false}, // the Kelvin sign
             {L"/d/a.\u00c9", L"\u00e9", false},
             {L"/d/a.\u00e9", L"\u00c9", false},
             {L"/d/a.\u0416", L"\u0436", false},
         }) {
        SCOPED_TRACE(testing::Message() << row.work << ", " << row.list);
        EXPECT_EQ(HandMadePath(PC_ROOTED, row.work).VerifyExtension(row.list), row.result);
    }
}

TEST(GetFirstExtInList, GivesTheFirstItem)
{
    for (const ExtensionRow& row : std::initializer_list<ExtensionRow>{
             {L"", L"abc;xyz", L"abc"},
             {L"", L"abc", L"abc"},
             {L"", L";abc", L""},
             {L"", L"", L""},
             {L"", nullptr, L""},
             {L"", L"*.abc;x", L"*.abc"},
         }) {
        SCOPED_TRACE(testing::Message() << row.extension);
        CStdStr<wchar_t> out(L"poison");
        CRbUiPathname().GetFirstExtInList(row.extension, out);
        EXPECT_EQ(std::wstring(out), row.after);
    }
}

TEST(ReplaceExtensionAlways, ReplacesOrAdds)
{
    expectExtensions(&CRbUiPathname::ReplaceExtensionAlways,
                     {
                         {L"/d/a.txt", L"abc", L"/d/a.abc"},
                         {L"/d/a.txt", L".abc", L"/d/a.abc"},
                         {L"/d/a", L"abc", L"/d/a.abc"},
                         {L"/d/a", L".abc", L"/d/a.abc"},
                         {L"/d/a.txt", L"..abc", L"/d/a..abc"},
                         {L"/d/a.txt", L"", L"/d/a"},
                         {L"/d/a", L"", L"/d/a"},
                         {L"/d/a.txt", L".", L"/d/a."},
                         {L"/d/a.tar.gz", L"zip", L"/d/a.tar.zip"},
                         {L"/d.x/a", L"abc", L"/d.x/a.abc"},
                         {L"/d.x/", L"abc", L"/d.x/.abc"},
                         {L"/d/.profile", L"abc", L"/d/.abc"},
                         {L"C:a.b", L"abc", L"C:a.abc"},
                         {L"", L"abc", L".abc"},
                     });
}

TEST(AddExtensionAlways, AddsADotInAnyCase)
{
    expectExtensions(&CRbUiPathname::AddExtensionAlways, {
                                                             {L"/d/a.txt", L"abc", L"/d/a.txt.abc"},
                                                             {L"/d/a", L"abc", L"/d/a.abc"},
                                                             {L"/d/a", L".abc", L"/d/a..abc"},
                                                             {L"/d/a", L".", L"/d/a.."},
                                                             {L"/d/a", L"", L"/d/a"},
                                                             {L"/d/", L"abc", L"/d/.abc"},
                                                             {L"", L"abc", L".abc"},
                                                         });
}

TEST(ReplaceExtensionIfNoMatch, LeavesAnExtensionOfTheList)
{
    expectExtensions(&CRbUiPathname::ReplaceExtensionIfNoMatch,
                     {
                         {L"/d/a.ABC", L"abc;xyz", L"/d/a.ABC", PT_FILE},
                         {L"/d/a.XYZ", L"abc;xyz", L"/d/a.XYZ", PT_FILE},
                         {L"/d/a.txt", L"abc;xyz", L"/d/a.abc"},
                         {L"/d/a", L"abc;xyz", L"/d/a.abc"},
                         {L"/d/a.txt", L"", L"/d/a"},
                         {L"/d/a.txt", nullptr, L"/d/a"},
                         {L"/d/a.txt", L";abc", L"/d/a"},
                         {L"/d/a", L"", L"/d/a", PT_FILE},
                         {L"/d/a", nullptr, L"/d/a", PT_FILE},
                         {L"/d/a.abc", L"*.abc", L"/d/a.*.abc"},
                     });
}

TEST(AddExtensionIfNoMatch, LeavesAnExtensionOfTheList)
{
    expectExtensions(&CRbUiPathname::AddExtensionIfNoMatch,
                     {
                         {L"/d/a.ABC", L"abc;xyz", L"/d/a.ABC", PT_FILE},
                         {L"/d/a.txt", L"abc;xyz", L"/d/a.txt.abc"},
                         {L"/d/a", L"abc", L"/d/a.abc"},
                         {L"/d/a.txt", L"", L"/d/a.txt"},
                         {L"/d/a.txt", nullptr, L"/d/a.txt"},
                         {L"/d/a", L"", L"/d/a", PT_FILE},
                     });
}

TEST(RemoveExtensionAlways, KeepsTheDotsOfFolders)
{
    for (const ExtensionRow& row : std::initializer_list<ExtensionRow>{
             {L"/d/a.txt", nullptr, L"/d/a"},
             {L"/d.x/a", nullptr, L"/d.x/a"},
             {L"/d/a", nullptr, L"/d/a"},
             {L"/d/.profile", nullptr, L"/d/"},
             {L"/d/a.", nullptr, L"/d/a"},
             {L"/d/a..", nullptr, L"/d/a."},
             {L"a.b", nullptr, L"a"},
             {L"", nullptr, L""},
         }) {
        SCOPED_TRACE(row.work);
        HandMadePath name(PC_ROOTED, row.work);
        name.RemoveExtensionAlways();
        EXPECT_EQ(workOf(name), row.after);
        EXPECT_EQ(name.m_type, PT_NOT_FOUND);
    }
}

TEST(RemoveExtensionIfMatch, RemovesOnlyAnExtensionOfTheList)
{
    for (const ExtensionRow& row : std::initializer_list<ExtensionRow>{
             {L"/d/a.ABC", L"abc;xyz", L"/d/a"},
             {L"/d/a.txt", L"abc;xyz", L"/d/a.txt", PT_FILE},
             {L"/d/a.txt", nullptr, L"/d/a.txt", PT_FILE},
             {L"/d/a.", L"", L"/d/a"},
             {L"/d/a", nullptr, L"/d/a"},
         }) {
        SCOPED_TRACE(testing::Message() << row.work << ", " << row.extension);
        HandMadePath name(PC_ROOTED, row.work);
        name.RemoveExtensionIfMatch(row.extension);
        EXPECT_EQ(workOf(name), row.after);
        EXPECT_EQ(name.m_type, row.type);
    }
}

TEST(Extensions, AskForNullAndForAParsedNameInTwoOrders)
{
    HandMadePath unparsed(PC_ROOTED, L"/d/a.txt", PT_NONE);
    const auto before = fieldsOf(unparsed);
    EXPECT_EQ(unparsed.ReplaceExtensionAlways(nullptr), 2);
    EXPECT_EQ(unparsed.ReplaceExtensionAlways(L"abc"), 2);
    EXPECT_EQ(unparsed.AddExtensionAlways(nullptr), 1);
    EXPECT_EQ(unparsed.AddExtensionAlways(L"abc"), 2);
    EXPECT_EQ(unparsed.ReplaceExtensionIfNoMatch(L"abc"), 2);
    EXPECT_EQ(unparsed.AddExtensionIfNoMatch(L"abc"), 2);
    EXPECT_EQ(unparsed.ReplaceExtensionIfNoMatch(nullptr), 0);
    EXPECT_EQ(unparsed.AddExtensionIfNoMatch(L""), 0);
    unparsed.RemoveExtensionAlways();
    unparsed.RemoveExtensionIfMatch(nullptr);
    EXPECT_EQ(fieldsOf(unparsed), before);
}

TEST(Extensions, RefuseNullForAParsedName)
{
    HandMadePath name(PC_ROOTED, L"/d/a.txt");
    const auto before = fieldsOf(name);
    EXPECT_EQ(name.ReplaceExtensionAlways(nullptr), 1);
    EXPECT_EQ(name.AddExtensionAlways(nullptr), 1);
    EXPECT_EQ(fieldsOf(name), before);
}

TEST(Extensions, DoNotEditAHostsTypeOrAMissingWorkString)
{
    HandMadePath ofHost(PC_ROOTED, L"/d/a.txt", kTypeOfHost);
    EXPECT_EQ(ofHost.ReplaceExtensionAlways(L"abc"), 2);
    EXPECT_EQ(ofHost.AddExtensionAlways(L"abc"), 2);
    ofHost.RemoveExtensionAlways();
    EXPECT_EQ(workOf(ofHost), L"/d/a.txt");
    ReleaseCStrPtr(&ofHost.m_pWork);
    ofHost.m_type = PT_FILE;
    EXPECT_EQ(ofHost.ReplaceExtensionAlways(L"abc"), 2);
    EXPECT_EQ(ofHost.AddExtensionAlways(L"abc"), 2);
}

TEST(Extensions, MayLieInTheNameItself)
{
    HandMadePath replaced(PC_ROOTED, L"/d/abc.txt");
    EXPECT_EQ(replaced.ReplaceExtensionAlways(replaced.m_pWork->c_str() + 6), 0);
    EXPECT_EQ(workOf(replaced), L"/d/abc.txt");
    EXPECT_EQ(replaced.ReplaceExtensionAlways(replaced.m_pWork->c_str() + 3), 0);
    EXPECT_EQ(workOf(replaced), L"/d/abc.abc.txt");
    HandMadePath added(PC_ROOTED, L"/d/abc.txt");
    EXPECT_EQ(added.AddExtensionAlways(added.m_pWork->c_str() + 7), 0);
    EXPECT_EQ(workOf(added), L"/d/abc.txt.txt");
    HandMadePath matched(PC_ROOTED, L"/d/abc.txt");
    EXPECT_EQ(matched.AddExtensionIfNoMatch(matched.m_pWork->c_str() + 7), 0);
    EXPECT_EQ(matched.ReplaceExtensionIfNoMatch(matched.m_pWork->c_str() + 8), 0);
    EXPECT_EQ(workOf(matched), L"/d/abc.xt");
}

TEST(Extensions, LieBehindTheSeparatorOfTheObject)
{
    HandMadePath removed(PC_ROOTED, L"/d.x|a");
    removed.m_separator = L'|';
    removed.RemoveExtensionAlways();
    EXPECT_EQ(workOf(removed), L"/d.x|a");
    HandMadePath replaced(PC_ROOTED, L"/d.x|a");
    replaced.m_separator = L'|';
    EXPECT_EQ(replaced.ReplaceExtensionAlways(L"y"), 0);
    EXPECT_EQ(workOf(replaced), L"/d.x|a.y");
}
