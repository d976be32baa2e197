// SPDX-License-Identifier: MIT
#include "pathname/HandMadePath.h"

namespace {

using Edit = int (CRbUiPathname::*)();

struct EditRow
{
    path_category category;
    const wchar_t* work;
    int result;
    const wchar_t* after;
    path_type type;
    const wchar_t* volume = nullptr;
};

// Every row begins as a file, so that a type that stays shows as PT_FILE.
void expectEdits(Edit edit, std::initializer_list<EditRow> rows)
{
    for (const EditRow& row : rows) {
        SCOPED_TRACE(testing::Message() << "category " << row.category << ": " << row.work);
        CRbUiNTFSVolumeDescriptor volume(CStdStr<wchar_t>(row.volume ? row.volume : L""));
        HandMadePath name(row.category, row.work);
        name.setPrefix(L"/prefix/");
        name.m_pVolume = row.volume ? &volume : nullptr;
        auto expected = fieldsOf(name);
        std::get<0>(expected) = row.after;
        std::get<2>(expected) = row.type;
        EXPECT_EQ((name.*edit)(), row.result);
        EXPECT_EQ(fieldsOf(name), expected);
    }
}

struct AppendRow
{
    const wchar_t* work;
    const wchar_t* text;
    const wchar_t* after;
};

void expectAppends(int (CRbUiPathname::*append)(const wchar_t*),
                   std::initializer_list<AppendRow> rows)
{
    for (const AppendRow& row : rows) {
        SCOPED_TRACE(testing::Message() << row.work << ", " << row.text);
        HandMadePath name(PC_ROOTED, row.work);
        EXPECT_EQ((name.*append)(row.text), 0);
        EXPECT_EQ(workOf(name), row.after);
        EXPECT_EQ(name.m_type, PT_NOT_FOUND);
    }
}

void expectNotParsed(CRbUiPathname& name)
{
    const auto before = fieldsOf(name);
    for (Edit edit :
         {&CRbUiPathname::TrimSlash, &CRbUiPathname::Trim, &CRbUiPathname::TrimComponent})
        EXPECT_EQ((name.*edit)(), 2);
    for (const wchar_t* text : {L"x", static_cast<const wchar_t*>(nullptr)}) {
        EXPECT_EQ(name.Append(text), 2);
        EXPECT_EQ(name.AppendComponent(text), 2);
    }
    EXPECT_EQ(fieldsOf(name), before);
}

} // namespace

TEST(TrimSlash, TakesOneClosingSeparatorOff)
{
    expectEdits(&CRbUiPathname::TrimSlash,
                {
                    {PC_ROOTED, L"/tmp/dir/", 0, L"/tmp/dir", PT_NOT_FOUND},
                    {PC_ROOTED, L"/tmp/dir", 0, L"/tmp/dir", PT_FILE},
                    {PC_ROOTED, L"/tmp", 0, L"/tmp", PT_FILE},
                    {PC_ROOTED, L"/tmp//", 0, L"/tmp/", PT_NOT_FOUND},
                    {PC_ROOTED, L"//", 0, L"/", PT_NOT_FOUND},
                    {PC_DRIVE, L"C:/dir", 0, L"C:/dir", PT_FILE},
                    {PC_DRIVE, L"C:/dir/", 0, L"C:/dir", PT_NOT_FOUND},
                    {PC_DRIVE, L"C:file", 0, L"C:file", PT_FILE},
                    {PC_DRIVE, L"C:", 0, L"C:", PT_FILE},
                    {PC_RELATIVE, L"name", 0, L"name", PT_FILE},
                    {PC_RELATIVE, L"a/b", 0, L"a/b", PT_FILE},
                    {PC_RELATIVE, L"a/", 0, L"a", PT_NOT_FOUND},
                    {PC_RELATIVE, L"/", 0, L"", PT_NOT_FOUND},
                    {PC_RELATIVE, L"", 0, L"", PT_FILE},
                    {PC_RELATIVE, L"a\\", 0, L"a\\", PT_FILE},
                });
}

