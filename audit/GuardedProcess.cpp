// SPDX-License-Identifier: MIT
#include "GuardedProcess.h"

#include <cerrno>
#include <csignal>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ktqtbase::audit {

namespace {

constexpr rlim_t kSeconds = 30;
constexpr unsigned kSecondsOfWaiting = 120; // also for a slow disk
constexpr rlim_t kBytes = rlim_t(4) << 30;
constexpr int kPatience = 200; // milliseconds

// Sanitizers reserve more addresses than any limit has.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kLimitsMemory = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) ||                         \
    __has_feature(memory_sanitizer)
constexpr bool kLimitsMemory = false;
#else
constexpr bool kLimitsMemory = true;
#endif
#else
constexpr bool kLimitsMemory = true;
#endif

void setLimit(int resource, rlim_t value)
{
    const rlimit limit = {value, value};
    setrlimit(static_cast<decltype(RLIMIT_CPU)>(resource), &limit);
}

// What a library says while it crashes is no help to anybody, nor is its memory on disk.
void prepareToCrash()
{
    setLimit(RLIMIT_CORE, 0);
    setLimit(RLIMIT_CPU, kSeconds);
    if (kLimitsMemory)
        setLimit(RLIMIT_AS, kBytes);
    std::signal(SIGALRM, SIG_DFL);
    alarm(kSecondsOfWaiting);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDERR_FILENO);
}

bool writeAll(int file, const std::string& bytes)
{
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = write(file, bytes.data() + done, bytes.size() - done);
        if (count < 0 && errno != EINTR)
            return false;
        done += static_cast<std::size_t>(count < 0 ? 0 : count);
    }
    return true;
}

// The byte at the end tells that nothing is missing.
[[noreturn]] void runInChild(const std::function<std::string()>& work, int pipe) noexcept
{
    prepareToCrash();
    _exit(writeAll(pipe, work() + '.') ? 0 : 1);
}

void wait(int pipe, const std::function<void()>& waiting)
{
    pollfd file = {pipe, POLLIN, 0};
    while (poll(&file, 1, kPatience) == 0)
        waiting();
}

std::string readAll(int pipe, const std::function<void()>& waiting)
{
    std::string bytes;
    char buffer[65536];
    for (;;) {
        wait(pipe, waiting);
        const ssize_t count = read(pipe, buffer, sizeof buffer);
        if (count > 0)
            bytes.append(buffer, static_cast<std::size_t>(count));
        else if (count == 0 || errno != EINTR)
            return bytes;
    }
}

int waitForChild(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR)
        ;
    return status;
}

Ending endingOf(int status)
{
    const bool isTooLong =
        WIFSIGNALED(status) &&
        (WTERMSIG(status) == SIGXCPU || WTERMSIG(status) == SIGALRM || WTERMSIG(status) == SIGKILL);
    return status == 0 ? Ending::Done : isTooLong ? Ending::TooLong : Ending::Crashed;
}

Outcome outcomeOf(pid_t child, int pipe, const std::function<void()>& waiting)
{
    std::string bytes = readAll(pipe, waiting);
    close(pipe);
    const Ending ending = endingOf(waitForChild(child));
    if (ending != Ending::Done)
        return {ending, std::string()};
    if (bytes.empty())
        return {Ending::Crashed, std::string()};
    bytes.pop_back();
    return {ending, bytes};
}

[[noreturn]] void fail(const char* what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

} // namespace

Outcome runGuarded(const std::function<std::string()>& work, const std::function<void()>& waiting)
{
    int pipes[2] = {-1, -1};
    if (pipe(pipes) != 0)
        fail("no pipe");
    const pid_t child = fork();
    if (child == 0)
        runInChild(work, pipes[1]);
    close(pipes[1]);
    if (child > 0)
        return outcomeOf(child, pipes[0], waiting);
    close(pipes[0]);
    fail("no process");
}

} // namespace ktqtbase::audit
