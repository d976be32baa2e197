// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <algorithm>
#include <cstring>

#include <unistd.h>

namespace {

// The size of the executable's path with its terminator, 0 where it is not known, and the path where
// callers have room for it. Nothing of it is on the heap, so that it can be read until the process
// ends and stays nowhere when the library is unloaded. With room for every path the loader would have
// to map memory besides that of the library's file.
struct ExecutablePath
{
    ExecutablePath()
    {
        // The kernel has one page for this path, of at most 64 KiB.
        char whole[64 * 1024 + 1];
        const ssize_t length = readlink("/proc/self/exe", whole, sizeof whole - 1);
        if (length <= 0)
            return;
        whole[length] = '\0';
        size = static_cast<std::size_t>(length) + 1;
        if (size <= sizeof text)
            std::memcpy(text, whole, size);
    }

    std::size_t size = 0;
    char text[1024];
};

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
    static const ExecutablePath path;
    if (path.size == 0 || path.size > std::min<std::size_t>(*size, sizeof path.text)) {
        *size = static_cast<std::uint32_t>(path.size);
        return -1;
    }
    std::memcpy(buffer, path.text, path.size);
    return 0;
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