TEST(TrimSlash, StopsAtARoot)
{
    expectEdits(&CRbUiPathname::TrimSlash,
                {
                    {PC_ROOTED, L"/", 3, L"/", PT_FILE},
                    {PC_DRIVE, L"C:/", 3, L"C:/", PT_FILE},
                    {PC_UNC, L"//s/d/", 3, L"//s/d/", PT_FILE, L"//s/d"},
                    {PC_UNC, L"//s/d/", 3, L"//s/d/", PT_FILE, L"//s/d/and/more"},
                    {PC_UNC, L"//s/d/x/", 0, L"//s/d/x", PT_NOT_FOUND, L"//s/d"},
                    {PC_UNC, L"//s/", 0, L"//s", PT_NOT_FOUND},
                    {PC_UNC, L"/", 3, L"/", PT_FILE},
                });
}

TEST(TrimSlash, LooksAtTheCategoryOnlyForAClosingSeparator)
{
    expectEdits(&CRbUiPathname::TrimSlash,
                {
                    {kUnknownCategory, L"a/", 4, L"a/", PT_FILE},
                    {kUnknownCategory, L"a/", 4, L"a/", PT_FILE, L"C:"},
                    {kUnknownCategory, L"a", 0, L"a", PT_FILE},
                    {kUnknownCategory, L"", 0, L"", PT_FILE},
                    {static_cast<path_category>(-1), L"a/", 4, L"a/", PT_FILE},
                    {static_cast<path_category>(4), L"a/", 4, L"a/", PT_FILE},
                });
}

TEST(TrimSlash, TakesNoSeparatorOffAnEmptyNameWhateverItIs)
{
    HandMadePath name(PC_RELATIVE, L"");
    name.m_separator = L'\0';
    EXPECT_EQ(name.TrimSlash(), 0);
    EXPECT_EQ(workOf(name), L"");
    EXPECT_EQ(name.m_type, PT_FILE);
}

TEST(TrimSlash, GoesByTheSeparatorOfTheName)
{
    HandMadePath name(PC_RELATIVE, L"a/b\\");
    name.m_separator = L'\\';
    EXPECT_EQ(name.TrimSlash(), 0);
    EXPECT_EQ(workOf(name), L"a/b");
}

TEST(Trim, TakesTheLastComponentOff)
{
    expectEdits(&CRbUiPathname::Trim, {
                                          {PC_ROOTED, L"/tmp/dir/", 0, L"/tmp/dir/", PT_FILE},
                                          {PC_ROOTED, L"/tmp/dir", 0, L"/tmp/", PT_NOT_FOUND},
                                          {PC_ROOTED, L"/tmp", 0, L"/", PT_NOT_FOUND},
                                          {PC_ROOTED, L"/", 0, L"/", PT_FILE},
                                          {PC_ROOTED, L"tmp", 4, L"tmp", PT_FILE},
                                          {PC_DRIVE, L"C:/dir", 0, L"C:/", PT_NOT_FOUND},
                                          {PC_DRIVE, L"C:/a/b", 0, L"C:/a/", PT_NOT_FOUND},
                                          {PC_DRIVE, L"C:/", 0, L"C:/", PT_FILE},
                                          {PC_DRIVE, L"C:", 0, L"C:/", PT_NOT_FOUND},
                                          {PC_DRIVE, L"C:file", 0, L"C:/", PT_NOT_FOUND},
                                          {PC_DRIVE, L"CD:f:g", 0, L"CD:", PT_NOT_FOUND},
                                          {PC_DRIVE, L"a/b", 0, L"a//", PT_NOT_FOUND},
                                          {PC_DRIVE, L"file", 4, L"file", PT_FILE},
                                          {PC_DRIVE, L"", 4, L"", PT_FILE},
                                          {PC_RELATIVE, L"name", 3, L"name", PT_FILE},
                                          {PC_RELATIVE, L"a/b", 0, L"a/", PT_NOT_FOUND},
                                          {PC_RELATIVE, L"/b", 0, L"/", PT_NOT_FOUND},
                                          {PC_RELATIVE, L"", 3, L"", PT_FILE},
                                      });
}

