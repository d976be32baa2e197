// SPDX-License-Identifier: MIT
//
// Loads a module that brings the library with it, has it call CloseHandle, unloads both, and all of
// it once more where the library lies elsewhere. Result: 0 if the library was gone in between.
#include "hosts/module.h"

#include <cstdio>

#include <dlfcn.h>
#include <sys/mman.h>

namespace {

bool callAndUnload(const char* module)
{
    void* const handle = dlopen(module, RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr)
        return false;
    reinterpret_cast<CallClose*>(dlsym(handle, kCallClose))(nullptr);
    return dlclose(handle) == 0;
}

bool isLoaded(const char* library)
{
    return dlopen(library, RTLD_LAZY | RTLD_NOLOAD) != nullptr;
}

// The loader takes the highest room that is free.
bool takeTheRoom()
{
    return mmap(nullptr, 1 << 20, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) != MAP_FAILED;
}

} // namespace

int main(int, char** argv)
{
    const char* const module = argv[1];
    const char* const library = argv[2];
    if (callAndUnload(module) && !isLoaded(library) && takeTheRoom() && callAndUnload(module))
        return 0;
    std::fprintf(stderr, "%s\n", dlerror());
    return 1;
}
