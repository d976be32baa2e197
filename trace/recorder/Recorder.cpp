// SPDX-License-Identifier: MIT
#include "Recorder.h"

#include <cerrno>

namespace {

// The trampolines find no first caller here, and so they ask.
trace::Counter unknown[trace::kFunctions];

void count(size_t index, void* returnAddress)
{
    trace::Record& record = trace::record();
    trace::Counter& counter = record.counters[index];
    uint64_t first = 0;
    if (counter.caller.compare_exchange_strong(first, reinterpret_cast<uint64_t>(returnAddress)))
        trace::describe(returnAddress, record.callers[index]);
    ++counter.calls;
}

// From here on the trampolines count by themselves.
void startCounting()
{
    if (ktqtTraceCounters == unknown && trace::findLibrary()) {
        ++trace::record().libraries;
        ktqtTraceCounters = trace::record().counters;
    }
}

// This runs before every other initialisation, the C library's too.
__attribute__((constructor)) void start(int, char**, char** environment)
{
    trace::record(environment);
    startCounting();
}

} // namespace

std::atomic<trace::Counter*> ktqtTraceCounters = unknown;
std::atomic<void*> ktqtTraceFunctions[trace::kFunctions];

const char* const trace::kSymbols[] = {
#define TRACED(index, symbol, name, status, result) #symbol,
#include "TracedFunctions.inc"
#undef TRACED
};

void trace::stopCounting()
{
    ktqtTraceCounters = unknown;
    for (std::atomic<void*>& function : ktqtTraceFunctions)
        function = nullptr;
}

void* ktqtTraceFirstCall(uint32_t index, void* returnAddress)
{
    const int error = errno;
    startCounting();
    void* const function = trace::originalFunction(index);
    if (trace::isInLibrary(function) && !trace::isInLibrary(returnAddress))
        count(index, returnAddress);
    errno = error;
    return function;
}
