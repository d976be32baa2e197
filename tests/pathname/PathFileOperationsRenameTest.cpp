// SPDX-License-Identifier: MIT
//
// The file functions that path objects call: this program's own definitions replace those of the
// library and of its host, record each call and return what a test wants.
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

#include <KtOsBase/KtOsBase.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Files.h>
#include <KtQtBase/windows/KernelStubs.h>

#include <cwchar>
#include <vector>

namespace {

using Calls = std::vector<std::wstring>;

Calls g_calls;
int g_renameResult = 0;
HANDLE g_handle = nullptr;
unsigned int g_attributes = 0;
const CRbUiPathname* g_asked = nullptr;
path_type g_typeWhileAsked = PT_NONE;

class FileFunctions : public testing::Test
{
protected:
    FileFunctions()
    {
        g_calls.clear();
        g_renameResult = 0;
        g_handle = nullptr;
        g_attributes = INVALID_FILE_ATTRIBUTES;
    }
};

using Rename = FileFunctions;
using OpenFile = FileFunctions;
using Parse = FileFunctions;
using Attributes = FileFunctions;
using Status = FileFunctions;

// Answers whether it is read-only otherwise than its flags do.
class ContraryVolume : public ListedVolume
{
public:
    explicit ContraryVolume(bool isReadOnly) : ListedVolume(L"C:"), m_isReadOnly(isReadOnly)
    {
        if (!isReadOnly)
            m_flags |= 0x20;
    }

    bool CheckReadOnly() const override { return m_isReadOnly; }

private:
    bool m_isReadOnly;
};

} // namespace

unsigned int GetCurrentDirectoryW(unsigned int size, wchar_t* buffer)
{
    g_calls.push_back(L"get " + std::to_wstring(size));
    std::wcscpy(buffer, L"/current");
    return size;
}

int SetCurrentDirectoryW(const wchar_t* folder)
{
    g_calls.push_back(std::wstring(L"set ") + folder);
    return 0;
}

int _wrename(const wchar_t* oldName, const wchar_t* newName)
{
    g_calls.push_back(std::wstring(L"rename ") + oldName + L" " + newName);
    return g_renameResult;
}

HANDLE CreateFile(const wchar_t* name, unsigned int access, unsigned int share,
                  SECURITY_ATTRIBUTES* security, unsigned int creation, unsigned int flags,
                  HANDLE pattern)
{
    EXPECT_EQ(share, 0u);
    EXPECT_EQ(security, nullptr);
    EXPECT_EQ(creation, static_cast<unsigned int>(OPEN_EXISTING));
    EXPECT_EQ(flags, 0u);
    EXPECT_EQ(pattern, nullptr);
    g_calls.push_back((access == GENERIC_READ ? L"read " : L"write ") + std::wstring(name));
    return g_handle;
}

unsigned int GetFileAttributes(const wchar_t* name)
{
    g_calls.push_back(std::wstring(L"attributes ") + name);
    if (g_asked)
        g_typeWhileAsked = g_asked->m_type;
    return g_attributes;
}

