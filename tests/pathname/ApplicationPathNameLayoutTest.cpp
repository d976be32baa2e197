// SPDX-License-Identifier: MIT
//
// The binary interface of the application's path name, by the C++ ABI of x86-64. Hosts are compiled
// against it.
#include <KtQtBase/PathName.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace {

static_assert(sizeof(CRnUiPathname) == sizeof(CRbUiPathname));
static_assert(!std::has_virtual_destructor_v<CRnUiPathname>);

// A pointer to a virtual member function holds 1 plus the offset of its slot.
template<class Function>
std::ptrdiff_t slotOf(Function function)
{
    std::ptrdiff_t word = 0;
    std::memcpy(&word, &function, sizeof(word));
    return (word - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

using Application = CRnUiPathname;
using AssignBase = void (Application::*)(const CRbUiPathname&);
using AssignApplication = void (Application::*)(const CRnUiPathname&);

class ExtendedName : public CRnUiPathname
{
public:
    virtual void next() {}
};

TEST(ApplicationPathSlots, FollowTheDeclaredOrder)
{
    EXPECT_EQ(slotOf(&Application::Parse), 0);
    EXPECT_EQ(slotOf(static_cast<AssignBase>(&Application::AssignCopy)), 1);
    EXPECT_EQ(slotOf(static_cast<AssignApplication>(&Application::AssignCopy)), 2);
}

TEST(ApplicationPathSlots, EndAfterTheLastFunction)
{
    EXPECT_EQ(slotOf(&ExtendedName::next), 3);
}

} // namespace
