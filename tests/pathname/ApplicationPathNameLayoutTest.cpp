// SPDX-License-Identifier: MIT
//
// The binary interface of the application's path name. Hosts are compiled against it.
#include <KtQtBase/PathName.h>

#include "support/VirtualTable.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace {

using ktqtbase::test::callSlot;

static_assert(sizeof(CRnUiPathname) == sizeof(CRbUiPathname));
static_assert(!std::has_virtual_destructor_v<CRnUiPathname>);

// Tells which of its functions was called. It has one more than its base class.
class RecordingName : public CRnUiPathname
{
public:
    std::string called;

    int Parse(const wchar_t*, bool) override
    {
        called = "Parse";
        return 0;
    }
    void AssignCopy(const CRbUiPathname&) override { called = "AssignCopy of a base"; }
    void AssignCopy(const CRnUiPathname&) override { called = "AssignCopy of this class"; }
    virtual void next() { called = "next"; }
};

// No other function is virtual, since the one that the derived class adds comes fourth.
TEST(ApplicationPathSlots, FollowTheDeclaredOrder)
{
    RecordingName name;
    const CRbUiPathname base;
    const CRnUiPathname application;
    callSlot<int, const wchar_t*, bool>(name, 0, L"a", true);
    EXPECT_EQ(name.called, "Parse");
    callSlot<void, const CRbUiPathname&>(name, 1, base);
    EXPECT_EQ(name.called, "AssignCopy of a base");
    callSlot<void, const CRnUiPathname&>(name, 2, application);
    EXPECT_EQ(name.called, "AssignCopy of this class");
    callSlot<void>(name, 3);
    EXPECT_EQ(name.called, "next");
}

} // namespace
