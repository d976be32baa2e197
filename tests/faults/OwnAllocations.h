// SPDX-License-Identifier: MIT
//
// Lets an allocation fail that the library makes itself, by the standard library or by new. What Qt
// asks for in between is left alone, since Qt does not promise to survive a refusal.
//
//     int n = 1;
//     while (support::failsAt(n, [&] { call(); }))
//         ++n;
//
// Link OwnAllocations.cpp into the test program: it replaces the global operator new and delete.
#ifndef KTQTBASE_TESTS_FAULTS_OWNALLOCATIONS_H
#define KTQTBASE_TESTS_FAULTS_OWNALLOCATIONS_H

#include <new>

namespace support {

// From here on the n-th allocation of the library fails; 0 for none.
void refuseOwnAllocation(int n);

// Whether one was refused since then.
bool wasRefused();

// Blocks that operator new gave to anybody and that were not given back.
long liveBlocks();

// Runs a call whose n-th allocation of the library's own fails. The exception may pass or be met
// inside. Result: whether there were so many.
template<class Call>
bool failsAt(int n, Call call)
{
    refuseOwnAllocation(n);
    try {
        call();
    } catch (const std::bad_alloc&) {
    }
    refuseOwnAllocation(0);
    return wasRefused();
}

} // namespace support

#endif
