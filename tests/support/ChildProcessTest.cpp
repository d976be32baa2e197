// SPDX-License-Identifier: MIT
#include "support/ChildProcess.h"
#include "support/RunProgram.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

int signalsToMany = 0;

// Nobody can start a process meanwhile. Root is under no such limit, and becomes somebody else.
class NoNewProcesses
{
public:
    NoNewProcesses()
    {
        constexpr uid_t kSomebody = 54321;
        const bool isSet = getrlimit(RLIMIT_NPROC, &m_before) == 0 &&
                           (m_user != 0 || setresuid(kSomebody, kSomebody, 0) == 0) && limit(0);
        if (!isSet)
            throw std::runtime_error("no limit");
    }
    NoNewProcesses(const NoNewProcesses&) = delete;
    NoNewProcesses& operator=(const NoNewProcesses&) = delete;
    ~NoNewProcesses()
    {
        limit(m_before.rlim_cur);
        if (m_user == 0 && setresuid(0, 0, 0) != 0)
            std::abort();
    }

private:
    bool limit(rlim_t count) const
    {
        const rlimit wanted = {count, m_before.rlim_max};
        return setrlimit(RLIMIT_NPROC, &wanted) == 0;
    }

    const uid_t m_user = getuid();
    rlimit m_before;
};

const QStringList kNoArguments;

} // namespace

// Stands before the C library's: signals to more than one process are counted and not sent.
extern "C" __attribute__((visibility("default"))) int kill(pid_t process, int signal) noexcept
{
    if (process > 0)
        return static_cast<int>(syscall(SYS_kill, process, signal));
    ++signalsToMany;
    return 0;
}

TEST(ChildProcess, SignalsNobodyWhereItCouldNotBeStarted)
{
    signalsToMany = 0;
    {
        const NoNewProcesses limited;
        ChildProcess child;
        EXPECT_FALSE(child.start(QStringLiteral("/bin/true"), kNoArguments));
        child.end();
    }
    EXPECT_EQ(signalsToMany, 0);
}

TEST(RunProgram, TellsThatThereIsNoProgram)
{
    EXPECT_EQ(runProgram("/no/such/program", kNoArguments).status, -1);
}

TEST(ChildProcess, IsKilledAtItsEnd)
{
    ChildProcess child;
    ASSERT_TRUE(child.start(QStringLiteral("sleep"), {QStringLiteral("600")}));
    child.end();
    EXPECT_EQ(child->state(), QProcess::NotRunning);
    EXPECT_EQ(child->exitStatus(), QProcess::CrashExit);
}

TEST(RunProgram, TellsThatAProgramCouldNotBeStarted)
{
    signalsToMany = 0;
    {
        const NoNewProcesses limited;
        EXPECT_EQ(runProgram("/bin/true", kNoArguments).status, -1);
    }
    EXPECT_EQ(signalsToMany, 0);
}
