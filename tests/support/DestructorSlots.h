// SPDX-License-Identifier: MIT
//
// The two forms of a virtual destructor, called by their slots.
#ifndef KTQTBASE_TESTS_SUPPORT_DESTRUCTORSLOTS_H
#define KTQTBASE_TESTS_SUPPORT_DESTRUCTORSLOTS_H

#include "support/VirtualTable.h"

#include <gtest/gtest.h>

namespace ktqtbase::test {

// Notes what its destructor does. The memory that it is made in is nobody's to free.
template<class Base>
class DyingObject : public Base
{
public:
    static inline int destroyed = 0;
    static inline int deleted = 0;

    using Base::Base;
    ~DyingObject() override { ++destroyed; }

    static void* operator new(std::size_t, void* memory) { return memory; }
    static void operator delete(void*) { ++deleted; }
    static void operator delete(void*, void*) {}
};

// Expects that the first slot destroys an object and the second one deletes it, too.
//   arguments    in: what the class is constructed with
template<class Base, class... Arguments>
void expectDestructorInTheFirstSlots(const Arguments&... arguments)
{
    using Dying = DyingObject<Base>;
    Dying::destroyed = 0;
    Dying::deleted = 0;
    alignas(Dying) unsigned char memory[sizeof(Dying)];
    callSlot<void>(*new (memory) Dying(arguments...), 0);
    EXPECT_EQ(Dying::destroyed, 1);
    EXPECT_EQ(Dying::deleted, 0);
    callSlot<void>(*new (memory) Dying(arguments...), 1);
    EXPECT_EQ(Dying::destroyed, 2);
    EXPECT_EQ(Dying::deleted, 1);
}

} // namespace ktqtbase::test

#endif
