// SPDX-License-Identifier: MIT
#import <AppKit/AppKit.h>

#include "platform/Platform.h"

#include <mach-o/dyld.h>

namespace {

// The whole screen, menu bar and dock included; empty without a screen.
NSSize mainScreenSize()
{
    @autoreleasepool {
        NSScreen* screen = [NSScreen mainScreen];
        return screen ? [screen frame].size : NSMakeSize(0, 0);
    }
}

} // namespace

namespace ktqtbase::platform {

int executablePath(char* buffer, std::uint32_t* size)
{
    return _NSGetExecutablePath(buffer, size);
}

const char* sharedLibrarySuffix()
{
    return ".dylib";
}

const char* utf8LocaleName()
{
    return "UTF-8";
}

int mainScreenWidth()
{
    return static_cast<int>(mainScreenSize().width);
}

int mainScreenHeight()
{
    return static_cast<int>(mainScreenSize().height);
}

} // namespace ktqtbase::platform
