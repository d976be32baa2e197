// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

#include "support/LocaleScope.h"
#include "volume/PlainVolume.h"

#include <gtest/gtest.h>

namespace {

using Text = CStdStr<wchar_t>;

constexpr unsigned char kNoFlags = 0;
constexpr unsigned char kCaseSensitive = 0x40;

struct MatchRow
{
    const char* name;
    const wchar_t* a;
    Text b;
    bool folded;
    bool exact;
};

const MatchRow kRows[] = {
    {"same", L"Name.TXT", L"Name.TXT", true, true},
    {"other case", L"Name", L"nAME", true, false},
    {"other case of one letter", L"c:", L"C:", true, false},
    {"both empty", L"", L"", true, true},
    {"first is empty", L"", L"a", false, false},
    {"second is empty", L"a", L"", false, false},
    {"first is shorter", L"nam", L"name", false, false},
    {"second is shorter", L"name", L"nam", false, false},
    {"other letter", L"name", L"nome", false, false},
    {"neighbours of the letters", L"@[", L"`{", false, false},
    {"letter with an accent in other case", L"\u00e9", L"\u00c9", false, false},
    {"same letter with an accent", L"\u00e9", L"\u00e9", true, true},
    {"terminator in the second", L"AB", Text(L"ab\0cd", 5), true, false},
    {"terminator in the second, same case", L"ab", Text(L"ab\0cd", 5), true, false},
};

void expectMatches(const CRbUiVolumeDescriptor& volume, bool exact)
{
    for (const MatchRow& row : kRows) {
        const bool expected = exact ? row.exact : row.folded;
        const Text a = row.a;
        EXPECT_EQ(volume.VolMatch(row.a, &row.b), expected) << row.name;
        EXPECT_EQ(volume.VolMatch(&a, &row.b), expected) << row.name;
    }
}

TEST(VolMatch, FoldsAsciiCaseByDefault)
{
    const PlainVolume volume(L"C:");
    expectMatches(volume, false);
}

TEST(VolMatch, IsExactOnACaseSensitiveVolume)
{
    PlainVolume volume(L"C:");
    volume.m_flags |= kCaseSensitive;
    expectMatches(volume, true);
}

TEST(VolMatch, ComparesTheWholeLengthOfTwoStringsOnACaseSensitiveVolume)
{
    PlainVolume volume(L"C:");
    volume.m_flags |= kCaseSensitive;
    const Text longer(L"x\0y", 3);
    const Text same(L"x\0y", 3);
    const Text shorter = L"x";
    EXPECT_FALSE(volume.VolMatch(&longer, &shorter));
    EXPECT_FALSE(volume.VolMatch(&shorter, &longer));
    EXPECT_TRUE(volume.VolMatch(&longer, &same));
}

TEST(VolMatch, AsksNoLocaleOfTheHost)
{
    const ktqtbase::test::GlobalLocaleScope odd(ktqtbase::test::oddLocale());
    const ktqtbase::test::LocaleScope utf8("C.UTF-8", LC_CTYPE);
    const PlainVolume volume(L"C:");
    const Text a = L"a";
    EXPECT_FALSE(volume.VolMatch(L"@", &a));
    expectMatches(volume, false);
}

// Answers the question about case otherwise than its flags do.
class ContraryVolume : public PlainVolume
{
public:
    using PlainVolume::PlainVolume;
    bool IsCaseSensitive() const override { return !PlainVolume::IsCaseSensitive(); }
};

TEST(VolMatch, AsksTheDerivedClassAboutCase)
{
    ContraryVolume volume(L"C:");
    expectMatches(volume, true);
    volume.m_flags |= kCaseSensitive;
    expectMatches(volume, false);
}

TEST(VolMatch, OfNullIsFalse)
{
    PlainVolume volume(L"C:");
    const Text text = L"";
    const wchar_t* noWide = nullptr;
    const Text* noText = nullptr;
    for (unsigned char flags : {kNoFlags, kCaseSensitive}) {
        volume.m_flags = flags;
        EXPECT_FALSE(volume.VolMatch(noWide, &text));
        EXPECT_FALSE(volume.VolMatch(L"", noText));
        EXPECT_FALSE(volume.VolMatch(noWide, noText));
        EXPECT_FALSE(volume.VolMatch(&text, noText));
    }
}

} // namespace
