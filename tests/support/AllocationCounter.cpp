// SPDX-License-Identifier: MIT
//
// The allocation functions of the GNU C library, found before its own because they lie in the
// program.
#include "support/AllocationCounter.h"

#include <atomic>
#include <cstddef>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace {

std::atomic<long> allocations{0};
std::atomic<long> allocatedBytes{0};

void count(std::size_t size)
{
    ++allocations;
    allocatedBytes += static_cast<long>(size);
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) void* malloc(std::size_t size)
{
    count(size);
    return __libc_malloc(size);
}

__attribute__((visibility("default"))) void* calloc(std::size_t items, std::size_t size)
{
    count(items * size);
    return __libc_calloc(items, size);
}

__attribute__((visibility("default"))) void* realloc(void* block, std::size_t size)
{
    count(size);
    return __libc_realloc(block, size);
}
}

long support::AllocationCounter::total()
{
    return allocations;
}

long support::AllocationCounter::totalBytes()
{
    return allocatedBytes;
}
