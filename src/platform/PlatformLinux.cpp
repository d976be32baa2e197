// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <cstring>

#include <unistd.h>

namespace {

// The kernel has one page for this path, of at most 64 KiB. What is not read of the room takes no
// memory.
struct ExecutablePath
{
    ExecutablePath() : length(readlink("/proc/self/exe", text, sizeof text)) {}

    const ssize_t length;
    char text[64 * 1024];
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
    // Read once, since the path does not change. Nothing of it is on the heap, so that it can be read
    // until the process ends and stays nowhere when the library is unloaded.
    static const ExecutablePath path;
    const auto needed = static_cast<std::uint32_t>(path.length > 0 ? path.length + 1 : 0);
    if (needed == 0 || needed > *size) {
        *size = needed;
        return -1;
    }
    std::memcpy(buffer, path.text, needed - 1);
    buffer[needed - 1] = '\0';
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
