// SPDX-License-Identifier: MIT
//
// Writing a file so that either the whole new one is there afterwards, or the former one.
#ifndef SKETCHPAD_SAFEFILE_H
#define SKETCHPAD_SAFEFILE_H

#include <string>

// Who may read a new file: whom the system lets, or only its owner.
enum class CFileMode
{
    Usual,
    Private
};

// Writes a temporary file beside the target, and renames it. The target keeps its permissions; of a
// symbolic link, the file that it leads to is replaced.
//   reason    out: why the file could not be written
bool WriteSafely(const std::wstring& path, const std::string& bytes, CFileMode mode,
                 std::wstring& reason);

#endif
