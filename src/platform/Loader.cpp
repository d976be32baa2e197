// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include <dlfcn.h>

namespace {

// Null, 1 (the main program) and -1 (no handle) name no module. The macOS loader refuses them
// itself; the one of the GNU C library takes null for the global scope and reads what any other
// value points at.
bool isModule(void* handle)
{
    const auto value = reinterpret_cast<std::intptr_t>(handle);
    return value != 0 && value != 1 && value != -1;
}

} // namespace

namespace ktqtbase::platform {

void* openModule(const char* fileName)
{
    return dlopen(fileName, RTLD_LAZY);
}

void* findSymbol(void* module, const char* name)
{
    return isModule(module) ? dlsym(module, name) : nullptr;
}

int closeModule(void* module)
{
    return isModule(module) ? dlclose(module) : -1;
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
