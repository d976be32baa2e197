// SPDX-License-Identifier: MIT
#include "linux/OwnCalls.h"

#include "Recorder.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include <dlfcn.h>
#include <pthread.h>
#include <sys/mman.h>

namespace {

using trace::LoadedFile;

// Result: the function's place among the sorted symbols, or kFunctions.
size_t indexOf(const char* symbol)
{
    const auto* const end = std::end(trace::kSymbols);
    const auto* const found =
        std::lower_bound(std::begin(trace::kSymbols), end, symbol,
                         [](const char* a, const char* b) { return std::strcmp(a, b) < 0; });
    const bool isFound = found != end && std::strcmp(*found, symbol) == 0;
    return static_cast<size_t>((isFound ? found : end) - std::begin(trace::kSymbols));
}

const void* fileOf(const void* address)
{
    Dl_info info;
    return dladdr(address, &info) == 0 ? nullptr : info.dli_fbase;
}

// A program that is not position-independent may lend a function its address.
bool isOnlyLent(void* address)
{
    Dl_info info;
    void* entry = nullptr;
    dladdr1(address, &info, &entry, RTLD_DL_SYMENT);
    return entry != nullptr && static_cast<trace::Symbol*>(entry)->st_shndx == SHN_UNDEF;
}

// Whether the loader takes the recorder's function for the symbol. One of the program goes first.
bool isBoundHere(const char* symbol)
{
    void* const bound = dlsym(RTLD_DEFAULT, symbol);
    return fileOf(bound) == fileOf(&ktqtTraceCounters) || isOnlyLent(bound);
}

struct Bound
{
    bool here[trace::kFunctions];
};

Bound findBound()
{
    Bound bound = {};
    for (size_t i = 0; i < trace::kFunctions; ++i)
        bound.here[i] = isBoundHere(trace::kSymbols[i]);
    return bound;
}

void bindSlot(const LoadedFile& library, const trace::Relocation& relocation, const Bound& bound)
{
    const auto* const symbols = library.table<trace::Symbol>(DT_SYMTAB);
    const char* const names = library.table<char>(DT_STRTAB);
    const size_t index = indexOf(names + symbols[ELF64_R_SYM(relocation.r_info)].st_name);
    if (index < trace::kFunctions && bound.here[index])
        *reinterpret_cast<std::atomic<void*>*>(library.address + relocation.r_offset) =
            ktqtTraceFunctions[index].load();
}

// Binds what one table of the library asks the loader to fill in.
void bindSlots(const LoadedFile& library, trace::Tag table, trace::Tag size, const Bound& bound)
{
    const auto* relocation = library.table<trace::Relocation>(table);
    if (relocation == nullptr)
        return;
    const auto* const end = relocation + library.entry(size)->d_un.d_val / sizeof(*relocation);
    for (; relocation != end; ++relocation)
        bindSlot(library, *relocation, bound);
}

void allowWriting(const LoadedFile& library, bool isAllowed)
{
    if (library.readOnlySize > 0)
        mprotect(reinterpret_cast<void*>(library.readOnly), library.readOnlySize,
                 isAllowed ? PROT_READ | PROT_WRITE : PROT_READ);
}

// No thread may end the writing while another one writes. Whoever holds this asks nothing of the
// loader, since one that loads a module may wait for it in the module's initialisation.
pthread_mutex_t writing = PTHREAD_MUTEX_INITIALIZER;

} // namespace

void trace::bindOwnCalls(const LoadedFile& library)
{
    const Bound bound = findBound();
    pthread_mutex_lock(&writing);
    allowWriting(library, true);
    bindSlots(library, DT_JMPREL, DT_PLTRELSZ, bound);
    bindSlots(library, DT_RELA, DT_RELASZ, bound);
    allowWriting(library, false);
    pthread_mutex_unlock(&writing);
}
