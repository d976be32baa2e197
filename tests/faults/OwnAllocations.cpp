// SPDX-License-Identifier: MIT
#include "faults/OwnAllocations.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include <dlfcn.h>
#include <execinfo.h>

namespace {

std::atomic<long> live{0};
int countdown = 0;
bool refused = false;

const char* moduleOf(void* address)
{
    Dl_info info;
    return dladdr(address, &info) && info.dli_fname ? info.dli_fname : "";
}

bool holds(const char* module, const char* part)
{
    return std::strstr(module, part);
}

// Frames that may stand between an allocation and the one who wants it: those of the C++ library and
// the sanitizer, and those of this program, which has copies of templates.
bool isOnTheWay(const char* module)
{
    static const char* const program = moduleOf(reinterpret_cast<void*>(&moduleOf));
    for (const char* part :
         {"/libstdc++.", "/libc++", "/libc.", "/libgcc", "/libasan", "/libubsan"}) {
        if (holds(module, part))
            return true;
    }
    return std::strcmp(module, program) == 0;
}

bool isOwn()
{
    void* frames[64];
    const int count = backtrace(frames, 64);
    for (int i = 0; i < count; ++i) {
        const char* const module = moduleOf(frames[i]);
        if (!isOnTheWay(module))
            return holds(module, "/libKtQtBase");
    }
    return false;
}

bool isToFail()
{
    if (countdown == 0 || !isOwn() || --countdown > 0)
        return false;
    refused = true;
    return true;
}

void* allocate(std::size_t size)
{
    void* const block = isToFail() ? nullptr : std::malloc(size ? size : 1);
    live += block != nullptr;
    return block;
}

void* allocateOrThrow(std::size_t size)
{
    if (void* const block = allocate(size))
        return block;
    throw std::bad_alloc();
}

void release(void* block)
{
    live -= block != nullptr;
    std::free(block);
}

} // namespace

void support::refuseOwnAllocation(int n)
{
    // Its first call loads a library.
    void* frame = nullptr;
    backtrace(&frame, 1);
    refused = refused && n == 0;
    countdown = n;
}

bool support::wasRefused()
{
    return refused;
}

long support::liveBlocks()
{
    return live;
}

void* operator new(std::size_t size)
{
    return allocateOrThrow(size);
}

void* operator new[](std::size_t size)
{
    return allocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void operator delete(void* block) noexcept
{
    release(block);
}

void operator delete[](void* block) noexcept
{
    release(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    release(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    release(block);
}
