// SPDX-License-Identifier: MIT
//
// The version of the library, for sources that are built with several versions of it.
//
//     #if KTQTBASE_VERSION_AT_LEAST(1, 2, 0)
//         ... what 1.2.0 added ...
//     #endif
//     std::printf("built with KtQtBase %s\n", KTQTBASE_VERSION_TEXT);
//
// These are the headers' numbers, so a host keeps those that it was compiled with. The loader takes
// any later library of the same major version.
#ifndef KTQTBASE_VERSION_H
#define KTQTBASE_VERSION_H

// The three parts of the version. CMakeLists.txt reads them here, and the library's name, the CMake
// package and the pkg-config module have them from there.
#define KTQTBASE_VERSION_MAJOR 1
#define KTQTBASE_VERSION_MINOR 1
#define KTQTBASE_VERSION_PATCH 0

// A version as one number, in the form of Qt's QT_VERSION_CHECK: a later version is a larger number.
// Each part is from 0 to 255.
//   1, 2, 3  => 0x010203
#define KTQTBASE_VERSION_CHECK(major, minor, patch) ((major) << 16 | (minor) << 8 | (patch))

// This version as one number.
#define KTQTBASE_VERSION                                                                           \
    KTQTBASE_VERSION_CHECK(KTQTBASE_VERSION_MAJOR, KTQTBASE_VERSION_MINOR, KTQTBASE_VERSION_PATCH)

// Whether this version is the given one or a later one; the preprocessor can ask, too.
#define KTQTBASE_VERSION_AT_LEAST(major, minor, patch)                                             \
    (KTQTBASE_VERSION >= KTQTBASE_VERSION_CHECK(major, minor, patch))

// The arguments' values, with dots between them.
#define KTQTBASE_DOTTED(first, second, third) KTQTBASE_DOTTED_WORDS(first, second, third)
#define KTQTBASE_DOTTED_WORDS(first, second, third) #first "." #second "." #third

// This version as a narrow text, such as "1.2.3".
#define KTQTBASE_VERSION_TEXT                                                                      \
    KTQTBASE_DOTTED(KTQTBASE_VERSION_MAJOR, KTQTBASE_VERSION_MINOR, KTQTBASE_VERSION_PATCH)

#endif
