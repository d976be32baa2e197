// SPDX-License-Identifier: MIT
//
// Each system call of a program that uses the library's files, interrupted in turn. strace does it,
// so that the calls are seen that the C library makes inside itself; where the system does not let
// it, a library that is loaded first interrupts the others.
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <map>
#include <set>
#include <sstream>

namespace {

namespace fs = std::filesystem;

using ktqtbase::test::readFile;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::writeFile;

// The calls of one name before the place where the program begins its own, and behind that.
struct Counts
{
    int before = 0;
    int own = 0;
};

// Memory is not asked for in a way that can be interrupted, and the C library ends a program whose
// locks fail.
bool canBeInterrupted(const std::string& call)
{
    const std::set<std::string> never{"brk", "exit_group", "futex", "mmap", "mprotect", "munmap"};
    const bool isName = std::all_of(call.begin(), call.end(), [](unsigned char ch) {
        return std::islower(ch) || std::isdigit(ch) || ch == '_';
    });
    return isName && never.count(call) == 0;
}

class Interrupted : public testing::Test
{
protected:
    Interrupted()
    {
        fs::create_directory(m_folder / "tarnex");
        writeFile(m_folder / "a.ini", "[S]\nk=5\n");
        writeFile(m_folder / "from", "content");
        fs::copy(PLAIN_MODULE, m_folder / "libcopy.so");
        reset();
    }

    void reset() const
    {
        fs::remove(m_folder / "to");
        writeFile(store(), "[App]\nCount=7\n");
    }

    fs::path store() const { return m_folder / "tarnex/Marrowfield.conf"; }
    fs::path log() const { return m_log / "log"; }

    ProgramResult trace(const QStringList& options) const
    {
        const QString folder = m_folder.path().c_str();
        return runProgram(STRACE,
                          QStringList{"-o", log().c_str()} + options +
                              QStringList{"-E", "ASAN_OPTIONS=detect_leaks=0", CALLS_HOST, folder});
    }

    std::map<std::string, Counts> countCalls() const
    {
        std::map<std::string, Counts> counts;
        std::istringstream lines(readFile(log()));
        bool isOwn = false;
        for (std::string line; std::getline(lines, line);) {
            if (line.find("where the calls end") != std::string::npos)
                break;
            Counts& count = counts[line.substr(0, line.find('('))];
            ++(isOwn ? count.own : count.before);
            isOwn = isOwn || line.find("where the calls begin") != std::string::npos;
        }
        return counts;
    }

    void expectAnInterruptedEnd(const ProgramResult& run) const
    {
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_THAT(run.out, testing::MatchesRegex("(5|none) 1 0 [01]\n"));
        EXPECT_THAT(readFile(m_folder / "to"), testing::AnyOf("", "content"));
        EXPECT_THAT(readFile(store()), testing::AnyOf("[App]\nCount=7\n", "[App]\nCount=8\n"));
        EXPECT_EQ(readFile(m_folder / "from"), "content");
    }

    void interrupt(const std::string& call, int n) const
    {
        reset();
        const std::string inject = "inject=" + call + ":error=EINTR:when=" + std::to_string(n);
        SCOPED_TRACE(inject);
        expectAnInterruptedEnd(trace({"-e", inject.c_str()}));
    }

    // Result: whether there was such a call.
    bool interruptFromInside(const char* call, int n) const
    {
        reset();
        SCOPED_TRACE(testing::Message() << call << ' ' << n);
        const fs::path mark = m_log / "mark";
        fs::remove(mark);
        QStringList arguments{QString("LD_PRELOAD=%1").arg(FAULT_CALLS),
                              QString("LD_LIBRARY_PATH=%1").arg(FAULT_CALLS_FOLDER),
                              "ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0",
                              QString("KTFAULT_CALL=%1").arg(call),
                              QString("KTFAULT_AT=%1").arg(n),
                              QString("KTFAULT_ERROR=%1").arg(EINTR),
                              QString("KTFAULT_BELOW=%1").arg(m_folder.path().c_str()),
                              QString("KTFAULT_MARK=%1").arg(mark.c_str()),
                              CALLS_HOST,
                              m_folder.path().c_str()};
        expectAnInterruptedEnd(runProgram("env", arguments));
        return fs::exists(mark);
    }

    // Result: how many.
    int interruptTracedCalls() const
    {
        int calls = 0;
        for (const auto& [call, count] : countCalls()) {
            for (int n = 1; n <= count.own && canBeInterrupted(call); ++n, ++calls)
                interrupt(call, count.before + n);
        }
        return calls;
    }

    int interruptCallsFromInside() const
    {
        int calls = 0;
        for (const char* call : {"open", "read", "write", "close", "stat", "rename"}) {
            for (int n = 1; interruptFromInside(call, n); ++n)
                ++calls;
        }
        return calls;
    }

    const TemporaryFolder m_folder;
    const TemporaryFolder m_log;
};

TEST_F(Interrupted, CallsEndAsTheirFunctionsSay)
{
    const ProgramResult plain = runProgram(CALLS_HOST, {m_folder.path().c_str()});
    ASSERT_EQ(plain.out, "5 1 0 1\n") << plain.err;
    reset();
    const ProgramResult traced = trace({});
    const bool isTraced = traced.status == 0;
    const int calls = isTraced ? interruptTracedCalls() : interruptCallsFromInside();
    EXPECT_GT(calls, isTraced ? 30 : 5);
    std::printf("%d calls interrupted %s\n%s", calls, isTraced ? "by strace" : "from inside",
                isTraced ? "" : traced.err.c_str());
}

} // namespace
