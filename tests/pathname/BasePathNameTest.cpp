// SPDX-License-Identifier: MIT
//
// The object itself: its layout, its life and its copies.
#include "pathname/PathTestSupport.h"
#include "support/RowName.h"
#include "support/VirtualTable.h"

#include <KtQtBase/PathName.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <string>
#include <type_traits>

namespace {

using ktqtbase::test::callSlot;
using ktqtbase::test::chars;
using ktqtbase::test::RecordingVolume;
using ktqtbase::test::RowName;
using ktqtbase::test::Text;

// ---- Layout ------------------------------------------------------------------------------------

static_assert(std::is_polymorphic_v<CRbUiPathname>);
static_assert(!std::has_virtual_destructor_v<CRbUiPathname>);
static_assert(!std::is_copy_constructible_v<CRbUiPathname>);
static_assert(!std::is_copy_assignable_v<CRbUiPathname>);
static_assert(sizeof(path_category) == 4 && sizeof(path_type) == 4);
static_assert(PC_DRIVE == 0 && PC_UNC == 1 && PC_ROOTED == 2 && PC_RELATIVE == 3);
static_assert(PT_NONE == 0 && PT_NOT_FOUND == 1 && PT_WILDCARD == 2 && PT_FILE == 3 &&
              PT_DIRECTORY == 4);

template<class Field>
std::ptrdiff_t offsetOf(const CRbUiPathname& name, Field CRbUiPathname::*field)
{
    return reinterpret_cast<const char*>(&(name.*field)) - reinterpret_cast<const char*>(&name);
}

// Tells which of its functions was called. It has one more than its base class.
class RecordingName : public CRbUiPathname
{
public:
    std::string called;

    int Parse(const wchar_t*, bool) override
    {
        called = "Parse";
        return 0;
    }
    void AssignCopy(const CRbUiPathname&) override { called = "AssignCopy"; }
    virtual void next() { called = "next"; }
};

// No other function is virtual, since the one that the derived class adds comes third.
TEST(PathNameLayout, HasParseAndAssignCopyInItsOnlyVirtualSlots)
{
    RecordingName name;
    const CRbUiPathname other;
    callSlot<int, const wchar_t*, bool>(name, 0, L"a", true);
    EXPECT_EQ(name.called, "Parse");
    callSlot<void, const CRbUiPathname&>(name, 1, other);
    EXPECT_EQ(name.called, "AssignCopy");
    callSlot<void>(name, 2);
    EXPECT_EQ(name.called, "next");
}

TEST(PathNameLayout, HasItsFieldsInTheirOrder)
{
    const CRbUiPathname name;
    EXPECT_EQ(offsetOf(name, &CRbUiPathname::m_type), 8);
    EXPECT_EQ(offsetOf(name, &CRbUiPathname::m_pVolume), 16);
    EXPECT_EQ(offsetOf(name, &CRbUiPathname::m_pWork), 24);
    EXPECT_EQ(offsetOf(name, &CRbUiPathname::m_pRelPath), 32);
    EXPECT_EQ(offsetOf(name, &CRbUiPathname::m_category), 40);
    EXPECT_EQ(offsetOf(name, &CRbUiPathname::m_separator), 44);
    EXPECT_EQ(offsetOf(name, &CRbUiPathname::m_bQualified), 48);
    EXPECT_EQ(sizeof name, 56u);
}

// ---- Life --------------------------------------------------------------------------------------

// Memory in which a name lives, so that what it leaves there can be looked at.
struct Memory
{
    explicit Memory(int fill) { std::memset(bytes, fill, sizeof bytes); }

    template<class Field>
    Field read(std::size_t offset) const
    {
        Field field;
        std::memcpy(&field, bytes + offset, sizeof field);
        return field;
    }

