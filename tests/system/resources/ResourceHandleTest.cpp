// SPDX-License-Identifier: MIT
#include "support/RowName.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/Messages.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/windows/Modules.h>

#include <cwchar>
#include <string>

#include <gtest/gtest.h>

namespace {

using ktqtbase::test::RowName;
using ktqtbase::test::wide;

const HINSTANCE handleAtLoad = m_hCurrentResourceHandle;

// A loaded module of this folder, made the resource module for one test.
class LoadedModule
{
public:
    explicit LoadedModule(const std::wstring& name)
        : m_handle(LoadLibrary((wide(RESOURCE_MODULES) + name).c_str()))
    {
        AfxSetResourceHandle(m_handle);
    }

    ~LoadedModule()
    {
        AfxSetResourceHandle(nullptr);
        FreeLibrary(m_handle);
    }

    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    HINSTANCE handle() const { return m_handle; }

private:
    HINSTANCE m_handle;
};

TEST(AfxGetResourceHandle, IsNullUntilItIsSet)
{
    EXPECT_EQ(handleAtLoad, nullptr);
}

TEST(AfxGetResourceHandle, GivesWhatTheHostStoredUnchecked)
{
    auto* const handle = reinterpret_cast<HINSTANCE>(0x1234);
    AfxSetResourceHandle(handle);
    EXPECT_EQ(AfxGetResourceHandle(), handle);
    EXPECT_EQ(m_hCurrentResourceHandle, handle);
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
}

TEST(AfxGetResourceHandle, ReadsTheGlobalThatHostsWriteThemselves)
{
    m_hCurrentResourceHandle = reinterpret_cast<HINSTANCE>(0x5678);
    EXPECT_EQ(AfxGetResourceHandle(), reinterpret_cast<HINSTANCE>(0x5678));
    m_hCurrentResourceHandle = nullptr;
}

struct TextRow
{
    const char* name;
    unsigned int id;
    bool found;
    std::wstring text;
};

class LoadStringOfAString : public testing::TestWithParam<TextRow>
{};

TEST_P(LoadStringOfAString, HoldsTheTextAndNulsUpTo1024)
{
    const LoadedModule module(L"texts.dll");
    ASSERT_NE(module.handle(), nullptr);
    CStdStr<wchar_t> string;
    EXPECT_EQ(string.LoadString(GetParam().id), GetParam().found);
    std::wstring expected = GetParam().text;
    expected.resize(1024, L'\0');
    EXPECT_EQ(string, expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, LoadStringOfAString,
                         testing::Values(TextRow{"Ready", 101, true, L"Ready"},
                                         TextRow{"Empty", 102, false, L""},
                                         TextRow{"LongIsCut", 103, true, std::wstring(1023, L'x')},
                                         TextRow{"Fits", 104, true, std::wstring(1023, L'y')},
                                         TextRow{"Foreign", 105, true, L"\u00e4\u4e2d\U0001F600"},
                                         TextRow{"Unknown", 999, false, L""}),
                         RowName());

TEST(LoadString, FillsUpAShortStringAndKeepsItsTextWhereTheModuleHasNone)
{
    const LoadedModule module(L"texts.dll");
    CStdStr<wchar_t> string = L"former";
    EXPECT_FALSE(string.LoadString(999));
    EXPECT_EQ(string.size(), 1024u);
    EXPECT_STREQ(string.c_str(), L"former");
}

TEST(LoadString, KeepsTheLengthOfALongerString)
{
    const LoadedModule module(L"texts.dll");
    CStdStr<wchar_t> string(2000, L'#');
    EXPECT_TRUE(string.LoadString(101));
    EXPECT_EQ(string.size(), 2000u);
    EXPECT_STREQ(string.c_str(), L"Ready");
    EXPECT_EQ(string.substr(1023), std::wstring(977, L'#'));
}

TEST(LoadString, ReplacesATextThatItLoadedBefore)
{
    const LoadedModule module(L"texts.dll");
    CStdStr<wchar_t> string;
    EXPECT_TRUE(string.LoadString(104));
    EXPECT_TRUE(string.LoadString(101));
    EXPECT_EQ(std::wcslen(string.c_str()), 5u);
    EXPECT_EQ(string.size(), 1024u);
}

TEST(LoadString, FailsInAModuleWithoutStrings)
{
    const LoadedModule module(L"notexts.dll");
    ASSERT_NE(module.handle(), nullptr);
    CStdStr<wchar_t> string;
    EXPECT_FALSE(string.LoadString(101));
    EXPECT_EQ(string, std::wstring(1024, L'\0'));
}

TEST(LoadString, FailsWithoutAResourceModule)
{
    CStdStr<wchar_t> string = L"former";
    EXPECT_FALSE(string.LoadString(101));
    EXPECT_EQ(string.size(), 1024u);
    AfxSetResourceHandle(reinterpret_cast<HINSTANCE>(1));
    EXPECT_FALSE(string.LoadString(101));
    AfxSetResourceHandle(nullptr);
}

} // namespace
