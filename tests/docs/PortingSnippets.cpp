// SPDX-License-Identifier: MIT
//
// What docs/porting.md shows and no example has, with what it promises.
#include <gtest/gtest.h>

#include <QtCore/QString>

#include <algorithm>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

std::wstring WithSlashes(std::wstring name)
{
    std::replace(name.begin(), name.end(), L'\\', L'/');
    return name;
}

std::wstring TextOfWindows(const char16_t* text, int length)
{
    return QString::fromUtf16(text, length).toStdWString();
}

// In place of a CRITICAL_SECTION. Like it, one thread may enter it more than once.
std::recursive_mutex g_jobsLock;

void AddJob(std::vector<int>& jobs, int job)
{
    const std::lock_guard<std::recursive_mutex> hold(g_jobsLock);
    jobs.push_back(job);
}

TEST(PortingSnippets, TurnBackslashesRound)
{
    EXPECT_EQ(WithSlashes(L"plugins\\a b\\x.dll"), L"plugins/a b/x.dll");
}

TEST(PortingSnippets, ReadTextOfTwoBytesACharacter)
{
    EXPECT_EQ(TextOfWindows(u"a\u00e9\U0001F600", 4), L"a\u00e9\U0001F600");
}

TEST(PortingSnippets, AddJobsFromTwoThreads)
{
    std::vector<int> jobs;
    const auto addMany = [&jobs] {
        for (int job = 0; job < 1000; ++job)
            AddJob(jobs, job);
    };
    std::thread other(addMany);
    addMany();
    other.join();
    EXPECT_EQ(jobs.size(), 2000u);
}

TEST(PortingSnippets, EnterALockTwice)
{
    std::vector<int> jobs;
    const std::lock_guard<std::recursive_mutex> hold(g_jobsLock);
    AddJob(jobs, 1);
    EXPECT_EQ(jobs.size(), 1u);
}

} // namespace
