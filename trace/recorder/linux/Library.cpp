// SPDX-License-Identifier: MIT
//
// The recorder comes before the library among the loaded files, so that the loader binds the
// program's calls to the trampolines, which stand here under the names of the library's functions.
#include "Recorder.h"
#include "linux/OwnCalls.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

namespace {

// The dynamic section of the library, while that is loaded.
std::atomic<const trace::Entry*> library;

int closeHandle(void* handle)
{
    using Close = int(void*);
    return reinterpret_cast<Close*>(dlsym(RTLD_NEXT, "dlclose"))(handle);
}

// Result: what the loader knows of the file that an address lies in, or null.
link_map* mapOf(const void* address)
{
    Dl_info info;
    void* map = nullptr;
    dladdr1(address, &info, &map, RTLD_DL_LINKMAP);
    return static_cast<link_map*>(map);
}

// A program's own function comes before the library's. A library that was loaded for one module
// alone is not among those that come next, and the error that this leaves is no error of the
// program's.
void* functionIn(const trace::LoadedFile& file, const char* symbol)
{
    void* const next = dlsym(RTLD_NEXT, symbol);
    if (next != nullptr || !file)
        return next;
    dlerror();
    return file.function(symbol);
}

// Whoever loads the library again may get it at another address.
void forgetUnloadedLibrary()
{
    const int error = errno;
    if (library != nullptr && !trace::loadedFile(KTQTBASE_TRACE_LIBRARY)) {
        trace::stopCounting();
        library = nullptr;
    }
    errno = error;
}

template<size_t Size>
void copy(char (&to)[Size], const char* from)
{
    std::strncpy(to, from == nullptr ? "" : from, Size - 1);
}

// The program itself has no name among the loaded files. All is written in place, since the stack
// may be small.
void writeModule(char (&module)[sizeof(trace::Caller::module)], const char* name)
{
    if (name[0] == '/')
        return copy(module, name);
    if (name[0] == '\0')
        return static_cast<void>(readlink("/proc/self/exe", module, sizeof(module) - 1));
    if (getcwd(module, sizeof(module) - std::strlen(name) - 2) == nullptr)
        return copy(module, name);
    const size_t end = std::strlen(module);
    module[end] = '/';
    std::strncpy(module + end + 1, name, sizeof(module) - end - 2);
}

} // namespace

bool trace::findLibrary()
{
    const LoadedFile file = loadedFile(KTQTBASE_TRACE_LIBRARY);
    if (!file)
        return false;
    for (size_t i = 0; i < kFunctions; ++i)
        ktqtTraceFunctions[i] = functionIn(file, kSymbols[i]);
    bindOwnCalls(file);
    library = file.dynamic;
    return true;
}

void* trace::originalFunction(size_t index)
{
    if (ktqtTraceFunctions[index] == nullptr)
        ktqtTraceFunctions[index] = functionIn(LoadedFile(), kSymbols[index]);
    if (ktqtTraceFunctions[index] == nullptr) {
        std::fprintf(stderr, "ktqt-trace: no loaded library has %s\n", kSymbols[index]);
        std::abort();
    }
    return ktqtTraceFunctions[index];
}

bool trace::isInLibrary(void* address)
{
    const link_map* const map = mapOf(address);
    return map != nullptr && map->l_ld == library;
}

void trace::describe(void* returnAddress, Caller& caller)
{
    // A call may be the last thing in its function, and the return address behind that.
    void* const call = static_cast<char*>(returnAddress) - 1;
    const link_map* const map = mapOf(call);
    if (map == nullptr)
        return;
    Dl_info info;
    dladdr(call, &info);
    caller.offset = reinterpret_cast<uint64_t>(returnAddress) - map->l_addr;
    copy(caller.function, info.dli_sname);
    writeModule(caller.module, map->l_name);
}

extern "C" __attribute__((visibility("default"))) int dlclose(void* handle) noexcept
{
    const int result = closeHandle(handle);
    if (result == 0)
        forgetUnloadedLibrary();
    return result;
}
