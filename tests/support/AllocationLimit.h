// SPDX-License-Identifier: MIT
//
// Makes malloc, calloc and realloc refuse large blocks while it lives, as a full machine does.
//
//     AllocationLimit limit(10000);
//     EXPECT_EQ(std::malloc(10000), nullptr);
//
// Link AllocationCounter.cpp into the test program. Does not work with AddressSanitizer.
#ifndef KTQTBASE_TESTS_SUPPORT_ALLOCATIONLIMIT_H
#define KTQTBASE_TESTS_SUPPORT_ALLOCATIONLIMIT_H

#include <cstddef>

namespace support {

class AllocationLimit
{
public:
    // Refuses blocks of so many bytes and more.
    explicit AllocationLimit(std::size_t bytes);
    ~AllocationLimit();

    AllocationLimit(const AllocationLimit&) = delete;
    AllocationLimit& operator=(const AllocationLimit&) = delete;
};

} // namespace support

#endif
