// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

#include <gtest/gtest.h>

#include <clocale>

namespace {

struct NameRow
{
    std::wstring name;
    bool plain;         // whether it is valid without wildcards
    bool withWildcards; // and with them
};

const CRbUiNTFSVolumeDescriptor& volume()
{
    static const CRbUiNTFSVolumeDescriptor descriptor(L"C:");
    return descriptor;
}

void expectFilenames(std::initializer_list<NameRow> rows)
{
    for (const NameRow& row : rows) {
        SCOPED_TRACE(testing::Message() << row.name << " of " << row.name.size());
        const CStdStr<wchar_t> name(row.name);
        EXPECT_EQ(volume().ValidateFilename(&name, false), row.plain);
        EXPECT_EQ(volume().ValidateFilename(&name, true), row.withWildcards);
    }
}

void expectSegments(std::initializer_list<NameRow> rows)
{
    for (const NameRow& row : rows) {
        SCOPED_TRACE(testing::Message() << row.name << " of " << row.name.size());
        const CStdStr<wchar_t> segment(row.name);
        EXPECT_EQ(volume().ValidateSegment(&segment, false), row.plain);
        EXPECT_EQ(volume().ValidateSegment(&segment, true), row.withWildcards);
    }
}

struct DriveRow
{
    const wchar_t* name;
    int ch;
    bool result;
};

} // namespace

TEST(NtfsVolumeDescriptor, HasTheFieldsOfANamedVolume)
{
    EXPECT_EQ(volume().m_fsType, FS_NTFS);
    EXPECT_EQ(*volume().GetLocalName(), L"C:");
    EXPECT_EQ(volume().m_maxPathLen, 1023);
    EXPECT_EQ(volume().m_separator, L'\\');
    EXPECT_TRUE(volume().VolumeValid());
    EXPECT_FALSE(volume().CheckReadOnly());
    EXPECT_FALSE(volume().IsCaseSensitive());
}

TEST(ValidateFilename, TakesNamesWithBackslashes)
{
    expectFilenames({
        {L"C:\\dir\\f.txt", true, true},
        {L"C:\\", true, true},
        {L"C:", true, true},
        {L"C:f", true, true},
        {L"", true, true},
        {L"\\", true, true},
        {L"f", true, true},
        {L"\\dir\\f.txt", true, true},
        {L"con", true, true},
        {L"dots and blanks. ", true, true},
        {L"\x01\x1F", true, true},
        {L"\U0001F389\\\u65e5", true, true},
    });
}

TEST(ValidateFilename, TakesOneColonBehindALetter)
{
    std::setlocale(LC_CTYPE, "C.UTF-8");
    expectFilenames({
        {L"1:\\f", false, false},
        {L"::", false, false},
        {L":", false, false},
        {L":f", false, false},
        {L"abc:f", false, false},
        {L"a:b:c", false, false},
        {L"a::", false, false},
        {L"C:\\f:stream", false, false},
        {L"\u00e9:\\f", true, true},
        {L"\U0001F389:\\f", false, false},
    });
    std::setlocale(LC_CTYPE, "C");
    expectFilenames({{L"\u00e9:\\f", false, false}, {L"z:\\f", true, true}});
}

TEST(ValidateFilename, TakesADoubledBackslashAtTheStartOnly)
{
    expectFilenames({
        {L"\\\\srv\\share", true, true},
        {L"\\\\", true, true},
        {L"\\\\\\srv", false, false},
        {L"a\\\\b", false, false},
        {L"\\a\\\\b", false, false},
        {L"ab\\\\", false, false},
        {L"a\\\\", false, false},
        {L"C:\\\\f", false, false},
    });
}

TEST(ValidateFilename, RefusesTheForbiddenCharacters)
{
    for (wchar_t ch : std::wstring(L"<>|/\"")) {
        expectFilenames({{std::wstring(1, ch), false, false},
                         {std::wstring(L"a\\b") + ch, false, false},
                         {std::wstring(L"C:\\") + ch + L"c", false, false}});
    }
    for (wchar_t ch : std::wstring(L"*?")) {
        expectFilenames({{std::wstring(1, ch), false, true},
                         {std::wstring(L"C:\\a") + ch + L".txt", false, true}});
    }
}

