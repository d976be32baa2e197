// SPDX-License-Identifier: MIT
//
// The small helpers of the porting headers.
#include <KtQtBase/Porting.h>

#include <gtest/gtest.h>

#include <climits>
#include <string>

struct MulDivRow
{
    const char* name;
    int number;
    int numerator;
    int denominator;
    int expected;
};

static const MulDivRow kMulDiv[] = {{"exact", 12, 6, 8, 9},
                                    {"below a half", 10, 96, 72, 13},
                                    {"above a half", 11, 96, 72, 15},
                                    {"a half goes up", 1, 1, 2, 1},
                                    {"a negative half goes down", -1, 1, 2, -1},
                                    {"a half by a negative denominator", 1, 1, -2, -1},
                                    {"both negative", -1, 1, -2, 1},
                                    {"three halves", 3, 1, 2, 2},
                                    {"a third", 1, 1, 3, 0},
                                    {"two thirds", -2, 1, 3, -1},
                                    {"64 bits in between", INT_MAX, INT_MAX, INT_MAX, INT_MAX},
                                    {"the largest product", INT_MIN, INT_MIN, INT_MAX, -1},
                                    {"denominator 0", 7, 1, 0, -1},
                                    {"0 by 0", 0, 0, 0, -1},
                                    {"too large", INT_MAX, 2, 1, -1},
                                    {"too small", INT_MIN, 2, 1, -1},
                                    {"the smallest", INT_MIN, 1, 1, INT_MIN},
                                    {"the smallest's opposite", INT_MIN, 1, -1, -1},
                                    {"rounded over the edge", INT_MAX, 3, 3, INT_MAX},
                                    {"by the smallest", INT_MIN, 1, INT_MIN, 1}};

TEST(PortingMulDiv, RoundsHalvesAwayFromZeroAndTellsFailureByMinusOne)
{
    for (const MulDivRow& row : kMulDiv)
        EXPECT_EQ(MulDiv(row.number, row.numerator, row.denominator), row.expected) << row.name;
}

TEST(PortingMulDiv, IsAConstant)
{
    constexpr int height = MulDiv(10, 96, 72);
    EXPECT_EQ(height, 13);
}

TEST(PortingWords, PutsTwoHalvesTogether)
{
    EXPECT_EQ(MAKEWORD(0x34, 0x12), 0x1234);
    EXPECT_EQ(MAKEWORD(-1, 0x112), 0x12FF);
    EXPECT_EQ(MAKELONG(0x5678, 0x1234), 0x12345678);
    EXPECT_EQ(MAKELONG(0, 0x8000), INT_MIN);
    EXPECT_EQ(MAKELRESULT(-1, -2), 0xFFFEFFFFLL);
}

TEST(PortingWords, TakesBytesOutOfAWord)
{
    EXPECT_EQ(LOBYTE(0x1234), 0x34);
    EXPECT_EQ(HIBYTE(0x1234), 0x12);
    EXPECT_EQ(HIBYTE(-1), 0xFF);
}

TEST(PortingWords, PutsALanguageAndItsVariantTogether)
{
    EXPECT_EQ(MAKELANGID(0x09, 0x01), 0x0409);
    EXPECT_EQ(MAKELANGID(0x3FF, 0x3F), 0xFFFF);
    EXPECT_EQ(MAKELANGID(0, 0x40), 0);
}

TEST(PortingResources, AreNumbersInThePlaceOfNames)
{
    EXPECT_EQ(MAKEINTRESOURCE(101), reinterpret_cast<wchar_t*>(101LL));
    EXPECT_EQ(MAKEINTRESOURCEW(-1), reinterpret_cast<wchar_t*>(0xFFFFLL));
    EXPECT_EQ(MAKEINTRESOURCEA(0x10002), reinterpret_cast<char*>(2LL));
    EXPECT_EQ(GetProcAddress(nullptr, MAKEINTRESOURCEA(1)), nullptr);
}

