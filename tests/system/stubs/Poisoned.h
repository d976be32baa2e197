// SPDX-License-Identifier: MIT
#ifndef KTQTBASE_TESTS_SYSTEM_STUBS_POISONED_H
#define KTQTBASE_TESTS_SYSTEM_STUBS_POISONED_H

#include <algorithm>
#include <cstring>

// An output argument whose every byte, padding too, holds a pattern, so that any write shows.
template<class T>
class Poisoned
{
public:
    Poisoned() { std::memset(&m_value, kPattern, sizeof(m_value)); }

    T* get() { return &m_value; }

    bool isUntouched() const
    {
        unsigned char bytes[sizeof(T)];
        std::memcpy(bytes, &m_value, sizeof(T));
        return std::all_of(bytes, bytes + sizeof(T), [](unsigned char b) { return b == kPattern; });
    }

private:
    static constexpr unsigned char kPattern = 0xA5;

    T m_value;
};

#endif