TEST(Trim, KeepsTheNameOfAShare)
{
    expectEdits(&CRbUiPathname::Trim,
                {
                    {PC_UNC, L"//s/d/x", 0, L"//s/d/", PT_NOT_FOUND, L"//s/d"},
                    {PC_UNC, L"//s/d/x", 3, L"//s/d/x", PT_FILE, L"//s/d/"},
                    {PC_UNC, L"//s/d", 3, L"//s/d", PT_FILE, L"//s/d"},
                    {PC_UNC, L"//s/d/", 0, L"//s/d/", PT_FILE, L"//s/d"},
                    {PC_UNC, L"share", 4, L"share", PT_FILE, L"//s/d"},
                    {PC_UNC, L"//s/d", 0, L"//s/", PT_NOT_FOUND},
                    {PC_UNC, L"/s", 0, L"/", PT_NOT_FOUND},
                });
}

TEST(Trim, LooksAtTheCategoryBehindTheClosingSeparator)
{
    expectEdits(&CRbUiPathname::Trim, {
                                          {kUnknownCategory, L"a/", 0, L"a/", PT_FILE},
                                          {kUnknownCategory, L"a/b", 4, L"a/b", PT_FILE},
                                          {kUnknownCategory, L"a/b", 4, L"a/b", PT_FILE, L"C:"},
                                          {kUnknownCategory, L"ab", 4, L"ab", PT_FILE},
                                          {kUnknownCategory, L"", 4, L"", PT_FILE},
                                      });
}

TEST(TrimComponent, TakesTheSeparatorOffToo)
{
    expectEdits(&CRbUiPathname::TrimComponent,
                {
                    {PC_ROOTED, L"/tmp/dir/", 0, L"/tmp/dir", PT_NOT_FOUND},
                    {PC_ROOTED, L"/tmp/dir", 0, L"/tmp", PT_NOT_FOUND},
                    {PC_ROOTED, L"/tmp", 0, L"/", PT_NOT_FOUND},
                    {PC_ROOTED, L"/", 0, L"/", PT_NOT_FOUND},
                    {PC_ROOTED, L"tmp", 4, L"tmp", PT_FILE},
                    {PC_DRIVE, L"C:/dir", 0, L"C:/", PT_NOT_FOUND},
                    {PC_DRIVE, L"C:/a/b", 0, L"C:/a", PT_NOT_FOUND},
                    {PC_DRIVE, L"C:/", 0, L"C:/", PT_NOT_FOUND},
                    {PC_DRIVE, L"C:", 0, L"C:/", PT_NOT_FOUND},
                    {PC_DRIVE, L"C:file", 0, L"C:/", PT_NOT_FOUND},
                    {PC_DRIVE, L"file", 0, L"", PT_NOT_FOUND},
                    {PC_DRIVE, L"ab/c", 0, L"ab/", PT_NOT_FOUND},
                    {PC_RELATIVE, L"name", 3, L"name", PT_FILE},
                    {PC_RELATIVE, L"a/b", 0, L"a", PT_NOT_FOUND},
                    {PC_RELATIVE, L"a/b/", 0, L"a/b", PT_NOT_FOUND},
                    {PC_RELATIVE, L"/b", 0, L"", PT_NOT_FOUND},
                    {PC_UNC, L"//s/d/x", 0, L"//s/d", PT_NOT_FOUND, L"//s/d"},
                    {PC_UNC, L"//s/d/", 0, L"//s/d", PT_NOT_FOUND, L"//s/d"},
                    {PC_UNC, L"//s/d", 3, L"//s/d", PT_FILE, L"//s/d"},
                    {PC_UNC, L"//s/d", 0, L"//s", PT_NOT_FOUND},
                    {PC_UNC, L"share", 4, L"share", PT_FILE},
                    {kUnknownCategory, L"a/", 4, L"a/", PT_FILE},
                    {kUnknownCategory, L"a/b", 4, L"a/b", PT_FILE, L"C:"},
                    {kUnknownCategory, L"ab", 4, L"ab", PT_FILE},
                });
}

