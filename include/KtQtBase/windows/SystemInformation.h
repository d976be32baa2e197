// SPDX-License-Identifier: MIT
//
// The clock, the screen's size and the last error.
//
//     unsigned int start = GetTickCount();
//     work();
//     unsigned int milliseconds = GetTickCount() - start;
#ifndef KTQTBASE_WINDOWS_SYSTEMINFORMATION_H
#define KTQTBASE_WINDOWS_SYSTEMINFORMATION_H

#include <KtQtBase/Export.h>
#include <KtQtBase/windows/CharNext.h> // for hosts that look for CharNext here

// A clock for differences of two readings.
// Result: milliseconds of the wall clock since 1970, modulo 2^32; wraps about every 49.7 days and
// jumps when the clock is set.
// On Windows: milliseconds since the system started.
KTQTBASE_EXPORT unsigned int GetTickCount();

// The calling thread's errno as it stands. No function of this library sets an error code.
// On Windows: the code that the last function set.
KTQTBASE_EXPORT unsigned int GetLastError();

// A size of the system's display.
//   nIndex    in: SM_CXFULLSCREEN (16) or SM_CYFULLSCREEN (17)
// Result: getDisplayWidth() or getDiaplayHeight(); 0 for every other index.
// On Windows: the client area of a full-screen window, and many other sizes.
KTQTBASE_EXPORT int GetSystemMetrics(int nIndex);

// Width and height of the main screen's frame in points, cut to whole numbers; 0 without a main
// screen. On Linux they come from Qt's primary screen, which exists with a QGuiApplication.
// Kept: the spelling of the second name is part of the interface.
KTQTBASE_EXPORT int getDisplayWidth();
KTQTBASE_EXPORT int getDiaplayHeight();

// The same under the names of kernel32; each does what the global function does.
namespace KtKernel32 {

KTQTBASE_EXPORT unsigned int GetTickCount();
KTQTBASE_EXPORT unsigned int GetLastError();

// Whether a byte begins a two-byte character. Result: what the OS-base library answers, whose own
// function is the global one.
// On Windows: bytes of 0x81 and above begin one in the code pages of East Asia.
KTQTBASE_EXPORT int IsDBCSLeadByte(unsigned char TestChar);

} // namespace KtKernel32

#endif
