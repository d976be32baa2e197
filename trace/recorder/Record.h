// SPDX-License-Identifier: MIT
//
// What the recorder writes while a program runs and ktqt-trace reads afterwards: a file that both
// map, so that nothing is lost however the program ends. All of it is zero at first.
#ifndef KTQTBASE_TRACE_RECORD_H
#define KTQTBASE_TRACE_RECORD_H

#include "Offsets.h"

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace trace {

// The functions that are counted, in the order of their symbols.
constexpr size_t kFunctions = 0
#define TRACED(index, symbol, name, status, result) +1
#include "TracedFunctions.inc"
#undef TRACED
    ;

// The environment variable that holds the file's name.
constexpr const char* kFileVariable = "KTQT_TRACE_FILE";

// The trampolines write both numbers at these offsets.
struct Counter
{
    std::atomic<uint64_t> calls;
    std::atomic<uint64_t> caller; // the first return address; 0 before the first call
};
static_assert(sizeof(Counter) == COUNTER_SIZE && offsetof(Counter, caller) == COUNTER_CALLER);

// Where the first call came from, in terms that hold after the process is gone.
struct Caller
{
    uint64_t offset;     // of the return address in the file, as the file's own tables count
    char module[4096];   // the file
    char function[1024]; // the exported symbol before the address, if there is one
};

struct Record
{
    std::atomic<uint64_t> processes; // that loaded the recorder
    std::atomic<uint64_t> libraries; // times that a process was found to have the library
    Counter counters[kFunctions];
    Caller callers[kFunctions];
};

} // namespace trace

#endif
