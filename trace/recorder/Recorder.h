// SPDX-License-Identifier: MIT
//
// The parts of the recorder. It runs inside any program, so it uses the C library only, allocates
// nothing, and leaves errno as it was.
#ifndef KTQTBASE_TRACE_RECORDER_H
#define KTQTBASE_TRACE_RECORDER_H

#include "Record.h"

// By these the trampolines find what they count and where they jump.
extern "C" {
extern std::atomic<trace::Counter*> ktqtTraceCounters;
extern std::atomic<void*> ktqtTraceFunctions[trace::kFunctions];

// Counts a call that a trampoline cannot count by itself. Result: the function to jump to.
void* ktqtTraceFirstCall(uint32_t index, void* returnAddress);
}

namespace trace {

// ---- The file: RecordFile.cpp ------------------------------------------------------------------

// Maps the file that ktqt-trace made, once; the environment is given where the C library does not
// know it yet. Result: the record, or one that nobody reads.
Record& record(char** environment = nullptr);

// ---- The library: linux/Library.cpp and macos/Library.cpp --------------------------------------

// Finds the library if it is loaded by now, and has its functions ready for the trampolines.
// Result: whether it is there.
bool findLibrary();

// The function that the program would call without the recorder.
void* originalFunction(size_t index);

// Whether the address lies in the library.
bool isInLibrary(void* address);

// Writes where a return address lies.
void describe(void* returnAddress, Caller& caller);

// ---- The counting: Recorder.cpp ----------------------------------------------------------------

// The mangled names, sorted.
extern const char* const kSymbols[kFunctions];

// Before the library goes: the next call asks for it again.
void stopCounting();

} // namespace trace

#endif
