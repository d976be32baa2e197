// SPDX-License-Identifier: MIT
//
// Counts what the whole process takes from malloc while it lives.
//
//     AllocationCounter counter;
//     call();
//     EXPECT_EQ(counter.count(), 0);
//
// Link AllocationCounter.cpp into the test program, or AllocationCounterSanitizer.cpp with
// AddressSanitizer, which has a malloc of its own.
#ifndef KTQTBASE_TESTS_SUPPORT_ALLOCATIONCOUNTER_H
#define KTQTBASE_TESTS_SUPPORT_ALLOCATIONCOUNTER_H

namespace support {

class AllocationCounter
{
public:
    AllocationCounter() : m_start(total()), m_startBytes(totalBytes()), m_startHeld(totalHeld()) {}

    // Calls of malloc, calloc and realloc since this object was made.
    long count() const { return total() - m_start; }

    // The bytes that those calls asked for, given back or not: never less than what was held at
    // once.
    long bytes() const { return totalBytes() - m_startBytes; }

    // Blocks taken and not given back since this object was made. Blocks of a special alignment are
    // not seen when they are taken: none may be given back meanwhile.
    long held() const { return totalHeld() - m_startHeld; }

private:
    static long total();
    static long totalBytes();
    static long totalHeld();

    long m_start;
    long m_startBytes;
    long m_startHeld;
};

} // namespace support

#endif
