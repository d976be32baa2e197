// SPDX-License-Identifier: MIT
//
// The allocation functions of the GNU C library, found before its own because they lie in the
// program.
#include "support/AllocationCounter.h"
#include "support/AllocationLimit.h"

#include <atomic>
#include <cstddef>
#include <cstdint>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);
}

namespace {

constexpr std::size_t kNoLimit = SIZE_MAX;

std::atomic<long> allocations{0};
std::atomic<long> allocatedBytes{0};
std::atomic<long> heldBlocks{0};
std::atomic<std::size_t> limit{kNoLimit};

bool allows(std::size_t size)
{
    ++allocations;
    allocatedBytes += static_cast<long>(size);
    return size < limit;
}

void* held(void* block)
{
    heldBlocks += block != nullptr;
    return block;
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) void* malloc(std::size_t size)
{
    return allows(size) ? held(__libc_malloc(size)) : nullptr;
}

__attribute__((visibility("default"))) void* calloc(std::size_t count, std::size_t size)
{
    return allows(count * size) ? held(__libc_calloc(count, size)) : nullptr;
}

__attribute__((visibility("default"))) void* realloc(void* block, std::size_t size)
{
    if (!allows(size))
        return nullptr;
    void* const moved = __libc_realloc(block, size);
    heldBlocks -= block && (moved || size == 0);
    return held(moved);
}

__attribute__((visibility("default"))) void free(void* block)
{
    heldBlocks -= block != nullptr;
    __libc_free(block);
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

long support::AllocationCounter::totalHeld()
{
    return heldBlocks;
}

support::AllocationLimit::AllocationLimit(std::size_t bytes)
{
    limit = bytes;
}

support::AllocationLimit::~AllocationLimit()
{
    limit = kNoLimit;
}
