// SPDX-License-Identifier: MIT
#include "GuardedProcess.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

namespace {

using ktqtbase::audit::Ending;
using ktqtbase::audit::Outcome;
using ktqtbase::audit::runGuarded;

void doNothing() {}

Ending endingOf(std::string (*work)())
{
    const Outcome outcome = runGuarded(work, doNothing);
    EXPECT_EQ(outcome.bytes, "");
    return outcome.ending;
}

TEST(GuardedProcess, GivesWhatTheWorkGives)
{
    const std::string bytes = std::string("a\0b", 3) + std::string(1000000, 'c');
    const Outcome outcome = runGuarded([&] { return bytes; }, doNothing);
    EXPECT_EQ(outcome.ending, Ending::Done);
    EXPECT_TRUE(outcome.bytes == bytes);
}

TEST(GuardedProcess, MayGiveNothing)
{
    EXPECT_EQ(endingOf([] { return std::string(); }), Ending::Done);
}

TEST(GuardedProcess, TellsOfACrash)
{
    const auto crash = []() -> std::string { std::abort(); };
    EXPECT_EQ(endingOf(crash), Ending::Crashed);
}

TEST(GuardedProcess, TakesAnEndBeforeTheLastByteForACrash)
{
    const auto exitAtOnce = []() -> std::string { _exit(0); };
    EXPECT_EQ(endingOf(exitAtOnce), Ending::Crashed);
}

TEST(GuardedProcess, TellsOfWorkThatTookTooLong)
{
    for (const int signal : {SIGALRM, SIGXCPU, SIGKILL}) {
        const auto work = [signal]() -> std::string {
            raise(signal);
            return "too late";
        };
        EXPECT_EQ(runGuarded(work, doNothing).ending, Ending::TooLong) << signal;
    }
}

std::string limitOf(int resource)
{
    const auto work = [resource] {
        rlimit limit = {};
        getrlimit(static_cast<decltype(RLIMIT_CPU)>(resource), &limit);
        return std::to_string(limit.rlim_cur);
    };
    return runGuarded(work, doNothing).bytes;
}

TEST(GuardedProcess, LimitsTheTimeOfWork)
{
    EXPECT_EQ(limitOf(RLIMIT_CPU), "30");
    EXPECT_EQ(limitOf(RLIMIT_CORE), "0");
    const auto secondsLeft = [] { return std::to_string(alarm(0)); };
    const int seconds = std::stoi(runGuarded(secondsLeft, doNothing).bytes);
    EXPECT_GT(seconds, 100);
    EXPECT_LE(seconds, 120);
}

// The sanitizers reserve more addresses than there is memory.
TEST(GuardedProcess, LimitsTheMemoryOfWork)
{
    rlimit own = {};
    getrlimit(RLIMIT_AS, &own);
    EXPECT_EQ(limitOf(RLIMIT_AS), std::to_string(LIMITS_MEMORY ? rlim_t(4) << 30 : own.rlim_cur));
}

TEST(GuardedProcess, CallsBackWhileItWaits)
{
    int calls = 0;
    const auto work = [] {
        usleep(700000);
        return std::string("done");
    };
    EXPECT_EQ(runGuarded(work, [&calls] { ++calls; }).bytes, "done");
    EXPECT_GE(calls, 1);
}

} // namespace
