// SPDX-License-Identifier: MIT
//
// The loader leads the program's calls to the trampolines and leaves the recorder's and the
// library's own calls alone, so that nothing is looked up here. Not yet run on a Mac.
#include "Recorder.h"

#include <cstring>

#include <dlfcn.h>

extern "C" void* const ktqtTraceOriginals[trace::kFunctions];

namespace {

const void* fileOf(const void* address)
{
    Dl_info info;
    return dladdr(address, &info) == 0 ? nullptr : info.dli_fbase;
}

template<size_t Size>
void copy(char (&to)[Size], const char* from)
{
    std::strncpy(to, from == nullptr ? "" : from, Size - 1);
}

} // namespace

bool trace::findLibrary()
{
    for (size_t i = 0; i < kFunctions; ++i)
        ktqtTraceFunctions[i] = ktqtTraceOriginals[i];
    return true;
}

void* trace::originalFunction(size_t index)
{
    return ktqtTraceOriginals[index];
}

bool trace::isInLibrary(void* address)
{
    return fileOf(address) == fileOf(ktqtTraceOriginals[0]);
}

void trace::describe(void* returnAddress, Caller& caller)
{
    Dl_info info;
    if (dladdr(static_cast<char*>(returnAddress) - 1, &info) == 0)
        return;
    caller.offset = static_cast<uint64_t>(static_cast<char*>(returnAddress) -
                                          static_cast<char*>(info.dli_fbase));
    copy(caller.function, info.dli_sname);
    copy(caller.module, info.dli_fname);
}
