// SPDX-License-Identifier: MIT
#include "pathname/PathTestSupport.h"
#include "support/RowName.h"

#include <KtQtBase/PathName.h>

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

namespace {

using ktqtbase::test::RowName;
using ktqtbase::test::Text;

// What an output holds that was not written.
const wchar_t* const kUntouched = L"#untouched#";

// A path object made from its fields, so that no file on disk decides its type.
class Built : public CRbUiPathname
{
public:
    explicit Built(const wchar_t* work, const wchar_t* prefix = nullptr,
                   path_category category = PC_RELATIVE, path_type type = PT_NOT_FOUND)
    {
        m_type = type;
        m_category = category;
        m_pWork = new Text(work);
        m_pRelPath = prefix ? new Text(prefix) : nullptr;
    }
};

// ---- The last component ------------------------------------------------------------------------

struct ComponentRow
{
    const char* name;
    const wchar_t* work;
    path_type type;
    const wchar_t* basename;
    const wchar_t* filename;
    const wchar_t* extension;
};

class ComponentRows : public testing::TestWithParam<ComponentRow>
{};

TEST_P(ComponentRows, GiveTheBasename)
{
    const Built name(GetParam().work, nullptr, PC_RELATIVE, GetParam().type);
    Text out(kUntouched);
    name.GetBasename(out);
    EXPECT_STREQ(out.c_str(), GetParam().basename);
}

TEST_P(ComponentRows, GiveTheFilename)
{
    const Built name(GetParam().work, nullptr, PC_RELATIVE, GetParam().type);
    Text out(kUntouched);
    name.GetFilename(out);
    EXPECT_STREQ(out.c_str(), GetParam().filename);
}

TEST_P(ComponentRows, GiveTheExtension)
{
    const Built name(GetParam().work, nullptr, PC_RELATIVE, GetParam().type);
    Text out(kUntouched);
    name.GetExtension(out);
    EXPECT_STREQ(out.c_str(), GetParam().extension);
}

const ComponentRow kComponentRows[] = {
    {"InAFolder", L"/tmp/dir", PT_DIRECTORY, L"dir", L"dir", kUntouched},
    {"EndsWithTheSeparator", L"/tmp/dir/", PT_DIRECTORY, L"", kUntouched, kUntouched},
    {"BehindAColon", L"C:file.txt", PT_FILE, L"file.txt", L"file", L"txt"},
    {"SeparatorBeforeColon", L"C:/d:e/f.x", PT_FILE, L"f.x", L"f", L"x"},
    {"ColonBehindTheSeparator", L"/a:b.c", PT_FILE, L"a:b.c", L"a:b", L"c"},
    {"LastOfTwoColons", L"a:b:c", PT_FILE, L"c", L"c", kUntouched},
    {"DriveAlone", L"C:", PT_NOT_FOUND, L"", kUntouched, kUntouched},
    {"NameAlone", L"name", PT_NOT_FOUND, L"name", L"name", kUntouched},
    {"TwoDots", L"archive.tar.gz", PT_FILE, L"archive.tar.gz", L"archive.tar", L"gz"},
    {"DotFirst", L"/h/.profile", PT_FILE, L".profile", L"", L"profile"},
    {"DotLast", L"name.", PT_FILE, L"name.", L"name", L""},
    {"DotAlone", L".", PT_DIRECTORY, L".", L"", L""},
    {"DotInTheFolderOnly", L"a.b/name", PT_FILE, L"name", L"name", kUntouched},
    {"Backslash", L"a\\b.c", PT_FILE, L"a\\b.c", L"a\\b", L"c"},
    {"EmptyName", L"", PT_NOT_FOUND, L"", kUntouched, kUntouched},
    {"Wildcard", L"*.txt", PT_WILDCARD, L"*.txt", kUntouched, L"txt"},
    {"Type5", L"a.b", static_cast<path_type>(5), L"a.b", L"a", L"b"},
    {"Type6", L"a.b", static_cast<path_type>(6), L"a.b", kUntouched, L"b"},
    {"Type33", L"a.b", static_cast<path_type>(33), L"a.b", kUntouched, L"b"},
    {"Type35", L"a.b", static_cast<path_type>(35), L"a.b", kUntouched, L"b"},
    {"Unparsed", L"a.b", PT_NONE, kUntouched, kUntouched, kUntouched},
};

INSTANTIATE_TEST_SUITE_P(Table, ComponentRows, testing::ValuesIn(kComponentRows), RowName());

TEST(GetBasename, LooksForTheSeparatorOfTheObject)
{
    Built name(L"a/b!c");
    name.m_separator = L'!';
    Text out;
    name.GetBasename(out);
    EXPECT_STREQ(out.c_str(), L"c");
}

TEST(Components, LeaveTheirOutputForANewObject)
{
    const CRbUiPathname name;
    Text out(kUntouched);
    name.GetBasename(out);
    name.GetFilename(out);
    name.GetExtension(out);
    EXPECT_STREQ(out.c_str(), kUntouched);
}

TEST(GetLastCharacter, Is0ForAnEmptyText)
{
    EXPECT_EQ(CRbUiPathname::GetLastCharacter(Text()), 0);
    EXPECT_EQ(CRbUiPathname::GetLastCharacter(Text(L"a")), L'a');
    EXPECT_EQ(CRbUiPathname::GetLastCharacter(Text(L"ab\U0001F600")), L'\U0001F600');
}

// ---- The full path -----------------------------------------------------------------------------

struct FullPathRow
{
    const char* name;
    const wchar_t* work;
    const wchar_t* prefix;
    path_category category;
    path_type type;
    const wchar_t* full;
};

class FullPathRows : public testing::TestWithParam<FullPathRow>
{};

TEST_P(FullPathRows, JoinPrefixAndWorkString)
{
    const FullPathRow& row = GetParam();
    const Built name(row.work, row.prefix, row.category, row.type);
    Text out(kUntouched);
    EXPECT_TRUE(name.GetFullPath(out));
    EXPECT_STREQ(out.c_str(), row.full);
}

TEST_P(FullPathRows, FillABufferWithTheirTerminator)
{
    const FullPathRow& row = GetParam();
    const Built name(row.work, row.prefix, row.category, row.type);
    wchar_t out[64];
    std::wmemset(out, L'#', 64);
    EXPECT_TRUE(name.GetFullPath(out));
    EXPECT_STREQ(out, row.full);
    EXPECT_EQ(out[std::wcslen(row.full) + 1], L'#');
}

const FullPathRow kFullPathRows[] = {
    {"PrefixWithoutSeparator", L"f.txt", L"/home/u", PC_RELATIVE, PT_FILE, L"/home/u/f.txt"},
    {"PrefixWithSeparator", L"f.txt", L"/home/u/", PC_RELATIVE, PT_FILE, L"/home/u/f.txt"},
    {"PrefixWithBackslash", L"f", L"/u\\", PC_RELATIVE, PT_FILE, L"/u\\/f"},
    {"EmptyPrefix", L"f", L"", PC_RELATIVE, PT_FILE, L"/f"},
    {"NoPrefix", L"f", nullptr, PC_RELATIVE, PT_FILE, L"f"},
    {"EmptyWorkString", L"", L"/u", PC_RELATIVE, PT_DIRECTORY, L"/u/"},
    {"RootedIgnoresItsPrefix", L"/f", L"/home/u", PC_ROOTED, PT_FILE, L"/f"},
    {"DriveHasNone", L"C:/f.txt", nullptr, PC_DRIVE, PT_FILE, L"C:/f.txt"},
    {"DriveGivenOne", L"C:/f.txt", L"/p", PC_DRIVE, PT_FILE, L"/p/C:/f.txt"},
    {"NotFound", L"f", L"/p", PC_RELATIVE, PT_NOT_FOUND, L"/p/f"},
    {"Wildcard", L"*", L"/p", PC_RELATIVE, PT_WILDCARD, L"/p/*"},
    {"Directory", L"d", L"/p", PC_RELATIVE, PT_DIRECTORY, L"/p/d"},
    {"Type5HasNoPrefix", L"f", L"/p", PC_RELATIVE, static_cast<path_type>(5), L"f"},
};

INSTANTIATE_TEST_SUITE_P(Table, FullPathRows, testing::ValuesIn(kFullPathRows), RowName());

TEST(GetFullPath, JoinsByTheSeparatorOfTheObject)
{
    Built name(L"f", L"/p");
    name.m_separator = L'!';
    Text out;
    EXPECT_TRUE(name.GetFullPath(out));
    EXPECT_STREQ(out.c_str(), L"/p!f");
}

TEST(GetFullPath, LeavesTheTextOfAnUnparsedName)
{
    const CRbUiPathname name;
    Text out(kUntouched);
    EXPECT_FALSE(name.GetFullPath(out));
    EXPECT_STREQ(out.c_str(), kUntouched);
}

TEST(GetFullPath, EmptiesTheBufferOfAnUnparsedName)
{
    const CRbUiPathname name;
    wchar_t out[] = L"##";
    EXPECT_FALSE(name.GetFullPath(out));
    EXPECT_EQ(out[0], 0);
    EXPECT_EQ(out[1], L'#');
}

TEST(GetFullPath, IsFalseForANullBuffer)
{
    const Built name(L"f");
    EXPECT_FALSE(name.GetFullPath(static_cast<wchar_t*>(nullptr)));
}

TEST(GetFullPath, FillsABufferOfAnyLength)
{
    const std::wstring work(5000, L'a');
    const Built name(work.c_str(), L"/p");
    std::wstring out(work.size() + 4, L'#');
    EXPECT_TRUE(name.GetFullPath(out.data()));
    EXPECT_EQ(out, L"/p/" + work + L'\0');
}

// ---- Without a work string ---------------------------------------------------------------------

// A type of a parsed name beside no text: no parse leaves that, but a host may.
TEST(PathComponents, AreNotWrittenWithoutAWorkString)
{
    Built name(L"f", L"/p");
    ReleaseStringPtr(&name.m_pWork);
    using Member = void (CRbUiPathname::*)(Text&) const;
    const Member members[] = {&CRbUiPathname::GetBasename, &CRbUiPathname::GetFilename,
                              &CRbUiPathname::GetExtension};
    for (const Member member : members) {
        Text out(kUntouched);
        (name.*member)(out);
        EXPECT_EQ(out, kUntouched);
    }
}

TEST(GetFullPath, IsThePrefixAndASeparatorWithoutAWorkString)
{
    Built name(L"f", L"/p");
    ReleaseStringPtr(&name.m_pWork);
    Text out;
    EXPECT_TRUE(name.GetFullPath(out));
    EXPECT_EQ(out, L"/p/");
}

// ---- Direct access -----------------------------------------------------------------------------

TEST(GetPathString, IsTheWorkStringWithoutThePrefix)
{
    const Built name(L"f", L"/p");
    EXPECT_EQ(name.GetPathString(), name.m_pWork->c_str());
    EXPECT_EQ(CRbUiPathname().GetPathString(), nullptr);
}

TEST(GetSeparator, IsTheField)
{
    CRbUiPathname name;
    EXPECT_EQ(name.GetSeparator(), L'/');
    name.m_separator = L'!';
    EXPECT_EQ(name.GetSeparator(), L'!');
}

TEST(ParseAndOSFind, IsTrueAndChangesNothing)
{
    Built name(L"f");
    EXPECT_TRUE(name.ParseAndOSFind(L"/missing"));
    EXPECT_TRUE(name.ParseAndOSFind(nullptr));
    EXPECT_STREQ(name.GetPathString(), L"f");
    EXPECT_EQ(name.m_type, PT_NOT_FOUND);
}

} // namespace
