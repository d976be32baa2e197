// SPDX-License-Identifier: MIT
//
// A file without a folder, which takes a fraction of the time of one on a disk.
#ifndef KTQTBASE_FUZZ_SUPPORT_MEMORYFILE_H
#define KTQTBASE_FUZZ_SUPPORT_MEMORYFILE_H

#include <cstdlib>
#include <string>
#include <string_view>

#include <sys/mman.h>
#include <unistd.h>

namespace ktqtbase::fuzz {

class MemoryFile
{
public:
    MemoryFile() : m_file(memfd_create("fuzz", MFD_CLOEXEC))
    {
        if (m_file < 0)
            std::abort();
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(m_file); }

    // A name under which this process can open it.
    std::string name() const { return "/proc/self/fd/" + std::to_string(m_file); }

    void setContent(std::string_view content) const
    {
        const auto size = static_cast<ssize_t>(content.size());
        if (ftruncate(m_file, 0) != 0 || pwrite(m_file, content.data(), content.size(), 0) != size)
            std::abort();
    }

private:
    int m_file;
};

} // namespace ktqtbase::fuzz

#endif
