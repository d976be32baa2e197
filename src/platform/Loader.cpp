// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include <dlfcn.h>

namespace {

// Null and 1 (the main program) name no module. The macOS loader refuses them itself; that of the
// GNU C library takes null for the global scope and reads from address 1.
bool isModule(void* handle)
{
    return handle && handle != reinterpret_cast<void*>(1);
}

// Nor does -1 (no handle). Both loaders look symbols up in it, but only that of macOS refuses to
// close it.
bool canBeClosed(void* handle)
{
    return isModule(handle) && handle != reinterpret_cast<void*>(-1);
}

} // namespace

namespace ktqtbase::platform {

void* openModule(const char* fileName)
{
    return dlopen(fileName, RTLD_LAZY);
}

void* findSymbol(void* module, const char* name)
{
    if (!isModule(module))
        return nullptr;
    // For the handle -1 the loader looks behind the library that its return address lies in. A tail
    // call would have it return to the host, so the result is stored first.
    void* volatile symbol = dlsym(module, name);
    return symbol;
}

int closeModule(void* module)
{
    return canBeClosed(module) ? dlclose(module) : -1;
}

int moduleFileName(const void* address, const char** fileName)
{
    Dl_info info;
    const int found = dladdr(address, &info);
    if (found)
        *fileName = info.dli_fname;
    return found;
}

} // namespace ktqtbase::platform