    alignas(CRbUiPathname) unsigned char bytes[sizeof(CRbUiPathname)];
};

TEST(PathName, IsConstructedUnparsedWithItsCategoryUnset)
{
    Memory memory(0xA5);
    auto* const name = new (memory.bytes) CRbUiPathname;
    EXPECT_EQ(name->m_type, PT_NONE);
    EXPECT_EQ(name->m_pVolume, nullptr);
    EXPECT_EQ(name->m_pWork, nullptr);
    EXPECT_EQ(name->m_pRelPath, nullptr);
    EXPECT_EQ(name->m_separator, L'/');
    EXPECT_FALSE(name->m_bQualified);
    name->CRbUiPathname::~CRbUiPathname();
}

TEST(PathName, LeavesNoPointerBehindWhenItIsDestroyed)
{
    Memory memory(0);
    auto* const name = new (memory.bytes) CRbUiPathname;
    const RecordingVolume volume(L"C:");
    ASSERT_EQ(name->ParseRelative(L"/a/name/that/takes/memory/of/its/own", nullptr, false), 0);
    name->m_pVolume = &volume;
    name->CRbUiPathname::~CRbUiPathname();
    EXPECT_EQ(memory.read<int>(8), PT_NONE);
    EXPECT_EQ(memory.read<void*>(16), nullptr);
    EXPECT_EQ(memory.read<void*>(24), nullptr);
    EXPECT_EQ(memory.read<void*>(32), nullptr);
}

TEST(Empty, GoesBackToUnparsedAndKeepsTheRest)
{
    CRbUiPathname name;
    const RecordingVolume volume(L"C:");
    ASSERT_EQ(name.ParseRelative(L"\\a", nullptr, false), 0);
    name.m_pVolume = &volume;
    name.m_separator = L'!';
    name.Empty();
    EXPECT_EQ(name.m_type, PT_NONE);
    EXPECT_EQ(name.m_pVolume, nullptr);
    EXPECT_EQ(name.m_pWork, nullptr);
    EXPECT_EQ(name.m_pRelPath, nullptr);
    EXPECT_EQ(name.m_separator, L'!');
    EXPECT_EQ(name.m_category, PC_ROOTED);
    EXPECT_TRUE(name.m_bQualified);
}

TEST(Empty, MayBeCalledTwice)
{
    CRbUiPathname name;
    name.Empty();
    name.Empty();
    EXPECT_EQ(name.m_type, PT_NONE);
}

// ---- AssignCopy --------------------------------------------------------------------------------

TEST(AssignCopy, CopiesEveryFieldAndItsStringsDeeply)
{
    const RecordingVolume volume(L"C:");
    CRbUiPathname other;
    other.m_type = PT_WILDCARD;
    other.m_pVolume = &volume;
    other.m_pWork = new Text(L"work");
    other.m_pRelPath = new Text(L"prefix");
    other.m_category = PC_RELATIVE;
    other.m_separator = L'!';
    other.m_bQualified = true;

    CRbUiPathname name;
    name.AssignCopy(other);
    EXPECT_EQ(name.m_type, PT_WILDCARD);
    EXPECT_EQ(name.m_pVolume, &volume);
    EXPECT_NE(name.m_pWork, other.m_pWork);
    EXPECT_STREQ(chars(name.m_pWork), L"work");
    EXPECT_NE(name.m_pRelPath, other.m_pRelPath);
    EXPECT_STREQ(chars(name.m_pRelPath), L"prefix");
    EXPECT_EQ(name.m_category, PC_RELATIVE);
    EXPECT_EQ(name.m_separator, L'!');
    EXPECT_TRUE(name.m_bQualified);
}

TEST(AssignCopy, ReplacesWhatWasThere)
{
    CRbUiPathname other;
    ASSERT_EQ(other.ParseRelative(L"c:x", nullptr, false), 0);
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"/old", nullptr, false), 0);
    name.AssignCopy(other);
    EXPECT_STREQ(name.GetPathString(), L"C:x");
    EXPECT_EQ(name.m_pRelPath, nullptr);
}

TEST(AssignCopy, OfAnUnparsedNameIsUnparsed)
{
    CRbUiPathname other;
    ASSERT_EQ(other.ParseRelative(L"c:x", nullptr, false), 0);
    other.Empty();
    other.m_bQualified = false;
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"/old", nullptr, false), 0);
    name.AssignCopy(other);
    EXPECT_EQ(name.m_type, PT_NONE);
    EXPECT_EQ(name.m_pWork, nullptr);
    EXPECT_EQ(name.m_pRelPath, nullptr);
    EXPECT_FALSE(name.m_bQualified);
}

