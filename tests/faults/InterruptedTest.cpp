// SPDX-License-Identifier: MIT
//
// Each system call of a program that uses the library's files, interrupted in turn. strace does it,
// so that the calls are seen that the C library makes inside itself.
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
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

    void interrupt(const std::string& call, int n) const
    {
        reset();
        const std::string inject = "inject=" + call + ":error=EINTR:when=" + std::to_string(n);
        const ProgramResult run = trace({"-e", inject.c_str()});
        EXPECT_EQ(run.status, 0) << inject << ": " << run.err;
        EXPECT_THAT(run.out, testing::MatchesRegex("(5|none) 1 0 [01]\n")) << inject;
        EXPECT_THAT(readFile(m_folder / "to"), testing::AnyOf("", "content")) << inject;
        EXPECT_THAT(readFile(store()), testing::AnyOf("[App]\nCount=7\n", "[App]\nCount=8\n"))
            << inject;
        EXPECT_EQ(readFile(m_folder / "from"), "content") << inject;
    }

    const TemporaryFolder m_folder;
    const TemporaryFolder m_log;
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

TEST_F(Interrupted, CallsEndAsTheirFunctionsSay)
{
    const ProgramResult run = trace({});
    if (run.status != 0) {
        GTEST_SKIP() << "the system does not let strace work: " << run.err;
    }
    ASSERT_EQ(run.out, "5 1 0 1\n");
    int calls = 0;
    for (const auto& [call, count] : countCalls()) {
        for (int n = 1; n <= count.own && canBeInterrupted(call); ++n, ++calls)
            interrupt(call, count.before + n);
    }
    EXPECT_GT(calls, 30);
    RecordProperty("calls", calls);
    std::printf("%d calls interrupted\n", calls);
}

} // namespace
