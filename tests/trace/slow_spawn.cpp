// SPDX-License-Identifier: MIT
//
// Stands before the C library and lets a program that was started run for a while before its starter
// goes on.
#include <chrono>
#include <thread>

#include <dlfcn.h>
#include <spawn.h>

extern "C" __attribute__((visibility("default"))) int
posix_spawnp(pid_t* process, const char* file, const posix_spawn_file_actions_t* actions,
             const posix_spawnattr_t* attributes, char* const* arguments, char* const* environment)
{
    static const auto next =
        reinterpret_cast<decltype(&posix_spawnp)>(dlsym(RTLD_NEXT, "posix_spawnp"));
    const int error = next(process, file, actions, attributes, arguments, environment);
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
    std::this_thread::sleep_until(end);
    return error;
}