TEST(Edits, AskTheVolumesOwnClassForTheNameOfAShare)
{
    const RenamedVolume longer(L"//s", L"//s/d/longer");
    const RenamedVolume shorter(L"//s/d/longer", L"//s");
    for (auto edit : {&CRbUiPathname::Trim, &CRbUiPathname::TrimComponent}) {
        HandMadePath name(PC_UNC, L"//s/d/x");
        name.m_pVolume = &longer;
        EXPECT_EQ((name.*edit)(), 3);
        name.m_pVolume = &shorter;
        EXPECT_EQ((name.*edit)(), 0);
    }
    HandMadePath name(PC_UNC, L"//s/d/");
    name.m_pVolume = &longer;
    EXPECT_EQ(name.TrimSlash(), 3);
    name.m_pVolume = &shorter;
    EXPECT_EQ(name.TrimSlash(), 0);
}

TEST(Append, AppendsATextAsItIs)
{
    expectAppends(&CRbUiPathname::Append, {
                                              {L"/tmp", L"x", L"/tmpx"},
                                              {L"/tmp/", L"x", L"/tmp/x"},
                                              {L"/tmp", L"/x", L"/tmp/x"},
                                              {L"/tmp", L"\\x", L"/tmp\\x"},
                                              {L"/tmp", L"", L"/tmp"},
                                              {L"/tmp", nullptr, L"/tmp"},
                                              {L"", L"\U0001F389", L"\U0001F389"},
                                          });
}

TEST(AppendComponent, PutsASeparatorInBetween)
{
    expectAppends(&CRbUiPathname::AppendComponent, {
                                                       {L"/tmp", L"x", L"/tmp/x"},
                                                       {L"/tmp/", L"x", L"/tmp/x"},
                                                       {L"", L"x", L"/x"},
                                                       {L"/tmp", L"/x", L"/tmp//x"},
                                                       {L"/tmp/", L"/x", L"/tmp//x"},
                                                       {L"C:", L"x", L"C:/x"},
                                                       {L"/tmp", L"", L"/tmp/"},
                                                       {L"/tmp", nullptr, L"/tmp/"},
                                                       {L"/tmp/", nullptr, L"/tmp/"},
                                                       {L"", nullptr, L"/"},
                                                   });
}

TEST(Append, TakesATextOutOfTheNameItself)
{
    for (std::size_t offset : {0u, 1u, 4u, 8u}) {
        SCOPED_TRACE(offset);
        const std::wstring before = L"/tmp/dir";
        HandMadePath name(PC_ROOTED, before);
        EXPECT_EQ(name.Append(name.m_pWork->c_str() + offset), 0);
        EXPECT_EQ(workOf(name), before + before.substr(offset));
        HandMadePath other(PC_ROOTED, before);
        EXPECT_EQ(other.AppendComponent(other.m_pWork->c_str() + offset), 0);
        EXPECT_EQ(workOf(other), before + L"/" + before.substr(offset));
    }
}

TEST(Append, TakesATextOutOfThePrefix)
{
    HandMadePath name(PC_RELATIVE, L"a");
    name.setPrefix(L"/home/u/");
    EXPECT_EQ(name.Append(name.m_pRelPath->c_str()), 0);
    EXPECT_EQ(workOf(name), L"a/home/u/");
    EXPECT_EQ(prefixOf(name), L"/home/u/");
}

TEST(Edits, AnswerTwoAndChangeNothingWhereNothingIsParsed)
{
    for (path_type type : {PT_NONE, kTypeOfHost, kUnknownType, static_cast<path_type>(-1)}) {
        SCOPED_TRACE(type);
        HandMadePath name(kUnknownCategory, L"/tmp/", type);
        expectNotParsed(name);
    }
    HandMadePath withoutWork(kUnknownCategory, L"");
    ReleaseCStrPtr(&withoutWork.m_pWork);
    expectNotParsed(withoutWork);
}

TEST(Edits, WorkOnEveryTypeThatAParseGives)
{
    for (path_type type : {PT_NOT_FOUND, PT_WILDCARD, PT_FILE, PT_DIRECTORY}) {
        SCOPED_TRACE(type);
        HandMadePath name(PC_ROOTED, L"/a/b", type);
        EXPECT_EQ(name.Trim(), 0);
        EXPECT_EQ(workOf(name), L"/a/");
        EXPECT_EQ(name.m_type, PT_NOT_FOUND);
    }
}
