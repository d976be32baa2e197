// SPDX-License-Identifier: MIT
//
// What is true for every name, tested with random ones; the seed is fixed, so a failure repeats.
#include "pathname/HandMadePath.h"
#include "support/RandomNames.h"
#include "support/SlowPathName.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int kRounds = 25000;

// A base that exists nowhere, so that no file of the machine matters.
class ParsedNames : public testing::Test
{
protected:
    ParsedNames() { EXPECT_EQ(m_base.ParseRelative(L"/no/such/folder/", nullptr, false), 0); }

    // Parses random texts until one is a name.
    void parseNext(CRbUiPathname& name)
    {
        while (name.ParseRelative(m_random.name().c_str(), &m_base, false) != 0) {
        }
    }

    RandomNames m_random;
    CRbUiPathname m_base;
};

std::wstring fullPathOf(const CRbUiPathname& name)
{
    CStdStr<wchar_t> path;
    name.GetFullPath(path);
    return path;
}

// A name of any category and the same for the slow reading.
class HandMadeNames : public testing::Test
{
protected:
    std::wstring work()
    {
        std::wstring result = m_random.text(m_random.length());
        std::replace(result.begin(), result.end(), L'"', m_random.oneIn(2) ? L':' : L'/');
        return m_random.oneIn(4) ? result + L"/" : result;
    }

    slow::Name next()
    {
        slow::Name name;
        name.category = static_cast<int>(m_random.below(5));
        name.work = work();
        name.volumeLength = static_cast<int>(m_random.below(8));
        name.type = 1 + static_cast<int>(m_random.below(4));
        if (!m_random.oneIn(3))
            name.prefix = m_random.oneIn(5) ? L"" : m_random.name();
        return name;
    }

    // The library's object for a name; its volume is this fixture's.
    void make(const slow::Name& name, CRbUiPathname& made)
    {
        made.Empty();
        made.m_category = static_cast<path_category>(name.category);
        made.m_type = static_cast<path_type>(name.type);
        made.m_pWork = new CStdStr<wchar_t>(name.work);
        made.m_pRelPath = name.prefix ? new CStdStr<wchar_t>(*name.prefix) : nullptr;
        m_volume.m_pLocalName->assign(static_cast<std::size_t>(name.volumeLength), L'v');
        made.m_pVolume = name.volumeLength ? &m_volume : nullptr;
    }

    RandomNames m_random;
    CRbUiNTFSVolumeDescriptor m_volume{CStdStr<wchar_t>(L"")};
};

void expectSame(const CRbUiPathname& made, const slow::Name& expected)
{
    ASSERT_EQ(workOf(made), expected.type == slow::None ? L"(none)" : expected.work);
    ASSERT_EQ(made.m_type, expected.type);
    if (expected.type != slow::None) {
        ASSERT_EQ(made.m_category, expected.category);
        ASSERT_EQ(prefixOf(made), expected.prefix.value_or(L"(none)"));
    }
}

// What every call leaves, on any name that was parsed.
bool isWhole(const CRbUiPathname& name)
{
    return name.m_pWork && name.m_type >= PT_NOT_FOUND && name.m_type <= PT_DIRECTORY;
}

int editAtRandom(RandomNames& random, CRbUiPathname& name, const wchar_t* text)
{
    switch (random.below(9)) {
    case 0:
        return name.TrimSlash();
    case 1:
        return name.Trim();
    case 2:
        return name.TrimComponent();
    case 3:
        return name.Append(text);
    case 4:
        return name.AppendComponent(text);
    case 5:
        return name.ReplaceExtensionAlways(text);
    case 6:
        return name.AddExtensionAlways(text);
    case 7:
        return name.ReplaceExtensionIfNoMatch(text);
    default:
        return name.AddExtensionIfNoMatch(text);
    }
}

TEST_F(ParsedNames, AFullPathParsesToItself)
{
    for (int round = 0; round < kRounds; ++round) {
        CRbUiPathname name;
        parseNext(name);
        const std::wstring path = fullPathOf(name);
        CRbUiPathname again;
        ASSERT_EQ(again.ParseRelative(path.c_str(), nullptr, false), 0) << path.c_str();
        ASSERT_EQ(fullPathOf(again), path);
    }
}

TEST_F(ParsedNames, AComponentThatIsAppendedIsTrimmedAgain)
{
    for (int round = 0; round < kRounds; ++round) {
        CRbUiPathname name;
        parseNext(name);
        const std::wstring before = workOf(name);
        const std::wstring text = m_random.without(L"/", m_random.below(12));
        ASSERT_EQ(name.AppendComponent(text.c_str()), 0);
        const bool wasClosed = before.back() == L'/';
        ASSERT_EQ(wasClosed ? name.Trim() : name.TrimComponent(), 0) << before.c_str();
        const bool isBareDrive = name.m_category == PC_DRIVE && before.size() == 2;
        ASSERT_EQ(workOf(name), isBareDrive ? before + L"/" : before);
    }
}

