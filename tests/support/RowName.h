// SPDX-License-Identifier: MIT
//
// Names the tests of a table after its rows.
#ifndef KTQTBASE_TESTS_SUPPORT_ROWNAME_H
#define KTQTBASE_TESTS_SUPPORT_ROWNAME_H

#include <gtest/gtest.h>

#include <string>

namespace ktqtbase::test {

// For INSTANTIATE_TEST_SUITE_P over rows with a member "name".
struct RowName
{
    template<class Row>
    std::string operator()(const testing::TestParamInfo<Row>& row) const
    {
        return row.param.name;
    }
};

} // namespace ktqtbase::test

#endif
