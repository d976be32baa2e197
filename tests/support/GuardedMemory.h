// SPDX-License-Identifier: MIT
//
// Memory for an argument, beside pages that nobody may touch: a byte too many ends the test, and a
// byte too many on the other side shows in the poison there.
#ifndef KTQTBASE_TESTS_SUPPORT_GUARDEDMEMORY_H
#define KTQTBASE_TESTS_SUPPORT_GUARDEDMEMORY_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

#include <sys/mman.h>
#include <unistd.h>

namespace ktqtbase::test {

// Which side of the memory the forbidden page touches; the other side has poison before its own.
enum class Guard
{
    Front,
    Behind
};

class GuardedMemory
{
public:
    static constexpr unsigned char kPoison = 0xA5;

    GuardedMemory(std::size_t size, Guard guard) : m_page(pageSize()), m_room(roomFor(size, m_page))
    {
        void* const all = mmap(nullptr, m_room + 2 * m_page, PROT_NONE,
                               MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (all == MAP_FAILED)
            throw std::bad_alloc();
        m_first = static_cast<unsigned char*>(all) + m_page;
        mprotect(m_first, m_room, PROT_READ | PROT_WRITE);
        std::memset(m_first, kPoison, m_room);
        m_data = guard == Guard::Front ? m_first : m_first + m_room - size;
    }
    GuardedMemory(const GuardedMemory&) = delete;
    GuardedMemory& operator=(const GuardedMemory&) = delete;
    ~GuardedMemory() { munmap(m_first - m_page, m_room + 2 * m_page); }

    void* data() const { return m_data; }

    // Where nobody may read or write.
    void* forbidden() const { return m_first + m_room; }

    // Whether all but the first bytes of the memory are as they were.
    bool isUntouchedBut(std::size_t written) const
    {
        return isPoison(m_first, m_data) && isPoison(m_data + written, m_first + m_room);
    }

private:
    static std::size_t pageSize() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

    // Whole pages, with some poison beside the memory in any case.
    static std::size_t roomFor(std::size_t size, std::size_t page)
    {
        return (size + page) / page * page + page;
    }

    static bool isPoison(const unsigned char* first, const unsigned char* last)
    {
        return std::all_of(first, last, [](unsigned char byte) { return byte == kPoison; });
    }

    std::size_t m_page;
    std::size_t m_room;
    unsigned char* m_first;
    unsigned char* m_data;
};

} // namespace ktqtbase::test

#endif
