// SPDX-License-Identifier: MIT
#include "support/RowName.h"
#include "system/ModuleTestSupport.h"

#include <KtQtBase/windows/ResourceStrings.h>

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

using ktqtbase::test::kMainProgram;
using ktqtbase::test::kModules;
using ktqtbase::test::LoadedModule;
using ktqtbase::test::RowName;

using namespace std::string_literals;

// What a call leaves in a buffer of ten characters that held nothing but the filling.
struct Loaded
{
    Loaded(HINSTANCE module, unsigned int id, int size, wchar_t filling = L'#')
        : buffer(10, filling), length(LoadString(module, id, buffer.data(), size))
    {}
    std::wstring buffer;
    int length;
};

// ---- Sizes -------------------------------------------------------------------------------------

struct SizeRow
{
    const char* name;
    unsigned int id;
    int size;
    wchar_t filling;
    std::wstring buffer;
    int length;
};

class LoadStringRows : public testing::TestWithParam<SizeRow>
{};

TEST_P(LoadStringRows, FillTheBufferButItsLastPosition)
{
    const LoadedModule texts(kModules / "kttexts.dll");
    const SizeRow& row = GetParam();
    const Loaded loaded(texts.handle(), row.id, row.size, row.filling);
    EXPECT_EQ(loaded.buffer, row.buffer);
    EXPECT_EQ(loaded.length, row.length);
}

const SizeRow kSizeRows[] = {
    {"Cut", 1, 4, L'\0', L"abc\0\0\0\0\0\0\0"s, 3},
    {"CutAndNotTerminated", 1, 4, L'#', L"abc#######", 4},
    {"OneShort", 1, 6, L'\0', L"abcde\0\0\0\0\0"s, 5},
    {"WithoutItsTerminator", 1, 7, L'#', L"abcdef####", 7},
    {"WithoutItsTerminatorInZeros", 1, 7, L'\0', L"abcdef\0\0\0\0"s, 6},
    {"WithItsTerminator", 1, 8, L'#', L"abcdef\0###"s, 6},
    {"ZerosUpToTheLastPosition", 1, 10, L'#', L"abcdef\0\0\0#"s, 6},
    {"EmptyText", 2, 4, L'#', L"\0\0\0#######"s, 0},
    {"BeyondAscii", 3, 8, L'#', L"h\u00e9\U0001F600\0\0\0\0###"s, 3},
    {"GreatestNumber", 0xFFFFFFFF, 6, L'#', L"top\0\0#####"s, 3},
    {"Missing", 99, 10, L'#', L"##########", 0},
    {"SizeTwo", 1, 2, L'\0', L"a\0\0\0\0\0\0\0\0\0"s, 1},
    {"SizeOne", 1, 1, L'\0', L"\0\0\0\0\0\0\0\0\0\0"s, 0},
    {"SizeOneOfRubbish", 1, 1, L'#', L"##########", 1},
    {"SizeZero", 1, 0, L'#', L"##########", 0},
    {"SizeNegative", 1, -5, L'#', L"##########", 0},
    {"SizeLeast", 1, INT_MIN, L'#', L"##########", 0},
};

INSTANTIATE_TEST_SUITE_P(Table, LoadStringRows, testing::ValuesIn(kSizeRows), RowName());

TEST(LoadString, Is0WithoutABuffer)
{
    const LoadedModule texts(kModules / "kttexts.dll");
    ASSERT_NE(texts.handle(), nullptr);
    EXPECT_EQ(LoadString(texts.handle(), 1, nullptr, 10), 0);
    EXPECT_EQ(LoadString(texts.handle(), 1, nullptr, 0), 0);
}

// ---- Modules -----------------------------------------------------------------------------------

TEST(LoadString, GivesTheEmptyStringOfAModuleWithoutStrings)
{
    const LoadedModule plain(kModules / "ktplain.dll");
    ASSERT_NE(plain.handle(), nullptr);
    const Loaded loaded(plain.handle(), 1, 10);
    EXPECT_EQ(loaded.buffer, L"\0\0\0\0\0\0\0\0\0#"s);
    EXPECT_EQ(loaded.length, 0);
}

TEST(LoadString, NeverTakesTheStringsOfTheProgramItself)
{
    ASSERT_NE(dlsym(RTLD_DEFAULT, "loadstring"), nullptr);
    for (const HINSTANCE module : {HINSTANCE(nullptr), kMainProgram}) {
        const Loaded loaded(module, 1, 10);
        EXPECT_EQ(loaded.buffer, L"\0\0\0\0\0\0\0\0\0#"s);
        EXPECT_EQ(loaded.length, 0);
    }
}

} // namespace