TEST_F(ParsedNames, AnExtensionThatIsAddedIsRemovedAgain)
{
    for (int round = 0; round < kRounds; ++round) {
        CRbUiPathname name;
        parseNext(name);
        name.RemoveExtensionAlways();
        const std::wstring before = workOf(name);
        const std::wstring extension = m_random.without(L"./", 1 + m_random.below(12));
        ASSERT_EQ(name.AddExtensionAlways(extension.c_str()), 0);
        name.RemoveExtensionAlways();
        ASSERT_EQ(workOf(name), before);
    }
}

TEST_F(ParsedNames, MatchingIsSymmetric)
{
    int matches = 0;
    for (int round = 0; round < kRounds; ++round) {
        CRbUiPathname a;
        parseNext(a);
        CRbUiPathname b;
        const std::wstring path = m_random.oneIn(10) ? m_random.name() : fullPathOf(a);
        if (b.ParseRelative(m_random.variant(path).c_str(), &m_base, false) != 0)
            continue;
        const bool result = a.PathMatch(&b);
        ASSERT_EQ(b.PathMatch(&a), result) << path.c_str();
        ASSERT_EQ(a.PathMatch(fullPathOf(b).c_str()), result);
        ASSERT_EQ(b.PathMatch(fullPathOf(a).c_str()), result);
        matches += result;
    }
    EXPECT_GT(matches, kRounds / 4);
}

TEST_F(ParsedNames, ADisplayNameKeepsItsWidth)
{
    for (int round = 0; round < kRounds; ++round) {
        CRbUiPathname name;
        parseNext(name);
        const int width = static_cast<int>(m_random.below(80)) - 1;
        CStdStr<wchar_t> shown;
        name.GetDisplayName(shown, width);
        const int limit =
            width == -1 ? static_cast<int>(RandomNames::kLongest) : std::max(width, 12);
        ASSERT_LE(static_cast<int>(shown.size()), limit) << name.m_pWork->c_str();
        ASSERT_EQ(shown.empty(), name.m_pWork->empty());
    }
}

TEST_F(ParsedNames, EditsLeaveAWholeName)
{
    for (int round = 0; round < kRounds; ++round) {
        CRbUiPathname name;
        parseNext(name);
        for (int edits = 0; edits < 4; ++edits) {
            const auto before = fieldsOf(name);
            const std::wstring text = m_random.text(m_random.below(12));
            const int result =
                editAtRandom(m_random, name, m_random.oneIn(9) ? nullptr : text.c_str());
            auto after = fieldsOf(name);
            ASSERT_TRUE(isWhole(name));
            if (result != 0) {
                ASSERT_EQ(after, before);
            }
            std::get<0>(after) = std::get<0>(before);
            std::get<2>(after) = std::get<2>(before);
            ASSERT_EQ(after, before);
        }
    }
}

TEST_F(HandMadeNames, AreNotEditedWhileUnparsed)
{
    for (int round = 0; round < kRounds; ++round) {
        CRbUiPathname name;
        make(next(), name);
        name.m_type = m_random.oneIn(2) ? PT_NONE : kTypeOfHost;
        const auto before = fieldsOf(name);
        const std::wstring text = L"x" + m_random.without(L";", m_random.below(12));
        // An extension that is in the list needs no edit, also where a host's type has one.
        const int result = editAtRandom(m_random, name, text.c_str());
        ASSERT_TRUE(result == 2 || (result == 0 && name.VerifyExtension(text.c_str())));
        ASSERT_EQ(name.AddExtensionAlways(nullptr), 1);
        ASSERT_EQ(name.ReplaceExtensionAlways(nullptr), 2);
        ASSERT_EQ(fieldsOf(name), before);
    }
}

TEST_F(HandMadeNames, AreTrimmedAsTheSlowReadingTrimsThem)
{
    const struct
    {
        int (CRbUiPathname::*edit)();
        int (*slowEdit)(slow::Name&);
    } edits[] = {{&CRbUiPathname::TrimSlash, slow::trimSlash},
                 {&CRbUiPathname::Trim, slow::trim},
                 {&CRbUiPathname::TrimComponent, slow::trimComponent}};
    for (int round = 0; round < kRounds; ++round) {
        slow::Name expected = next();
        SCOPED_TRACE(expected.work.c_str());
        CRbUiPathname name;
        make(expected, name);
        const auto& each = edits[m_random.below(3)];
        ASSERT_EQ((name.*each.edit)(), each.slowEdit(expected));
        ASSERT_NO_FATAL_FAILURE(expectSame(name, expected));
    }
}

