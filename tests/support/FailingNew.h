// SPDX-License-Identifier: MIT
//
// Replaces the global operator new of the program that includes it, once, so that an allocation can
// be made to fail.
#ifndef KTQTBASE_TESTS_SUPPORT_FAILINGNEW_H
#define KTQTBASE_TESTS_SUPPORT_FAILINGNEW_H

#include <cstdlib>
#include <new>

namespace failingnew {

// How many allocations are left until one fails; 0 for none that fails.
inline int g_countdown = 0;

inline void* allocate(std::size_t size)
{
    if (g_countdown > 0 && --g_countdown == 0)
        throw std::bad_alloc();
    if (void* memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}

// Runs an operation whose n-th allocation fails. Result: whether it had so many.
template<class Operation>
bool failsAt(int n, Operation operation)
{
    g_countdown = n;
    try {
        operation();
        g_countdown = 0;
        return false;
    } catch (const std::bad_alloc&) {
        g_countdown = 0;
        return true;
    }
}

} // namespace failingnew

void* operator new(std::size_t size)
{
    return failingnew::allocate(size);
}

void* operator new[](std::size_t size)
{
    return failingnew::allocate(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

#endif
