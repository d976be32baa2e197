// SPDX-License-Identifier: MIT
#include "support/AllocationCounter.h"

#include <atomic>
#include <cstddef>

// Declared here because g++ does not always come with the sanitizers' headers.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*,
                                                                          std::size_t),
                                                         void (*onFree)(const volatile void*));

namespace {

std::atomic<long> allocations{0};
std::atomic<long> allocatedBytes{0};
std::atomic<long> heldBlocks{0};

void count(const volatile void*, std::size_t size)
{
    ++allocations;
    allocatedBytes += static_cast<long>(size);
    ++heldBlocks;
}

void giveBack(const volatile void*)
{
    --heldBlocks;
}

const int kInstalled = __sanitizer_install_malloc_and_free_hooks(count, giveBack);

} // namespace

long support::AllocationCounter::total()
{
    return kInstalled > 0 ? allocations.load() : -1;
}

long support::AllocationCounter::totalBytes()
{
    return kInstalled > 0 ? allocatedBytes.load() : -1;
}

long support::AllocationCounter::totalHeld()
{
    return kInstalled > 0 ? heldBlocks.load() : -1;
}
