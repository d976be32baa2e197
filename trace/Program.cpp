// SPDX-License-Identifier: MIT
#include "Program.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <iterator>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

// macOS has it and does not declare it.
// NOLINTNEXTLINE(readability-redundant-declaration)
extern char** environ;

namespace {

volatile pid_t running = 0;

void passOn(int signal)
{
    if (running > 0)
        kill(running, signal);
}

// The terminal has told the program, too; and who reads the list no more is no reason to leave a
// temporary file behind.
void stay(int) {}

// A handler ends when a program is started; what is ignored would stay so, and the program has to
// find it as its user left it.
void handle(int signal, void (*handler)(int))
{
    if (std::signal(signal, handler) == SIG_IGN)
        std::signal(signal, SIG_IGN);
}

void handleSignals()
{
    handle(SIGINT, stay);
    handle(SIGQUIT, stay);
    handle(SIGPIPE, stay);
    handle(SIGTERM, passOn);
    handle(SIGHUP, passOn);
}

// Holds back the signals that are passed on while nobody knows yet to whom.
class HeldSignals
{
public:
    HeldSignals()
    {
        sigset_t held;
        sigemptyset(&held);
        sigaddset(&held, SIGTERM);
        sigaddset(&held, SIGHUP);
        sigprocmask(SIG_BLOCK, &held, &m_before);
    }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
    ~HeldSignals() { sigprocmask(SIG_SETMASK, &m_before, nullptr); }

    // What the started program begins with.
    const sigset_t* before() const { return &m_before; }

private:
    sigset_t m_before = {};
};

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers(texts.size() + 1);
    std::transform(texts.begin(), texts.end(), pointers.begin(),
                   [](std::string& text) { return text.data(); });
    return pointers;
}

bool isSameVariable(const std::string& a, const std::string& b)
{
    return a.substr(0, a.find('=')) == b.substr(0, b.find('='));
}

int waitFor(pid_t process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

std::string readAll(int file)
{
    std::string all;
    char part[4096];
    for (ssize_t n = 0; (n = read(file, part, sizeof(part))) > 0;)
        all.append(part, static_cast<size_t>(n));
    return all;
}

pid_t startInto(int output, std::vector<std::string> arguments)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int error = posix_spawnp(&process, arguments[0].c_str(), &actions, nullptr,
                                   pointersTo(arguments).data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? process : -1;
}

// Starts the program that is running from then on.
// Result: an error's number, or 0.
int start(char* const* arguments, std::vector<std::string>& environment)
{
    const HeldSignals held;
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigmask(&attributes, held.before());
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t process = 0;
    const int error = posix_spawnp(&process, arguments[0], nullptr, &attributes, arguments,
                                   pointersTo(environment).data());
    posix_spawnattr_destroy(&attributes);
    running = error == 0 ? process : 0;
    return error;
}

} // namespace

trace::Variables trace::ownEnvironment()
{
    Variables all;
    for (char** variable = environ; *variable != nullptr; ++variable)
        all.emplace_back(*variable);
    return all;
}

trace::Variables trace::withVariables(const Variables& environment, const Variables& variables)
{
    Variables all = variables;
    const auto isReplaced = [&variables](const std::string& variable) {
        return std::any_of(
            variables.begin(), variables.end(),
            [&variable](const std::string& other) { return isSameVariable(variable, other); });
    };
    std::remove_copy_if(environment.begin(), environment.end(), std::back_inserter(all),
                        isReplaced);
    return all;
}

int trace::runProgram(char* const* arguments, Variables environment)
{
    handleSignals();
    const int error = start(arguments, environment);
    if (error != 0) {
        std::fprintf(stderr, "ktqt-trace: cannot run %s: %s\n", arguments[0], std::strerror(error));
        return error == ENOENT ? -127 : -126;
    }
    const int status = waitFor(running);
    running = 0;
    return status;
}

std::string trace::outputOf(const std::vector<std::string>& arguments)
{
    int ends[2];
    if (pipe(ends) != 0)
        return std::string();
    fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    const pid_t process = startInto(ends[1], arguments);
    close(ends[1]);
    std::string output = process > 0 ? readAll(ends[0]) : std::string();
    close(ends[0]);
    if (process > 0)
        waitFor(process);
    return output;
}
