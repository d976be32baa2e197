// SPDX-License-Identifier: MIT
//
// The mode of a file, as GetFileAttributes reports it.
#ifndef KTQTBASE_SYSTEM_FILEMODE_H
#define KTQTBASE_SYSTEM_FILEMODE_H

#include <KtQtBase/windows/Constants.h>

#include <sys/stat.h>

namespace ktqtbase {

// The mode of a file, or INVALID_FILE_ATTRIBUTES.
inline unsigned int modeOf(const char* name)
{
    // st_mode has 16 bits on macOS and more on Linux, where the upper ones are zero.
    constexpr unsigned int kModeBits = 0xFFFF;
    struct stat status;
    if (stat(name, &status) != 0)
        return INVALID_FILE_ATTRIBUTES;
    return static_cast<unsigned int>(status.st_mode) & kModeBits;
}

} // namespace ktqtbase

#endif
