// SPDX-License-Identifier: MIT
#include "SystemCalls.h"

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

faults::Fault g_fault{"", 0, 0, "", nullptr};
bool g_struck = false;

int numberOf(const char* variable)
{
    const char* const text = std::getenv(variable);
    return text ? std::atoi(text) : 0;
}

// A preloaded library is told by the environment.
struct FromEnvironment
{
    FromEnvironment()
    {
        const char* const call = std::getenv("KTFAULT_CALL");
        const char* const below = std::getenv("KTFAULT_BELOW");
        if (call && below)
            g_fault = {call, numberOf("KTFAULT_AT"), numberOf("KTFAULT_ERROR"), below, nullptr};
    }
};

const FromEnvironment g_fromEnvironment;

template<class Function>
Function* real(Function*, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool isBelow(const char* path)
{
    char full[2 * PATH_MAX] = "";
    if (path[0] != '/') {
        if (!getcwd(full, PATH_MAX))
            return false;
        std::strcat(full, "/");
    }
    if (std::strlen(path) >= PATH_MAX)
        return false;
    std::strcat(full, path);
    return std::strncmp(full, g_fault.below, std::strlen(g_fault.below)) == 0;
}

bool isBelow(int file)
{
    char link[64];
    char path[PATH_MAX] = "";
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    return readlink(link, path, sizeof path - 1) > 0 && path[0] == '/' && isBelow(path);
}

void leaveMark()
{
    const char* const mark = std::getenv("KTFAULT_MARK");
    if (mark)
        mknod(mark, S_IFREG | 0600, 0);
}

// Whether this call fails, with errno set.
template<class Place>
bool fails(const char* call, Place place)
{
    if (g_fault.at == 0 || std::strcmp(call, g_fault.call) != 0)
        return false;
    const int before = errno;
    const bool isNext = isBelow(place) && --g_fault.at == 0;
    errno = before;
    if (!isNext)
        return false;
    g_struck = true;
    leaveMark();
    if (g_fault.before)
        g_fault.before();
    errno = g_fault.error ? g_fault.error : before;
    return g_fault.error != 0;
}

mode_t modeFrom(int flags, va_list arguments)
{
    const bool has = (flags & O_CREAT) || (flags & O_TMPFILE) == O_TMPFILE;
    return has ? va_arg(arguments, mode_t) : 0;
}

} // namespace

void faults::at(const Fault& fault)
{
    g_fault = fault;
    g_struck = false;
}

bool faults::done()
{
    g_fault.at = 0;
    return g_struck;
}

#define KTFAULT_FUNCTION extern "C" __attribute__((visibility("default")))

// NOLINTBEGIN(bugprone-macro-parentheses): names and types.

// A function and its arguments, which fails where its place says so.
#define KTFAULT_PLAIN(result, failure, call, name, place, parameters, arguments)                   \
    KTFAULT_FUNCTION result name parameters                                                        \
    {                                                                                              \
        static const auto next = real(&name, #name);                                               \
        return fails(call, place) ? failure : next arguments;                                      \
    }

#define KTFAULT_OPEN(name)                                                                         \
    KTFAULT_FUNCTION int name(const char* path, int flags, ...)                                    \
    {                                                                                              \
        static const auto next = real(&name, #name);                                               \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeFrom(flags, arguments);                                            \
        va_end(arguments);                                                                         \
        return fails("open", path) ? -1 : next(path, flags, mode);                                 \
    }

// NOLINTEND(bugprone-macro-parentheses)

KTFAULT_OPEN(open)
KTFAULT_OPEN(open64)
KTFAULT_PLAIN(FILE*, nullptr, "open", fopen, path, (const char* path, const char* mode),
              (path, mode))
KTFAULT_PLAIN(FILE*, nullptr, "open", fopen64, path, (const char* path, const char* mode),
              (path, mode))
KTFAULT_PLAIN(ssize_t, -1, "read", read, file, (int file, void* area, size_t size),
              (file, area, size))
KTFAULT_PLAIN(ssize_t, -1, "write", write, file, (int file, const void* area, size_t size),
              (file, area, size))
KTFAULT_PLAIN(ssize_t, -1, "write", writev, file, (int file, const iovec* parts, int count),
              (file, parts, count))
KTFAULT_PLAIN(int, -1, "fsync", fsync, file, (int file), (file))
KTFAULT_PLAIN(int, -1, "fsync", fdatasync, file, (int file), (file))
KTFAULT_PLAIN(int, -1, "ftruncate", ftruncate, file, (int file, off_t size), (file, size))
KTFAULT_PLAIN(int, -1, "ftruncate", ftruncate64, file, (int file, off64_t size), (file, size))
KTFAULT_PLAIN(int, -1, "rename", rename, to, (const char* from, const char* to) noexcept,
              (from, to))
KTFAULT_PLAIN(int, -1, "rename", renameat2, to,
              (int fromFolder, const char* from, int toFolder, const char* to,
               unsigned int flags) noexcept,
              (fromFolder, from, toFolder, to, flags))
KTFAULT_PLAIN(int, -1, "stat", fstat, file, (int file, struct stat* status) noexcept,
              (file, status))
KTFAULT_PLAIN(int, -1, "stat", fstat64, file, (int file, struct stat64* status) noexcept,
              (file, status))
KTFAULT_PLAIN(int, -1, "stat", stat, path, (const char* path, struct stat* status) noexcept,
              (path, status))
KTFAULT_PLAIN(int, -1, "stat", stat64, path, (const char* path, struct stat64* status) noexcept,
              (path, status))

// The system closes the file even where it says that it was interrupted, or that what was written
// could not be kept.
KTFAULT_FUNCTION int close(int file)
{
    static const auto next = real(&close, "close");
    const bool isToFail = fails("close", file);
    const int error = errno;
    const int result = next(file);
    if (!isToFail)
        return result;
    errno = error;
    return -1;
}
