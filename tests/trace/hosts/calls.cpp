// SPDX-License-Identifier: MIT
//
// Does what its arguments say, one after the other:
//
//     close N      calls CloseHandle N times
//     open N       calls FindClose N times
//     threads N    both in two threads, N times each
//     module FILE  loads a module and has it call CloseHandle
//     fork         has a child call CloseHandle
//     exec         goes on with the rest as another program
//     inside       calls functions whose work another function of the library does
//     line         prints the line of the first call of CloseHandle
//     say TEXT     prints a text
//     wait         waits for a signal
//     exit N, _exit N, abort, crash, kill    end it
#include "hosts/module.h"

#include <KtQtBase/PathName.h>
#include <KtQtBase/WindowsFunctions.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <thread>

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Early
{
    Early() { GetVersion(); }
} early;

constexpr int kLineOfClose = __LINE__ + 5;

__attribute__((noinline)) void closeHandles(int n)
{
    for (int i = 0; i < n; ++i)
        CloseHandle(nullptr);
}

__attribute__((noinline)) void closeSearches(int n)
{
    for (int i = 0; i < n; ++i)
        FindClose(nullptr);
}

void callInThreads(int n)
{
    const auto both = [n] {
        closeHandles(n);
        closeSearches(n);
    };
    std::thread one(both);
    std::thread other(both);
    one.join();
    other.join();
}

void callInModule(const char* file)
{
    void* const module = dlopen(file, RTLD_NOW);
    reinterpret_cast<CallClose*>(dlsym(module, kCallClose))(nullptr);
}

void callInChild()
{
    const pid_t child = fork();
    if (child == 0) {
        closeHandles(1);
        _exit(0);
    }
    waitpid(child, nullptr, 0);
}

// The first of these jumps to the second, which then returns to this program; the third calls
// GetFileAttributes.
void callInside()
{
    KtKernel32::GetFileSize(nullptr, nullptr);
    KtKernel32::GetTickCount();
    CRnUiPathname name;
    name.Parse(L"/tmp", false);
}

// Waiting for good would outlive a test that fails.
void waitForSignal()
{
    std::puts("waiting");
    std::fflush(stdout);
    sleep(60);
}

// Each takes the arguments behind its name and answers how many of them it used.
using Command = std::function<int(char** rest)>;

Command plain(void (*function)())
{
    return [function](char**) {
        function();
        return 0;
    };
}

Command numbered(void (*function)(int))
{
    return [function](char** rest) {
        function(std::atoi(rest[0]));
        return 1;
    };
}

const std::map<std::string, Command> kCommands = {
    {"close", numbered(closeHandles)},
    {"open", numbered(closeSearches)},
    {"threads", numbered(callInThreads)},
    {"module", [](char** rest) { return callInModule(rest[0]), 1; }},
    {"fork", plain(callInChild)},
    {"exec", [](char** rest) { return execv("/proc/self/exe", rest - 1); }},
    {"inside", plain(callInside)},
    {"line", plain([] { std::printf("%d\n", kLineOfClose); })},
    {"say", [](char** rest) { return std::puts(rest[0]), 1; }},
    {"wait", plain(waitForSignal)},
    {"exit", numbered([](int status) { std::exit(status); })},
    {"_exit", numbered([](int status) { _exit(status); })},
    {"abort", plain([] { std::abort(); })},
    {"crash", plain([] { std::raise(SIGSEGV); })},
    {"kill", plain([] { std::raise(SIGKILL); })},
};

} // namespace

int main(int, char** argv)
{
    for (char** next = argv + 1; *next != nullptr; ++next)
        next += kCommands.at(*next)(next + 1);
}