TEST(ValidateFilename, CountsTheWholeNameAndReadsToTheTerminator)
{
    expectFilenames({
        {std::wstring(1023, L'x'), true, true},
        {std::wstring(1024, L'x'), false, false},
        {std::wstring(L"a\0<", 3), true, true},
        {std::wstring(1023, L'\0'), true, true},
        {std::wstring(1024, L'\0'), false, false},
    });
}

TEST(ValidateFilename, GoesByTheLimitThatTheCreatorSet)
{
    CRbUiNTFSVolumeDescriptor own(L"C:");
    own.m_maxPathLen = 3;
    const CStdStr<wchar_t> three(L"abc");
    const CStdStr<wchar_t> four(L"abcd");
    const CStdStr<wchar_t> empty;
    EXPECT_TRUE(own.ValidateFilename(&three, false));
    EXPECT_FALSE(own.ValidateFilename(&four, false));
    own.m_maxPathLen = -1;
    EXPECT_FALSE(own.ValidateFilename(&empty, false));
}

TEST(ValidateFilename, SearchesAsTheDescriptorDoes)
{
    CRbUiNTFSVolumeDescriptor own(L"C:");
    own.m_bUseCSearch = true;
    const CStdStr<wchar_t> valid(L"C:\\f.txt");
    const CStdStr<wchar_t> slash(L"C:/f.txt");
    EXPECT_TRUE(own.ValidateFilename(&valid, false));
    EXPECT_FALSE(own.ValidateFilename(&slash, false));
    own.m_pUncPrefix = L"f.";
    EXPECT_FALSE(own.ValidateFilename(&valid, false));
}

TEST(ValidateSegment, TakesOneComponent)
{
    expectSegments({
        {L"f.txt", true, true},
        {L"", true, true},
        {L"..", true, true},
        {L"con. ", true, true},
        {L"\x01", true, true},
        {L"a\\b", false, false},
        {L"a/b", false, false},
        {L"C:", false, false},
        {L":", false, false},
        {L"a\"b", false, false},
        {L"<", false, false},
        {L"a>", false, false},
        {L"a|b", false, false},
        {L"*.txt", false, true},
        {L"a?b", false, true},
        {std::wstring(L"a\0:", 3), true, true},
    });
}

TEST(ValidateSegment, CountsTheCharacters)
{
    expectSegments(
        {{std::wstring(255, L'x'), true, true}, {std::wstring(256, L'x'), false, false}});
    CRbUiNTFSVolumeDescriptor own(L"C:");
    own.m_maxComponentLen = 0;
    const CStdStr<wchar_t> empty;
    const CStdStr<wchar_t> one(L"a");
    EXPECT_TRUE(own.ValidateSegment(&empty, false));
    EXPECT_FALSE(own.ValidateSegment(&one, false));
    own.m_maxComponentLen = -1;
    EXPECT_FALSE(own.ValidateSegment(&empty, false));
}

TEST(ValidateVolChar, AsksForALetterBeforeTheLastColon)
{
    for (const DriveRow& row : std::initializer_list<DriveRow>{
             {L"", L'1', true},
             {L"file", L'1', true},
             {L"C:", L'C', true},
             {L"C:\\f", L'z', true},
             {L"C:", L'1', false},
             {L"C:", 0, false},
             {L"C:", -1, false},
             {L"1:", L'A', true},
             {L":", L'A', false},
             {L"ab:", L'A', false},
             {L"a:b:", L'A', false},
         }) {
        SCOPED_TRACE(testing::Message() << row.name << ", " << row.ch);
        const CStdStr<wchar_t> name(row.name);
        EXPECT_EQ(ValidateVolChar(&name, row.ch), row.result);
    }
    EXPECT_TRUE(ValidateVolChar(nullptr, L'1'));
}

TEST(NtfsVolumeDescriptor, AnswersThroughItsBase)
{
    const CRbUiVolumeDescriptor& base = volume();
    const CStdStr<wchar_t> name(L"a\\b");
    EXPECT_TRUE(base.ValidateFilename(&name, false));
    EXPECT_FALSE(base.ValidateSegment(&name, false));
}
