// SPDX-License-Identifier: MIT
//
// Which file the loader is asked for. No file of these names exists, and the loader names the one
// that it missed.
#include "support/LocaleScope.h"
#include "support/RowName.h"
#include "system/ModuleTestSupport.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using ktqtbase::test::LocaleScope;
using ktqtbase::test::RowName;

// The file that a call asked the loader for; empty where it asked for none.
std::string askedFor(const std::function<HINSTANCE()>& call)
{
    dlerror();
    EXPECT_EQ(call(), nullptr);
    const char* const message = dlerror();
    const std::string text = message ? message : "";
    return text.substr(0, text.find(": cannot open shared object file"));
}

std::string loadAsksFor(const std::wstring& name)
{
    return askedFor([&] { return LoadLibrary(name.c_str()); });
}

std::string handleAsksFor(const std::wstring& name)
{
    return askedFor([&] { return GetModuleHandle(name.c_str()); });
}

struct NameRow
{
    const char* name;
    const wchar_t* given;
    const char* loaded;
    const char* gotten;
};

class ModuleNameRows : public testing::TestWithParam<NameRow>
{};

TEST_P(ModuleNameRows, AreMappedByLoadLibrary)
{
    const LocaleScope scope("C");
    EXPECT_EQ(loadAsksFor(GetParam().given), GetParam().loaded);
}

TEST_P(ModuleNameRows, AreMappedByGetModuleHandle)
{
    const LocaleScope scope("C");
    EXPECT_EQ(handleAsksFor(GetParam().given), GetParam().gotten);
}

const NameRow kNameRows[] = {
    {"Dll", L"nomod.dll", "libnomod.so", "libnomod.so"},
    {"DllInCapitals", L"nomod.DLL", "libnomod.so", "libnomod.so"},
    {"DllInMixedCase", L"nomod.dLl", "libnomod.so", "libnomod.so"},
    {"NoSuffix", L"nomod", "libnomod.so", "libnomod.so"},
    {"PlatformSuffix", L"nomod.so", "libnomod.so.so", "libnomod.so.so"},
    {"OtherSuffix", L"nomod.dylib", "libnomod.dylib.so", "libnomod.dylib.so"},
    {"DllInside", L"nomod.dll.bak", "libnomod.dll.bak.so", "libnomod.dll.bak.so"},
    {"DllTwice", L"nomod.dll.dll", "libnomod.dll.so", "libnomod.dll.so"},
    {"DllAndBlank", L"nomod.dll ", "libnomod.dll .so", "libnomod.dll .so"},
    {"LongerThanDll", L"nomod.dllx", "libnomod.dllx.so", "libnomod.dllx.so"},
    {"DllWithoutItsDot", L"nomoddll", "libnomoddll.so", "libnomoddll.so"},
    {"Folders", L"dir/sub/nomod.dll", "dir/sub/libnomod.so", "libdir/sub/nomod.so"},
    {"Rooted", L"/opt/x/Bar.DLL", "/opt/x/libBar.so", "lib/opt/x/Bar.so"},
    {"FolderEndsWithDll", L"dir.dll/nomod", "dir.dll/libnomod.so", "libdir.dll/nomod.so"},
    {"FolderOnly", L"dir/", "dir/lib.so", "libdir/.so"},
    {"FolderAndDll", L"dir/.dll", "dir/lib.so", "libdir/.so"},
    {"DllOnly", L".dll", "lib.so", "lib.so"},
    {"Empty", L"", "lib.so", "lib.so"},
    {"Backslash", L"dir\\nomod.dll", "libdir\\nomod.so", "libdir\\nomod.so"},
    {"BeyondAscii", L"d\u00f3r/\U0001F600.dll", "d\u00f3r/lib\U0001F600.so",
     "libd\u00f3r/\U0001F600.so"},
    {"PercentSign", L"d%s/%d.dll", "d%s/lib%d.so", "libd%s/%d.so"},
};

INSTANTIATE_TEST_SUITE_P(Table, ModuleNameRows, testing::ValuesIn(kNameRows), RowName());

// ---- Names that are not asked for --------------------------------------------------------------

TEST(ModuleNames, AreNotAskedForWhereTheyAreNullOrDoNotConvert)
{
    const std::wstring halfASurrogate = {L'm', wchar_t(0xD800)};
    EXPECT_EQ(askedFor([] { return LoadLibrary(nullptr); }), "");
    EXPECT_EQ(loadAsksFor(halfASurrogate), "");
    EXPECT_EQ(handleAsksFor(halfASurrogate), "");
}

TEST(LoadLibrary, TakesFoldersBelow512Bytes)
{
    const std::string longest = std::string(510, 'd') + '/';
    const std::wstring fits(longest.begin(), longest.end());
    EXPECT_EQ(loadAsksFor(fits + L"m.dll"), longest + "libm.so");
    EXPECT_EQ(loadAsksFor(L'd' + fits + L"m.dll"), "");
}

TEST(LoadLibrary, CountsTheBytesOfAFolderNotItsCharacters)
{
    const std::wstring longest = std::wstring(255, L'\u00e9') + L'/';
    EXPECT_NE(loadAsksFor(longest + L"m"), "");
    EXPECT_EQ(loadAsksFor(L'd' + longest + L"m"), "");
}

TEST(LoadLibrary, TakesBaseNamesBelow512Bytes)
{
    const std::string longest(511, 'b');
    const std::wstring fits(longest.begin(), longest.end());
    EXPECT_EQ(loadAsksFor(fits), "lib" + longest + ".so");
    EXPECT_EQ(loadAsksFor(fits + L".dll"), "lib" + longest + ".so");
    EXPECT_EQ(loadAsksFor(L'b' + fits), "");
}

TEST(LoadLibrary, TakesFileNamesBelow1024Bytes)
{
    const std::wstring folder = std::wstring(510, L'd') + L'/';
    const std::size_t baseRoom = 1023 - 511 - 3 - 3;
    EXPECT_EQ(loadAsksFor(folder + std::wstring(baseRoom, L'b')).size(), 1023u);
    EXPECT_EQ(loadAsksFor(folder + std::wstring(baseRoom + 1, L'b')), "");
}

TEST(GetModuleHandle, TakesFileNamesBelow1024Bytes)
{
    const std::string longest(1023 - 3 - 3, 'm');
    const std::wstring fits(longest.begin(), longest.end());
    EXPECT_EQ(handleAsksFor(fits + L".dll"), "lib" + longest + ".so");
    EXPECT_EQ(handleAsksFor(L'm' + fits), "");
    EXPECT_EQ(handleAsksFor(std::wstring(5000, L'm')), "");
}

// ---- The twins ---------------------------------------------------------------------------------

TEST(KtKernel32, MapsModuleNamesAsTheGlobalFunctionsDo)
{
    EXPECT_EQ(askedFor([] { return KtKernel32::LoadLibrary(L"d/nomod.dll"); }), "d/libnomod.so");
    EXPECT_EQ(askedFor([] { return KtKernel32::LoadLibraryEx(L"d/nomod.dll", nullptr, 2); }),
              "d/libnomod.so");
    EXPECT_EQ(askedFor([] { return KtKernel32::GetModuleHandle(L"d/nomod.dll"); }),
              "libd/nomod.so");
}

TEST(LoadLibraryEx, MapsModuleNamesAsLoadLibraryDoes)
{
    int file = 0;
    EXPECT_EQ(askedFor([&] { return LoadLibraryEx(L"d/nomod.DLL", &file, 0xFFFFFFFF); }),
              "d/libnomod.so");
}

} // namespace
