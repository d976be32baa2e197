// SPDX-License-Identifier: MIT
//
// Sizes of types, as Windows publishes them.
#ifndef KTQTBASE_TESTS_SYSTEM_STUBS_SIZEROW_H
#define KTQTBASE_TESTS_SYSTEM_STUBS_SIZEROW_H

#include <gtest/gtest.h>

#include <cstddef>

struct SizeRow
{
    const char* name;
    std::size_t size;
    std::size_t published;
};

template<std::size_t Count>
void expectPublishedSizes(const SizeRow (&rows)[Count])
{
    for (const SizeRow& row : rows)
        EXPECT_EQ(row.size, row.published) << row.name;
}

#endif
