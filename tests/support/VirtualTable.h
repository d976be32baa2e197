// SPDX-License-Identifier: MIT
//
// Calls a virtual function by its slot, as a host does that was compiled against the table. Where a
// member pointer keeps its slot differs between processors; the table does not.
#ifndef KTQTBASE_TESTS_SUPPORT_VIRTUALTABLE_H
#define KTQTBASE_TESTS_SUPPORT_VIRTUALTABLE_H

#include <cstddef>
#include <cstring>

namespace ktqtbase::test {

// Calls the function in one slot of an object's table.
//   slot         in: the slot, counted from 0
//   arguments    in: what the function takes; Result and Arguments must be exactly its types
template<class Result, class... Arguments, class Object>
Result callSlot(Object& object, std::size_t slot, Arguments... arguments)
{
    using Function = Result (*)(Object*, Arguments...);
    const Function* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(&object), sizeof table);
    return table[slot](&object, arguments...);
}

} // namespace ktqtbase::test

#endif
