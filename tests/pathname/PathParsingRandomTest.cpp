// SPDX-License-Identifier: MIT
//
// Parses of random texts beside a slow reading of the same, by an object that is new each time and
// by one that keeps its strings from parse to parse.
#include "pathname/HandMadePath.h"
#include "support/RandomNames.h"
#include "support/SlowPathName.h"
#include "support/TemporaryFolder.h"

#include <filesystem>

namespace {

using ktqtbase::test::TemporaryFolder;

constexpr int kRounds = 60000;

// Short texts of hardly anything but the characters that a parse looks for, and names.
class Texts
{
public:
    std::wstring next()
    {
        static const std::wstring marks = L"aC\u00e9\u4e00::\\\\//*? \t\".";
        if (m_random.oneIn(2))
            return m_random.name();
        std::wstring text = m_random.oneIn(2) ? std::wstring(m_random.below(40), L'x') : L"";
        for (std::size_t more = m_random.below(6); more > 0; --more) {
            const std::size_t place = m_random.below(text.size() + 1);
            text.insert(place, 1, marks[m_random.below(marks.size())]);
        }
        return text;
    }

    RandomNames& random() { return m_random; }

private:
    RandomNames m_random;
};

class RandomParse : public testing::Test
{
protected:
    RandomParse()
    {
        EXPECT_EQ(m_base.ParseRelative(L"/no/such/folder", nullptr, false), 0);
        m_reused.m_category = PC_RELATIVE;
    }

    const CRbUiPathname* base(bool withBase) const { return withBase ? &m_base : nullptr; }

    static slow::Parse expected(const std::wstring& text, bool withBase)
    {
        return slow::parse(text, withBase ? std::make_optional(L"/no/such/folder") : std::nullopt);
    }

    Texts m_texts;
    CRbUiPathname m_base;
    CRbUiPathname m_reused;
};

void expectParsed(const CRbUiPathname& name, const slow::Parse& expected)
{
    ASSERT_EQ(workOf(name), expected.name.work);
    ASSERT_EQ(prefixOf(name), expected.name.prefix.value_or(L"(none)"));
    ASSERT_EQ(static_cast<int>(name.m_category), expected.name.category);
    // Of rooted names, such as the root itself, some may exist.
    const bool exists = name.m_category == PC_ROOTED && name.m_type > PT_WILDCARD;
    ASSERT_EQ(exists ? slow::NotFound : static_cast<int>(name.m_type), expected.name.type);
    ASSERT_EQ(name.m_pVolume, nullptr);
}

TEST_F(RandomParse, AgreesWithTheSlowReadingInAFreshObject)
{
    int good = 0;
    for (int round = 0; round < kRounds; ++round) {
        const std::wstring text = m_texts.next();
        const bool withBase = !m_texts.random().oneIn(4);
        SCOPED_TRACE(testing::Message() << "round " << round << ": " << text);
        const slow::Parse parse = expected(text, withBase);
        CRbUiPathname name;
        ASSERT_EQ(name.ParseRelative(text.c_str(), base(withBase), false), parse.good ? 0 : 1);
        ASSERT_EQ(name.m_bQualified, parse.good && parse.qualified);
        if (parse.good)
            expectParsed(name, parse);
        else
            expectUnparsed(name);
        good += parse.good;
    }
    EXPECT_GT(good, kRounds / 2);
    EXPECT_LT(good, kRounds - kRounds / 8);
}

TEST_F(RandomParse, AgreesWithTheSlowReadingInAnObjectThatWasParsedBefore)
{
    bool qualified = false;
    for (int round = 0; round < kRounds; ++round) {
        const std::wstring text = m_texts.next();
        const bool withBase = !m_texts.random().oneIn(4);
        SCOPED_TRACE(testing::Message() << "round " << round << ": " << text);
        const slow::Parse parse = expected(text, withBase);
        const int category = parse.category.value_or(m_reused.m_category);
        const int result = m_reused.ParseRelative(text.c_str(), base(withBase), false);
        ASSERT_EQ(result, parse.good ? 0 : 1);
        ASSERT_EQ(static_cast<int>(m_reused.m_category), category);
        qualified = qualified || (parse.good && parse.qualified);
        ASSERT_EQ(m_reused.m_bQualified, qualified);
        if (parse.good)
            expectParsed(m_reused, parse);
        else
            expectUnparsed(m_reused);
    }
}

TEST_F(RandomParse, OfATextInItsOwnStringsReadsTheTextFirst)
{
    for (int round = 0; round < kRounds; ++round) {
        const std::wstring text = m_texts.next();
        SCOPED_TRACE(testing::Message() << "round " << round << ": " << text);
        if (m_reused.ParseRelative(text.c_str(), &m_base, false) != 0)
            continue;
        const bool inPrefix = m_reused.m_pRelPath && m_texts.random().oneIn(3);
        const CStdStr<wchar_t>& own = inPrefix ? *m_reused.m_pRelPath : *m_reused.m_pWork;
        const std::size_t start = m_texts.random().below(own.size() + 1);
        const slow::Parse parse = expected(own.substr(start), true);
        const int result = m_reused.ParseRelative(own.c_str() + start, &m_base, false);
        ASSERT_EQ(result, parse.good ? 0 : 1) << "from " << start;
        if (parse.good)
            expectParsed(m_reused, parse);
        else
            expectUnparsed(m_reused);
    }
}

// The longest names that the room on the stack holds, with and without their prefix, are among
// these.
TEST(ParseRelative, FindsAFileByANameOfEveryLength)
{
    const TemporaryFolder folder;
    std::ofstream(folder / "f").put('x');
    std::filesystem::permissions(folder / "f", std::filesystem::perms::owner_all);
    const std::wstring path = folder.path().wstring();
    CRbUiPathname base;
    ASSERT_EQ(base.ParseRelative(path.c_str(), nullptr, false), 0);
    for (std::size_t length = 950; length < 1030; ++length) {
        const std::wstring name = std::wstring(L"./").append(length - 3, L'/') + L"f";
        for (const wchar_t* missing : {L"", L"g"}) {
            const path_type type = *missing ? PT_NOT_FOUND : PT_FILE;
            CRbUiPathname relative;
            ASSERT_EQ(relative.ParseRelative((name + missing).c_str(), &base, false), 0);
            EXPECT_EQ(relative.m_type, type) << length;
            CRbUiPathname rooted;
            const std::wstring full = path + L"/" + name + missing;
            ASSERT_EQ(rooted.ParseRelative(full.c_str(), nullptr, false), 0);
            EXPECT_EQ(rooted.m_type, type) << length;
        }
    }
}

} // namespace
