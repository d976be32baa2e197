// SPDX-License-Identifier: MIT
//
// Runs part of a test in a process of its own, which may give up its rights, its files or its memory.
#ifndef KTQTBASE_TESTS_FAULTS_INCHILD_H
#define KTQTBASE_TESTS_FAULTS_INCHILD_H

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace faults {

// The system does not let this process do what the test needs.
constexpr int kRefused = 77;

// What failed so far in the test that runs.
inline int failures()
{
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

// Runs a part and waits for it.
// Result: 0 where all its expectations held, 1 where one failed, the status that it left with, 256
// and its signal where it was killed, or -1 where there was no process for it.
template<class Body>
int inChild(Body body)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const int before = failures();
        body();
        std::fflush(nullptr);
        _exit(failures() == before ? 0 : 1);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 256 + WTERMSIG(status);
}

// Root may do everything, so that it becomes somebody else; for a child only.
inline void becomeSomebody()
{
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0))
        _exit(kRefused);
}

} // namespace faults

#endif