namespace {

TEST_F(Rename, WorksBetweenEnteringThePrefixAndComingBack)
{
    HandMadePath name(PC_RELATIVE, L"a");
    name.setPrefix(L"/prefix/");
    EXPECT_TRUE(name.Rename(L"b"));
    EXPECT_EQ(g_calls, (Calls{L"get 1024", L"set /prefix/", L"rename a b", L"set /current"}));
    EXPECT_EQ(workOf(name), L"b");
}

TEST_F(Rename, EntersNoFolderWithoutAPrefix)
{
    HandMadePath name(PC_DRIVE, L"a");
    EXPECT_TRUE(name.Rename(L"b"));
    EXPECT_EQ(g_calls, Calls{L"rename a b"});
}

TEST_F(Rename, TakesEveryResultButZeroForAFailure)
{
    for (const int result : {1, -1, 7}) {
        g_calls.clear();
        g_renameResult = result;
        HandMadePath name(PC_RELATIVE, L"a");
        name.setPrefix(L"/prefix/");
        EXPECT_FALSE(name.Rename(L"b")) << result;
        EXPECT_EQ(workOf(name), L"a") << result;
        EXPECT_EQ(g_calls.back(), L"set /current") << result;
    }
}

TEST_F(OpenFile, FailsWhereCreateFileGivesNoHandle)
{
    HandMadePath name(PC_ROOTED, L"/d/a");
    int poison = 0;
    g_handle = INVALID_HANDLE_VALUE;
    void* handle = &poison;
    EXPECT_FALSE(name.OpenReadOnly(handle));
    EXPECT_EQ(handle, INVALID_HANDLE_VALUE);
    handle = &poison;
    EXPECT_FALSE(name.OpenWriteOnly(handle));
    EXPECT_EQ(handle, INVALID_HANDLE_VALUE);
    EXPECT_EQ(g_calls, (Calls{L"read /d/a", L"write /d/a"}));
}

TEST_F(OpenFile, HandsTheHandleOfCreateFileOn)
{
    HandMadePath name(PC_ROOTED, L"/d/a");
    int file = 0;
    g_handle = &file;
    void* handle = nullptr;
    EXPECT_TRUE(name.OpenReadOnly(handle));
    EXPECT_EQ(handle, &file);
}

TEST_F(Parse, AsksOnceForTheAttributesBehindThePrefix)
{
    HandMadePath base(PC_ROOTED, L"/prefix", PT_DIRECTORY);
    CRbUiPathname name;
    g_asked = &name;
    g_attributes = 0x10;
    ASSERT_EQ(name.ParseRelative(L"d/a", &base, false), 0);
    EXPECT_EQ(g_calls, Calls{L"attributes " + prefixOf(name) + L"/d/a"});
    EXPECT_EQ(prefixOf(name).substr(0, 7), L"/prefix");
    EXPECT_EQ(g_typeWhileAsked, PT_NOT_FOUND);
    EXPECT_EQ(name.m_type, PT_DIRECTORY);
    g_asked = nullptr;
}

TEST_F(Attributes, ArePutBehindASecondSlash)
{
    const CStdStr<wchar_t> work(L"a");
    for (const auto& [text, asked] :
         {std::make_pair(L"/prefix/", L"attributes /prefix//a"),
          std::make_pair(L"/prefix", L"attributes /prefix/a"),
          std::make_pair(L"", L"attributes /a"), std::make_pair(L"/", L"attributes //a")}) {
        SCOPED_TRACE(text);
        const CStdStr<wchar_t> prefix(text);
        const CStdStr<wchar_t>* workPointer = &work;
        const CStdStr<wchar_t>* prefixPointer = &prefix;
        path_type type = PT_NONE;
        path_type* typePointer = &type;
        GetAttByPath(&workPointer, &prefixPointer, &typePointer);
        EXPECT_EQ(g_calls.back(), asked);
    }
}

TEST_F(Attributes, OfAStatusAreThoseOfTheTextHandedIn)
{
    CStdStr<wchar_t> text(L"/other");
    CStdStr<wchar_t>* work = &text;
    CRnUiPathname name;
    g_attributes = 0;
    ASSERT_EQ(name.ParseRelative(L"/d/a", nullptr, false), 0);
    EXPECT_EQ(ProcessPathStatus(name, &work), 7);
    EXPECT_EQ(g_calls.back(), L"attributes /other");
    int status = 0;
    g_calls.clear();
    ProcessParentStatus(name, &work, status);
    EXPECT_EQ(status, 8);
    EXPECT_EQ(g_calls.back(), L"attributes /other");
}

TEST_F(Status, AsksTheVolumesOwnClassWhetherItMayBeWritten)
{
    for (bool isReadOnly : {false, true}) {
        SCOPED_TRACE(isReadOnly);
        ContraryVolume volume(isReadOnly);
        CRnUiPathname name;
        g_attributes = 0;
        ASSERT_EQ(name.Parse(L"c:\\a", false), 0);
        EXPECT_EQ(name.m_pVolume, &volume);
        EXPECT_EQ(name.Status(), isReadOnly ? 3 : 15);
    }
}

} // namespace
