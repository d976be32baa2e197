// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <cstring>

#include <unistd.h>

namespace {

// The kernel has one page for this path, of at most 64 KiB.
constexpr std::size_t kLongestPath = std::size_t{64} * 1024;

// Reads the executable's path, without a terminator. Result: its length, or 0 where it is not known.
std::size_t readExecutablePath(char* text, std::size_t size)
{
    const ssize_t length = readlink("/proc/self/exe", text, size);
    return length > 0 ? static_cast<std::size_t>(length) : 0;
}

// The executable's path, unless it is longer than usual. Nothing of it is on the heap, so that it can
// be read until the process ends and stays nowhere when the library is unloaded. With room for every
// path the loader would have to map memory besides that of the library's file.
struct UsualPath
{
    UsualPath() : length(readExecutablePath(text, sizeof text)) {}

    bool isWhole() const { return length < sizeof text; }

    const std::size_t length;
    char text[1024];
};

// Gives a path to a caller of executablePath.
int give(const char* path, std::size_t length, char* buffer, std::uint32_t* size)
{
    const std::size_t needed = length > 0 ? length + 1 : 0;
    if (needed == 0 || needed > *size) {
        *size = static_cast<std::uint32_t>(needed);
        return -1;
    }
    std::memcpy(buffer, path, length);
    buffer[length] = '\0';
    return 0;
}

int giveLongPath(char* buffer, std::uint32_t* size)
{
    char path[kLongestPath];
    const std::size_t length = readExecutablePath(path, sizeof path);
    return give(path, length, buffer, size);
}

QRect mainScreenFrame()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry() : QRect();
}

} // namespace

namespace ktqtbase::platform {

int executablePath(char* buffer, std::uint32_t* size)
{
    // Read once, since the path does not change.
    static const UsualPath path;
    return path.isWhole() ? give(path.text, path.length, buffer, size) : giveLongPath(buffer, size);
}

const char* sharedLibrarySuffix()
{
    return ".so";
}

const char* utf8LocaleName()
{
    return "C.UTF-8";
}

int mainScreenWidth()
{
    return mainScreenFrame().width();
}

int mainScreenHeight()
{
    return mainScreenFrame().height();
}

} // namespace ktqtbase::platform