TEST_F(HandMadeNames, HaveTheParentOfTheSlowReading)
{
    for (int round = 0; round < kRounds; ++round) {
        const slow::Name name = next();
        SCOPED_TRACE(name.work.c_str());
        const slow::Name expected = slow::parentOf(name);
        CRbUiPathname made;
        make(name, made);
        CRbUiPathname parent;
        if (expected.raised) {
            ASSERT_THROW(made.GetParent(parent), std::out_of_range);
        } else {
            made.GetParent(parent);
            ASSERT_NO_FATAL_FAILURE(expectSame(parent, expected));
        }
    }
}

// A class that the library does not know is emptied first, and copied into as a whole.
class HostsPath final : public CRbUiPathname
{};

TEST_F(HandMadeNames, HaveTheSameParentInAUsedObjectAndInAHostsClass)
{
    CRbUiPathname used;
    HostsPath hosts;
    for (int round = 0; round < kRounds; ++round) {
        const slow::Name name = next();
        SCOPED_TRACE(name.work.c_str());
        if (slow::parentOf(name).raised)
            continue;
        CRbUiPathname made;
        make(name, made);
        CRbUiPathname fresh;
        made.GetParent(fresh);
        made.GetParent(used);
        made.GetParent(hosts);
        ASSERT_EQ(fieldsOf(used), fieldsOf(fresh));
        ASSERT_EQ(fieldsOf(hosts), fieldsOf(fresh));
    }
}

TEST_F(HandMadeNames, AreShownAsTheSlowReadingShowsThem)
{
    for (int round = 0; round < kRounds; ++round) {
        const slow::Name name = next();
        const int width = static_cast<int>(m_random.below(40)) - 2;
        SCOPED_TRACE(testing::Message() << name.work << ", " << width);
        CRbUiPathname made;
        make(name, made);
        CStdStr<wchar_t> shown;
        made.GetDisplayName(shown, width);
        ASSERT_EQ(std::wstring(shown), slow::displayName(name, width));
    }
}

TEST_F(HandMadeNames, HaveTheExtensionsOfTheSlowReading)
{
    int found = 0;
    for (int round = 0; round < kRounds; ++round) {
        slow::Name name = next();
        const std::wstring extension = m_random.text(m_random.below(5));
        name.work += m_random.oneIn(4) ? L"" : L"." + extension;
        std::wstring list = m_random.oneIn(8) ? L"" : m_random.text(m_random.below(5));
        list += m_random.oneIn(2) ? L"" : L";" + m_random.variant(extension);
        SCOPED_TRACE(testing::Message() << name.work << ", " << list);
        CRbUiPathname made;
        make(name, made);
        const bool result = made.VerifyExtension(list.c_str());
        ASSERT_EQ(result, slow::hasExtensionOf(name, list));
        found += result;
    }
    EXPECT_GT(found, kRounds / 8);
}

TEST_F(HandMadeNames, MatchWhatTheSlowReadingMatches)
{
    int matches = 0;
    for (int round = 0; round < kRounds; ++round) {
        const slow::Name name = next();
        const std::wstring path = slow::fullPath(name);
        const std::wstring text = m_random.oneIn(10) ? m_random.name() : m_random.variant(path);
        SCOPED_TRACE(testing::Message() << path << ", " << text);
        CRbUiPathname made;
        make(name, made);
        const bool result = made.PathMatch(text.c_str());
        ASSERT_EQ(result, slow::matches(path, text));
        matches += result;
    }
    EXPECT_GT(matches, kRounds / 4);
}

TEST_F(HandMadeNames, AreValidWhereTheSlowReadingTakesThem)
{
    int valid = 0;
    for (int round = 0; round < kRounds; ++round) {
        std::wstring text = m_random.oneIn(2) ? m_random.name() : work();
        if (!m_random.oneIn(3)) {
            std::replace(text.begin(), text.end(), L'/', L'\\');
            text.erase(std::remove(text.begin(), text.end(), L'"'), text.end());
        }
        if (m_random.oneIn(100))
            text.resize(1020 + m_random.below(8), L'x');
        SCOPED_TRACE(text.c_str());
        const CStdStr<wchar_t> name(text);
        const bool wildcards = m_random.oneIn(2);
        const bool result = m_volume.ValidateFilename(&name, wildcards);
        ASSERT_EQ(result, slow::isValidFilename(text, wildcards));
        valid += result;
    }
    EXPECT_GT(valid, kRounds / 8);
}

} // namespace
