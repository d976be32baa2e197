// SPDX-License-Identifier: MIT
//
// The trampolines of ktqt-trace, between callers and functions of the test's own. The test stands
// for the recorder: it gives the functions to jump to and is asked at a first call.
#include "Recorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdarg>
#include <stdexcept>
#include <string>

extern "C" {
#define TRACED(index, symbol, name, status, result) void symbol();
#include "TracedFunctions.inc"
#undef TRACED
}

namespace {

using Function = void (*)();

const Function kTrampolines[] = {
#define TRACED(index, symbol, name, status, result) symbol,
#include "TracedFunctions.inc"
#undef TRACED
};
constexpr size_t kLast = trace::kFunctions - 1;

trace::Counter counters[trace::kFunctions];
int asked;
uint32_t askedFor;
Function function;

// A call through a trampoline, under the signature of the function behind it.
template<class Signature>
Signature* through(size_t index, Signature* target)
{
    function = reinterpret_cast<Function>(target);
    ktqtTraceFunctions[index] = reinterpret_cast<void*>(target);
    return reinterpret_cast<Signature*>(kTrampolines[index]);
}

// As a real recorder does, this uses every register that a function may use.
double disturb(double x)
{
    char text[64];
    std::snprintf(text, sizeof(text), "%f %f %f %f %d", x, x * 2, x * 3, x * 4, asked);
    return std::stod(text);
}

class Trampoline : public testing::TestWithParam<bool>
{
protected:
    // Whether the trampoline has to ask, or counts by itself.
    Trampoline()
    {
        asked = 0;
        for (trace::Counter& counter : counters) {
            counter.calls = 0;
            counter.caller = GetParam() ? 0 : 1;
        }
        ktqtTraceCounters = counters;
    }

    void expectOneCall(size_t index) const
    {
        EXPECT_EQ(asked, GetParam() ? 1 : 0);
        EXPECT_EQ(counters[index].calls, GetParam() ? 0u : 1u);
    }
};

INSTANTIATE_TEST_SUITE_P(Calls, Trampoline, testing::Values(true, false),
                         [](const auto& row) { return row.param ? "First" : "Later"; });

std::string whole(int a, long b, const char* c, short d, unsigned e, long long f, int g, char h,
                  long i)
{
    return testing::PrintToString(std::make_tuple(a, b, c, d, e, f, g, h, i));
}

TEST_P(Trampoline, PassesWholeNumbersInRegistersAndOnTheStack)
{
    const std::string direct = whole(-1, 1L << 60, "c", -4, 5u, -6, 7, 'h', -9);
    EXPECT_EQ(through(0, whole)(-1, 1L << 60, "c", -4, 5u, -6, 7, 'h', -9), direct);
    expectOneCall(0);
}

std::string broken(float a, double b, double c, double d, float e, double f, double g, double h,
                   double i, long double j)
{
    return testing::PrintToString(std::make_tuple(a, b, c, d, e, f, g, h, i, j));
}

TEST_P(Trampoline, PassesBrokenNumbersInRegistersAndOnTheStack)
{
    const std::string direct = broken(.5f, 1.5, 2.5, 3.5, 4.5f, 5.5, 6.5, 7.5, 8.5, 9.5L);
    EXPECT_EQ(through(kLast, broken)(.5f, 1.5, 2.5, 3.5, 4.5f, 5.5, 6.5, 7.5, 8.5, 9.5L), direct);
    expectOneCall(kLast);
}

// Small records travel in registers, large ones in memory that the caller made.
struct Small
{
    double x;
    int n;
};
struct Large
{
    Small parts[8];
};

Small half(Small whole)
{
    return {whole.x / 2, whole.n / 2};
}

Large spread(Small part, int n)
{
    Large all = {};
    all.parts[n] = part;
    return all;
}

TEST_P(Trampoline, PassesSmallRecords)
{
    const Small result = through(1, half)({5.0, 8});
    EXPECT_EQ(result.x, 2.5);
    EXPECT_EQ(result.n, 4);
}

TEST_P(Trampoline, PassesLargeRecords)
{
    const Large result = through(1, spread)({5.0, 8}, 7);
    EXPECT_EQ(result.parts[7].x, 5.0);
    EXPECT_EQ(result.parts[7].n, 8);
    EXPECT_EQ(result.parts[6].n, 0);
}

double sum(int n, ...)
{
    va_list values;
    va_start(values, n);
    double all = 0;
    for (int i = 0; i < n; ++i)
        all += va_arg(values, double);
    va_end(values);
    return all;
}

TEST_P(Trampoline, PassesAnyNumberOfArguments)
{
    EXPECT_EQ(through(2, sum)(3, 1.5, 2.0, 4.0), 7.5);
}

void refuse(int)
{
    throw std::runtime_error("refused");
}

TEST_P(Trampoline, LetsExceptionsThrough)
{
    EXPECT_THROW(through(3, refuse)(1), std::runtime_error);
    expectOneCall(3);
}

long factorial(int n)
{
    return n < 2 ? 1 : n * reinterpret_cast<long (*)(int)>(kTrampolines[4])(n - 1);
}

TEST_P(Trampoline, LetsAFunctionCallItself)
{
    EXPECT_EQ(through(4, factorial)(10), 3628800);
    EXPECT_EQ(counters[4].calls + static_cast<unsigned>(asked), 10u);
}

void nothing() {}

TEST_P(Trampoline, BelongsToTheFunctionOfItsIndex)
{
    for (size_t i = 0; i < trace::kFunctions; ++i)
        through(i, nothing)();
    for (size_t i = 0; i < trace::kFunctions; ++i)
        EXPECT_EQ(counters[i].calls, GetParam() ? 0u : 1u) << i;
    EXPECT_EQ(asked, GetParam() ? static_cast<int>(trace::kFunctions) : 0);
}

TEST(TrampolineIndex, IsTheOneAskedFor)
{
    counters[kLast].caller = 0;
    ktqtTraceCounters = counters;
    through(kLast, nothing)();
    EXPECT_EQ(askedFor, kLast);
}

} // namespace

std::atomic<trace::Counter*> ktqtTraceCounters = counters;
std::atomic<void*> ktqtTraceFunctions[trace::kFunctions];

void* ktqtTraceFirstCall(uint32_t index, void*)
{
    ++asked;
    askedFor = index;
    disturb(asked);
    return reinterpret_cast<void*>(function);
}
