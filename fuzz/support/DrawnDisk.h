// SPDX-License-Identifier: MIT
//
// In place of the library's functions for files: nothing is asked of the machine, so that a run is
// quick and the same everywhere. What the "disk" has under a name follows from the name's characters.
#ifndef KTQTBASE_FUZZ_SUPPORT_DRAWNDISK_H
#define KTQTBASE_FUZZ_SUPPORT_DRAWNDISK_H

#include <string>

namespace ktqtbase::fuzz {

struct DrawnDisk
{
    // The answer to GetCurrentDirectoryW, of 1,023 characters at most; none counts as a failure.
    std::wstring currentDirectory;

    // Whether something has every name.
    bool isFull = false;

    // The answer to _wrename, and what it was asked last.
    int renameResult = 0;
    std::wstring renamed;
};

DrawnDisk& drawnDisk();

// The answer to GetFileAttributes.
unsigned int drawnAttributes(const std::wstring& name);

} // namespace ktqtbase::fuzz

#endif
