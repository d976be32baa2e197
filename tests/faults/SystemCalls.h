// SPDX-License-Identifier: MIT
//
// A library whose functions stand before those of the C library, so that one call of them can fail.
// Test programs link it:
//
//     faults::at({"read", 2, EIO, folder.c_str()});
//
// Other programs get it by LD_PRELOAD, with KTFAULT_CALL, KTFAULT_AT, KTFAULT_ERROR and KTFAULT_BELOW
// in their environment. KTFAULT_MARK then names a file that is made when the call has failed.
//
// The calls are open, read, write, close, fsync, ftruncate, rename and stat, each with the functions
// of other names that do the same. What the C library calls inside itself is not seen.
#ifndef KTQTBASE_TESTS_FAULTS_SYSTEMCALLS_H
#define KTQTBASE_TESTS_FAULTS_SYSTEMCALLS_H

namespace faults {

struct Fault
{
    const char* call;
    int at;                     // which of the calls that meet the condition below, from 1
    int error;                  // what errno becomes; 0 for a call that works
    const char* below;          // a folder: calls for files in other places neither fail nor count
    void (*before)() = nullptr; // called first
};

// Makes this the next call that fails.
__attribute__((visibility("default"))) void at(const Fault& fault);

// No call fails from here on. Result: whether one did.
__attribute__((visibility("default"))) bool done();

} // namespace faults

#endif
