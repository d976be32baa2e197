// SPDX-License-Identifier: MIT
//
// Runs an operation on a path name again and again, with one allocation after the other failing.
#ifndef KTQTBASE_TESTS_PATHNAME_ALLOCATIONSWEEP_H
#define KTQTBASE_TESTS_PATHNAME_ALLOCATIONSWEEP_H

#include "pathname/HandMadePath.h"
#include "support/FailingNew.h"

#include <string>
#include <vector>

enum class After
{
    BothStay,       // neither object is changed
    OtherIsEmpty,   // the result object is unparsed
    EmptyInTime,    // the object stays until it is reset, and is unparsed from then on
    EmptyOrChanged, // the object is unparsed, or parsed as something else
};

struct Operation
{
    const char* name;
    After after;
    bool allocates;
    void (*run)(CRnUiPathname& name, CRnUiPathname& other);
};

// Names of every category that is parsed; the last ones are too long for the buffers that a
// conversion for the file system keeps on the stack.
inline std::vector<std::wstring> sampleNames()
{
    const std::wstring length(200, L'n');
    return {
        L"/no/such/folder with a long name/a file with a long name.extension",
        L"c:/no/such/folder with a long name/a file with a long name.extension",
        L"c:a file with a long name",
        L"no such folder with a long name/ a file with a long name .extension",
        L"a file with a long name.extension",
        L"a file with a long name",
        L"/no/such/folder with a long name/*.extension",
        L"/no/such/" + length + L"/" + length + L".extension/",
        L"no such/" + length + L".extension",
    };
}

inline void parseSample(CRbUiPathname& name, const std::wstring& text)
{
    ASSERT_EQ(name.ParseRelative(text.c_str(), &g_CurrentDirPrefix, false), 0);
    // No room to spare, so that whatever grows has to allocate.
    name.m_pWork->shrink_to_fit();
}

inline bool isEmpty(const CRbUiPathname& name)
{
    return name.m_type == PT_NONE && !name.m_pVolume && !name.m_pWork && !name.m_pRelPath;
}

inline void expectUsable(CRbUiPathname& name)
{
    EXPECT_EQ(name.ParseRelative(L"/no/such/name.x", nullptr, false), 0);
    EXPECT_EQ(name.Append(L"yz"), 0);
    EXPECT_EQ(workOf(name), L"/no/such/name.xyz");
}

// Sweeps one operation over one name. Result: how many of its allocations failed.
inline int sweep(const Operation& operation, const std::wstring& sample)
{
    bool wasReset = false;
    for (int n = 1;; ++n) {
        CRnUiPathname name;
        CRnUiPathname other;
        parseSample(name, sample);
        parseSample(other, L"/an/other/name that no string keeps inside itself.txt");
        const auto before = fieldsOf(name);
        const auto otherBefore = fieldsOf(other);
        if (!failingnew::failsAt(n, [&] { operation.run(name, other); }))
            return n - 1;
        SCOPED_TRACE(testing::Message() << "allocation " << n);
        const bool stays = fieldsOf(name) == before;
        wasReset = wasReset || isEmpty(name);
        switch (operation.after) {
        case After::BothStay:
            EXPECT_TRUE(stays);
            EXPECT_EQ(fieldsOf(other), otherBefore);
            break;
        case After::OtherIsEmpty:
            EXPECT_TRUE(stays);
            EXPECT_TRUE(isEmpty(other));
            break;
        case After::EmptyInTime:
            EXPECT_TRUE(wasReset ? isEmpty(name) : stays);
            break;
        case After::EmptyOrChanged:
            EXPECT_TRUE(isEmpty(name) || (name.m_pWork && name.m_type != PT_NONE));
            break;
        }
        expectUsable(name);
        expectUsable(other);
    }
}

#endif