TEST(AssignCopy, FromItselfLeavesTheNameUnparsed)
{
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"/a", nullptr, false), 0);
    name.AssignCopy(name);
    EXPECT_EQ(name.m_type, PT_NONE);
    EXPECT_EQ(name.m_pWork, nullptr);
    EXPECT_EQ(name.m_category, PC_ROOTED);
}

TEST(AssignCopy, IsCalledThroughTheDispatchTable)
{
    struct Derived : CRbUiPathname
    {
        void AssignCopy(const CRbUiPathname&) override { called = true; }
        bool called = false;
    } derived;
    CRbUiPathname& name = derived;
    name.AssignCopy(CRbUiPathname());
    EXPECT_TRUE(derived.called);
}

// ---- AppendSlash -------------------------------------------------------------------------------

struct SlashRow
{
    const char* name;
    const wchar_t* input;
    const wchar_t* result;
};

class AppendSlashRows : public testing::TestWithParam<SlashRow>
{};

TEST_P(AppendSlashRows, EndWithTheSeparatorOrAColon)
{
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(GetParam().input, nullptr, false), 0);
    name.m_type = PT_WILDCARD;
    EXPECT_EQ(name.AppendSlash(), 0);
    EXPECT_STREQ(name.GetPathString(), GetParam().result);
    EXPECT_EQ(name.m_type, PT_WILDCARD);
}

const SlashRow kSlashRows[] = {
    {"Name", L"/tmp", L"/tmp/"},
    {"EndsWithTheSeparator", L"/tmp/", L"/tmp/"},
    {"EndsWithABackslash", L"/tmp\\", L"/tmp/"},
    {"Root", L"/", L"/"},
    {"DriveAlone", L"C:", L"C:"},
    {"DriveAndName", L"C:a", L"C:a/"},
};

INSTANTIATE_TEST_SUITE_P(Table, AppendSlashRows, testing::ValuesIn(kSlashRows), RowName());

TEST(AppendSlash, Is2ForAnUnparsedName)
{
    CRbUiPathname name;
    EXPECT_EQ(name.AppendSlash(), 2);
    name.m_type = PT_FILE;
    EXPECT_EQ(name.AppendSlash(), 2);
    name.m_pWork = new Text(L"a");
    name.m_type = static_cast<path_type>(5);
    EXPECT_EQ(name.AppendSlash(), 2);
    EXPECT_STREQ(name.GetPathString(), L"a");
}

TEST(AppendSlash, LeavesAnEmptyNameEmpty)
{
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"/a", nullptr, false), 0);
    name.m_pWork->clear();
    EXPECT_EQ(name.AppendSlash(), 0);
    EXPECT_STREQ(name.GetPathString(), L"");
}

TEST(LstrncpyX, CopiesTerminatorsToo)
{
    const wchar_t source[] = L"ab\0cd";
    wchar_t target[] = L"#######";
    CRbUiPathname().lstrncpy_x(target, source, 4);
    EXPECT_EQ(std::wstring(target, 7), std::wstring(L"ab\0c\0##", 7));
}

TEST(LstrncpyX, WritesATerminatorForNothingAndNothingForLess)
{
    wchar_t target[] = L"##";
    CRbUiPathname().lstrncpy_x(target, L"ab", -1);
    EXPECT_EQ(std::wstring(target, 2), L"##");
    CRbUiPathname().lstrncpy_x(target, L"ab", 0);
    EXPECT_EQ(std::wstring(target, 2), std::wstring(L"\0#", 2));
}

TEST(AppendSlash, AppendsTheSeparatorOfTheObject)
{
    CRbUiPathname name;
    ASSERT_EQ(name.ParseRelative(L"/a/", nullptr, false), 0);
    name.m_separator = L'!';
    EXPECT_EQ(name.AppendSlash(), 0);
    EXPECT_STREQ(name.GetPathString(), L"/a/!");
}

} // namespace
