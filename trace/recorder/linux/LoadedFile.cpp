// SPDX-License-Identifier: MIT
#include "linux/LoadedFile.h"

#include <cstring>

#include <unistd.h>

namespace {

struct Search
{
    const char* name;
    trace::LoadedFile found;
};

void setReadOnly(trace::LoadedFile& file, const trace::Header& header)
{
    const auto page = static_cast<uintptr_t>(sysconf(_SC_PAGESIZE));
    const uintptr_t begin = file.address + header.p_vaddr;
    file.readOnly = begin / page * page;
    file.readOnlySize = (begin + header.p_memsz) / page * page - file.readOnly;
}

trace::LoadedFile fileOf(const dl_phdr_info& info)
{
    trace::LoadedFile file;
    file.address = info.dlpi_addr;
    for (const trace::Header* header = info.dlpi_phdr; header != info.dlpi_phdr + info.dlpi_phnum;
         ++header) {
        if (header->p_type == PT_DYNAMIC)
            file.dynamic = reinterpret_cast<const trace::Entry*>(file.address + header->p_vaddr);
        else if (header->p_type == PT_GNU_RELRO)
            setReadOnly(file, *header);
    }
    return file;
}

bool isNamed(const trace::LoadedFile& file, const char* name)
{
    const trace::Entry* const own = file ? file.entry(DT_SONAME) : nullptr;
    return own != nullptr && std::strcmp(file.table<char>(DT_STRTAB) + own->d_un.d_val, name) == 0;
}

int visit(dl_phdr_info* info, size_t, void* data)
{
    auto& search = *static_cast<Search*>(data);
    const trace::LoadedFile file = fileOf(*info);
    if (!isNamed(file, search.name))
        return 0;
    search.found = file;
    return 1;
}

// The table by which the loader finds a symbol: the index of the first one among those whose hashes
// leave the same rest; the others follow, and the hash of the last one is odd.
struct HashTable
{
    uint32_t buckets;
    uint32_t firstSymbol;
    uint32_t filterWords;
    uint32_t filterShift;

    const uint32_t* bucket() const
    {
        const auto* const filter = reinterpret_cast<const ElfW(Addr)*>(this + 1);
        return reinterpret_cast<const uint32_t*>(filter + filterWords);
    }
    bool isLast(uint32_t symbol) const
    {
        return (bucket()[buckets + symbol - firstSymbol] & 1) != 0;
    }
};

uint32_t hash(const char* text)
{
    uint32_t value = 5381;
    for (; *text != '\0'; ++text)
        value = value * 33 + static_cast<unsigned char>(*text);
    return value;
}

// Result: the symbol's index, or 0.
uint32_t indexOf(const trace::LoadedFile& file, const char* symbol)
{
    const auto* const table = file.table<HashTable>(DT_GNU_HASH);
    const auto* const symbols = file.table<trace::Symbol>(DT_SYMTAB);
    const auto* const names = file.table<char>(DT_STRTAB);
    uint32_t index = table == nullptr ? 0 : table->bucket()[hash(symbol) % table->buckets];
    while (index != 0 && std::strcmp(names + symbols[index].st_name, symbol) != 0)
        index = table->isLast(index) ? 0 : index + 1;
    return index;
}

} // namespace

void* trace::LoadedFile::function(const char* symbol) const
{
    const uint32_t index = indexOf(*this, symbol);
    return index == 0 ? nullptr
                      : reinterpret_cast<void*>(address + table<Symbol>(DT_SYMTAB)[index].st_value);
}

const trace::Entry* trace::LoadedFile::entry(Tag tag) const
{
    for (const trace::Entry* next = dynamic; next->d_tag != DT_NULL; ++next)
        if (next->d_tag == tag)
            return next;
    return nullptr;
}

trace::LoadedFile trace::loadedFile(const char* name)
{
    Search search = {name, {}};
    dl_iterate_phdr(visit, &search);
    return search.found;
}
