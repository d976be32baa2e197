// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <cstring>
#include <string>

#include <unistd.h>

namespace {

// readlink cuts a path that is too long without an error, so a path that fills all the room is read
// again with more.
std::string readExecutablePath()
{
    std::string path;
    for (std::size_t room = 1024;; room *= 2) {
        path.resize(room);
        const ssize_t length = readlink("/proc/self/exe", path.data(), room);
        if (length < 0)
            return std::string();
        if (static_cast<std::size_t>(length) < room) {
            path.resize(static_cast<std::size_t>(length));
            return path;
        }
    }
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
    // Read once, since the path does not change; never freed, so that it can be read until the
    // process ends.
    static const std::string& path = *new const std::string(readExecutablePath());
    const auto needed = static_cast<std::uint32_t>(path.empty() ? 0 : path.size() + 1);
    if (needed == 0 || needed > *size) {
        *size = needed;
        return -1;
    }
    std::memcpy(buffer, path.c_str(), needed);
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
