// SPDX-License-Identifier: MIT
//
// A host's own macros for packing numbers; each gives -1, so that one shows where it expanded.
#ifndef KTQTBASE_TESTS_HEADERS_HOSTPACKING_H
#define KTQTBASE_TESTS_HEADERS_HOSTPACKING_H

#define RGB(red, green, blue) (-1)
#define GetRValue(color) (-1)
#define GetGValue(color) (-1)
#define GetBValue(color) (-1)
#define LOWORD(value) (-1)
#define HIWORD(value) (-1)
#define MAKELPARAM(low, high) (-1)
#define MAKEWPARAM(low, high) (-1)
#define GET_X_LPARAM(value) (-1)
#define GET_Y_LPARAM(value) (-1)

// What holds with these macros before the library's header and after it.
#define CHECK_PACKING()                                                                            \
    static_assert(RGB(1, 2, 3) == -1 && LOWORD(7) == -1, "the host's macro is lost");              \
    static_assert((RGB)(255, 128, 1) == 0x000180FF);                                               \
    static_assert((GetRValue)(1) == 1 && (GetGValue)(512) == 2 && (GetBValue)(196608) == 3);       \
    static_assert((LOWORD)(0x12345678) == 0x5678 && (HIWORD)(0x12345678) == 0x1234);               \
    static_assert((MAKELPARAM)(0x5678, 0x1234) == 0x12345678 && (MAKEWPARAM)(1, 2) == 0x20001);    \
    static_assert((GET_X_LPARAM)(0x20001) == 1 && (GET_Y_LPARAM)(0x20001) == 2)

#endif
