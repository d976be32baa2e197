// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

namespace {

struct MatchRow
{
    const wchar_t* work;
    const wchar_t* other;
    bool result;
};

// Takes every character for another.
class ForeignCase : public std::ctype<wchar_t>
{
protected:
    wchar_t do_tolower(wchar_t) const override { return L'#'; }
};

} // namespace

TEST(PathMatch, ComparesFullPathsInAnyCase)
{
    const Utf8Scope utf8;
    for (const MatchRow& row : std::initializer_list<MatchRow>{
             {L"C:/dir", L"c:/Dir/", true},
             {L"C:/dir/", L"c:/Dir", true},
             {L"C:/dir/", L"c:/Dir/", true},
             {L"C:/dir", L"c:/Dir//", false},
             {L"C:/dir", L"D:/dir", false},
             {L"C:/dir", L"C:/di", false},
             {L"C:/dir", L"C:/dirs", false},
             {L"C:/dir", L"C:\\dir", false},
             {L"C:/dir", L"", false},
             {L"C:/dir", nullptr, false},
             {L"/Z[`z", L"/z[`Z", true},
             {L"/[", L"/{", false},
             {L"/\u00c9", L"/\u00c9", true},
             {L"/\u00c9", L"/\u00e9", false},
             {L"\u00c9:/x", L"\u00e9:/x", true},
             {L"\u00e9:/x", L"\u00e9:/x", false},
             {L"/", L"/", true},
             {L"/", L"", true},
             {L"", L"/", true},
             {L"", L"", true},
         }) {
        SCOPED_TRACE(testing::Message() << row.work << ", " << row.other);
        EXPECT_EQ(HandMadePath(PC_DRIVE, row.work).PathMatch(row.other), row.result);
    }
}

TEST(PathMatch, PutsThePrefixInFront)
{
    HandMadePath name(PC_RELATIVE, L"docs/f.txt");
    name.setPrefix(L"/home/u");
    EXPECT_TRUE(name.PathMatch(L"/HOME/u/docs/F.txt"));
    EXPECT_FALSE(name.PathMatch(L"docs/f.txt"));
    HandMadePath whole(PC_ROOTED, L"/home/u/docs/f.txt/");
    EXPECT_TRUE(name.PathMatch(&whole));
    EXPECT_TRUE(whole.PathMatch(&name));
}

TEST(PathMatch, MayBeGivenTheNamesOwnText)
{
    const HandMadePath name(PC_ROOTED, L"/Dir/");
    EXPECT_TRUE(name.PathMatch(name.GetPathString()));
    EXPECT_FALSE(name.PathMatch(name.GetPathString() + 1));
}

TEST(PathMatch, NeedsTheSameVolume)
{
    const CRbUiNTFSVolumeDescriptor volume(L"C:");
    const CRbUiNTFSVolumeDescriptor twin(L"C:");
    HandMadePath name(PC_DRIVE, L"C:/x");
    HandMadePath other(PC_DRIVE, L"C:/X");
    EXPECT_TRUE(name.PathMatch(&other));
    name.m_pVolume = &volume;
    EXPECT_FALSE(name.PathMatch(&other));
    other.m_pVolume = &twin;
    EXPECT_FALSE(name.PathMatch(&other));
    other.m_pVolume = &volume;
    EXPECT_TRUE(name.PathMatch(&other));
}

TEST(PathMatch, IgnoresTheCaseRuleOfTheVolume)
{
    CRbUiNTFSVolumeDescriptor volume(L"C:");
    volume.m_flags |= 0x40;
    HandMadePath name(PC_DRIVE, L"C:/x");
    HandMadePath other(PC_DRIVE, L"C:/X");
    name.m_pVolume = other.m_pVolume = &volume;
    EXPECT_TRUE(name.PathMatch(&other));
}

TEST(PathMatch, FoldsByNoLocaleOfTheHost)
{
    const GlobalLocaleScope foreign(std::locale(std::locale::classic(), new ForeignCase));
    const HandMadePath name(PC_ROOTED, L"/abc");
    EXPECT_TRUE(name.PathMatch(L"/ABC"));
    EXPECT_FALSE(name.PathMatch(L"/xyz"));
}

TEST(PathMatch, IsFalseForNullAndUnparsedNames)
{
    const CRbUiPathname unparsed;
    const HandMadePath name(PC_ROOTED, L"/x");
    EXPECT_FALSE(name.PathMatch(static_cast<const CRbUiPathname*>(nullptr)));
    EXPECT_FALSE(name.PathMatch(&unparsed));
    EXPECT_FALSE(unparsed.PathMatch(&name));
    EXPECT_FALSE(unparsed.PathMatch(L""));
    EXPECT_TRUE(unparsed.PathMatch(&unparsed));
    EXPECT_TRUE(name.PathMatch(&name));
}

TEST(GetFullUNCPath, LeavesItsArgumentAlone)
{
    CStdStr<wchar_t> out(L"poison");
    HandMadePath(PC_UNC, L"//s/d").GetFullUNCPath(out);
    EXPECT_EQ(std::wstring(out), L"poison");
}