TEST(PortingResources, AreToldFromNames)
{
    EXPECT_TRUE(IS_INTRESOURCE(MAKEINTRESOURCE(0xFFFF)));
    EXPECT_TRUE(IS_INTRESOURCE(nullptr));
    EXPECT_FALSE(IS_INTRESOURCE(L"PANEL"));
    EXPECT_FALSE(IS_INTRESOURCE(reinterpret_cast<const void*>(0x10000LL)));
}

struct ResultRow
{
    const char* name;
    HRESULT result;
    unsigned int expected;
};

#define RESULT_ROW(name, number)                                                                   \
    {                                                                                              \
#name, name, number                                                                        \
    }

static const ResultRow kFailures[] = {
    RESULT_ROW(E_NOTIMPL, 0x80004001),    RESULT_ROW(E_NOINTERFACE, 0x80004002),
    RESULT_ROW(E_POINTER, 0x80004003),    RESULT_ROW(E_ABORT, 0x80004004),
    RESULT_ROW(E_FAIL, 0x80004005),       RESULT_ROW(E_PENDING, 0x8000000A),
    RESULT_ROW(E_UNEXPECTED, 0x8000FFFF), RESULT_ROW(E_ACCESSDENIED, 0x80070005),
    RESULT_ROW(E_HANDLE, 0x80070006),     RESULT_ROW(E_OUTOFMEMORY, 0x8007000E),
    RESULT_ROW(E_INVALIDARG, 0x80070057)};

TEST(PortingResults, AreTheNumbersOfWindows)
{
    for (const ResultRow& row : kFailures)
        EXPECT_EQ(static_cast<unsigned int>(row.result), row.expected) << row.name;
}

TEST(PortingResults, FailIfTheyAreNegative)
{
    for (const ResultRow& row : kFailures)
        EXPECT_TRUE(FAILED(row.result) && !SUCCEEDED(row.result)) << row.name;
    EXPECT_TRUE(SUCCEEDED(S_OK) && !FAILED(S_OK));
    EXPECT_TRUE(SUCCEEDED(S_FALSE) && !FAILED(S_FALSE));
}

TEST(PortingResults, HaveParts)
{
    EXPECT_EQ(HRESULT_CODE(E_UNEXPECTED), 0xFFFF);
    EXPECT_EQ(HRESULT_FACILITY(E_UNEXPECTED), 0);
    EXPECT_EQ(HRESULT_CODE(E_ACCESSDENIED), 5);
    EXPECT_EQ(HRESULT_FACILITY(E_ACCESSDENIED), 7);
    EXPECT_EQ(HRESULT_FACILITY(-1), 0x1FFF);
    EXPECT_EQ(MAKE_HRESULT(1, 7, 5), E_ACCESSDENIED);
    EXPECT_EQ(MAKE_HRESULT(0, 4, 0x200), 0x40200);
}

TEST(PortingResults, StandForErrorNumbers)
{
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_SUCCESS), S_OK);
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED), E_ACCESSDENIED);
    EXPECT_EQ(HRESULT_FROM_WIN32(0x10005), E_ACCESSDENIED);
    EXPECT_EQ(HRESULT_FROM_WIN32(E_FAIL), E_FAIL);
    EXPECT_EQ(HRESULT_FROM_WIN32(0x80004005U), E_FAIL);
}

TEST(PortingMemory, IsFilledAndCopied)
{
    char text[] = "abcdef";
    ZeroMemory(text + 4, 1);
    EXPECT_STREQ(text, "abcd");
    FillMemory(text, 2, 'x');
    EXPECT_STREQ(text, "xxcd");
    CopyMemory(text, "12", 2);
    EXPECT_STREQ(text, "12cd");
    MoveMemory(text + 1, text, 3);
    EXPECT_EQ(std::string(text, 7), std::string("112c\0f\0", 7));
}

TEST(PortingArrays, KnowTheirLength)
{
    const wchar_t text[MAX_PATH] = {};
    char copy[_countof(text)] = {};
    EXPECT_EQ(ARRAYSIZE(copy), 260U);
}

TEST(PortingArguments, AreUsedAndStayAsTheyAre)
{
    int argument = 7;
    UNREFERENCED_PARAMETER(argument);
    EXPECT_EQ(argument, 7);
}
