// SPDX-License-Identifier: MIT
//
// A file that the loader has loaded, read from the loader's own list and the file's own tables. To
// ask dlopen for it would run the initialisation of all that is loaded, too early and without the
// program's environment.
#ifndef KTQTBASE_TRACE_LOADEDFILE_H
#define KTQTBASE_TRACE_LOADEDFILE_H

#include <cstddef>
#include <cstdint>

#include <link.h>

namespace trace {

using Header = ElfW(Phdr);
using Entry = ElfW(Dyn);
using Symbol = ElfW(Sym);
using Relocation = ElfW(Rela);
using Tag = ElfW(Sxword);

struct LoadedFile
{
    uintptr_t address = 0;
    const Entry* dynamic = nullptr;

    // The whole pages that the loader made read-only after it had filled them in.
    uintptr_t readOnly = 0;
    size_t readOnlySize = 0;

    explicit operator bool() const { return dynamic != nullptr; }

    // The first entry of its dynamic section that has the tag, or null.
    const Entry* entry(Tag tag) const;

    // What such an entry points to. The loader leaves some files with the addresses that they were
    // linked for.
    template<class T>
    const T* table(Tag tag) const
    {
        const Entry* const found = entry(tag);
        if (found == nullptr)
            return nullptr;
        const uintptr_t place = found->d_un.d_ptr;
        return reinterpret_cast<const T*>(place < address ? place + address : place);
    }

    // A function that the file exports, or null.
    void* function(const char* symbol) const;
};

// Finds a file by the name that it carries itself.
LoadedFile loadedFile(const char* name);

} // namespace trace

#endif
