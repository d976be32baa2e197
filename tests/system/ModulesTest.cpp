// SPDX-License-Identifier: MIT
//
// Modules that exist: their handles, their references and their functions.
#include "support/LocaleScope.h"
#include "system/GlobalScope.h"
#include "system/ModuleTestSupport.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstring>

#include <sys/mman.h>

namespace {

using ktqtbase::test::isLoaded;
using ktqtbase::test::kMainProgram;
using ktqtbase::test::kModules;
using ktqtbase::test::lastLoaderFlags;
using ktqtbase::test::LoadedModule;
using ktqtbase::test::LocaleScope;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::wide;
using ktqtbase::test::WorkingFolder;

const std::filesystem::path kPlainFile = kModules / "libktplain.so";

// ---- Loading -----------------------------------------------------------------------------------

TEST(LoadLibrary, GivesTheLoadersOwnHandle)
{
    const LoadedModule module(kModules / "ktplain.dll");
    ASSERT_NE(module.handle(), nullptr);
    const LoadedModule same(
        static_cast<HINSTANCE>(dlopen(kPlainFile.c_str(), RTLD_LAZY | RTLD_NOLOAD)));
    EXPECT_EQ(module.handle(), same.handle());
}

TEST(LoadLibrary, LoadsFromFoldersBelowTheWorkingOne)
{
    const WorkingFolder working(kModules);
    const LoadedModule module("plugins/sub/ktnested.DLL");
    EXPECT_NE(module.handle(), nullptr);
    EXPECT_EQ(LoadLibrary(L"plugins\\sub\\ktnested.dll"), nullptr);
}

TEST(LoadLibrary, LeavesANameWithoutAFolderToTheLoadersSearch)
{
    const LoadedModule module(kModules / "kttexts.dll");
    ASSERT_NE(module.handle(), nullptr);
    EXPECT_EQ(LoadedModule("kttexts.dll").handle(), module.handle());
    EXPECT_EQ(LoadedModule("kttexts").handle(), module.handle());
    const WorkingFolder working(kModules);
    EXPECT_EQ(LoadLibrary(L"ktnosuch.dll"), nullptr);
}

TEST(LoadLibrary, ConvertsItsNameByUtf8AndLeavesThatLocale)
{
    const LocaleScope scope("C");
    const LoadedModule module(kModules / "m\u00f3dul.dll");
    EXPECT_NE(module.handle(), nullptr);
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C.UTF-8");
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

TEST(LoadLibrary, BindsLazily)
{
    const LoadedModule module(kModules / "ktlazy.dll");
    EXPECT_NE(module.handle(), nullptr);
}

TEST(LoadLibrary, GivesTheLoaderNoFlagButTheLazyOne)
{
    const LoadedModule module(kModules / "ktplain.dll");
    EXPECT_EQ(lastLoaderFlags, RTLD_LAZY);
    GetModuleHandle(L"ktnosuch.dll");
    EXPECT_EQ(lastLoaderFlags, RTLD_LAZY);
}

TEST(LoadLibrary, KeepsTheModulesSymbolsOutOfTheGlobalScope)
{
    const LoadedModule module(kModules / "ktplain.dll");
    ASSERT_NE(module.handle(), nullptr);
    EXPECT_EQ(dlsym(RTLD_DEFAULT, "ktanswer"), nullptr);
}

TEST(LoadLibrary, GivesNullForAFileThatIsNoModule)
{
    const TemporaryFolder folder;
    ktqtbase::test::writeFile(folder / "libtext.so", "text");
    EXPECT_EQ(LoadLibrary(wide(folder / "text.dll").c_str()), nullptr);
}

TEST(LoadLibraryEx, GivesTheHandleOfLoadLibraryAndIgnoresTheRest)
{
    const LoadedModule module(kModules / "ktplain.dll");
    int file = 0;
    const std::wstring name = wide(kModules / "ktplain.dll");
    const LoadedModule extended(LoadLibraryEx(name.c_str(), &file, 0xFFFFFFFF));
    EXPECT_NE(module.handle(), nullptr);
    EXPECT_EQ(extended.handle(), module.handle());
}

TEST(LoadLibrary, KeepsABlankAtTheEndOfTheName)
{
    const TemporaryFolder folder;
    std::filesystem::copy_file(kPlainFile, folder / "libplain.dll .so");
    const LoadedModule module(folder / "plain.dll ");
    EXPECT_NE(module.handle(), nullptr);
    EXPECT_EQ(LoadLibrary(wide(folder / "plain.dll").c_str()), nullptr);
}

// ---- References --------------------------------------------------------------------------------

TEST(FreeLibrary, IsFalseWhenItReleasesAReference)
{
    const std::wstring name = wide(kModules / "ktplain.dll");
    const HINSTANCE module = LoadLibrary(name.c_str());
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(LoadLibrary(name.c_str()), module);
    EXPECT_FALSE(FreeLibrary(module));
    EXPECT_TRUE(isLoaded(kPlainFile));
    EXPECT_FALSE(FreeLibrary(module));
    EXPECT_FALSE(isLoaded(kPlainFile));
}

TEST(FreeLibrary, IsTrueForHandlesThatNameNoModule)
{
    EXPECT_TRUE(FreeLibrary(nullptr));
    EXPECT_TRUE(FreeLibrary(kMainProgram));
    EXPECT_TRUE(KtKernel32::FreeLibrary(nullptr));
}

// ---- GetModuleHandle ---------------------------------------------------------------------------

TEST(GetModuleHandle, Is1ForANullNameAndLeavesTheLocale)
{
    const LocaleScope scope("C");
    EXPECT_EQ(GetModuleHandle(nullptr), kMainProgram);
    EXPECT_EQ(KtKernel32::GetModuleHandle(nullptr), kMainProgram);
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C");
}

TEST(GetModuleHandle, LoadsTheModuleAndAddsAReferenceEachTime)
{
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder / "libdir/s\u00fcb");
    std::filesystem::copy_file(kPlainFile, folder / "libdir/s\u00fcb/plugin.so");
    const WorkingFolder working(folder.path());
    const LocaleScope scope("C");
    const HINSTANCE module = GetModuleHandle(L"dir/s\u00fcb/plugin.dll");
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(GetModuleHandle(L"dir/s\u00fcb/plugin.dll"), module);
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C.UTF-8");
    EXPECT_FALSE(FreeLibrary(module));
    EXPECT_TRUE(isLoaded("libdir/s\u00fcb/plugin.so"));
    EXPECT_FALSE(FreeLibrary(module));
    EXPECT_FALSE(isLoaded("libdir/s\u00fcb/plugin.so"));
}

TEST(GetModuleHandle, BindsLazilyAndKeepsSymbolsOutOfTheGlobalScope)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "libd");
    std::filesystem::copy_file(kModules / "libktlazy.so", folder / "libd/lazy.so");
    const WorkingFolder working(folder.path());
    const LoadedModule module(GetModuleHandle(L"d/lazy.dll"));
    EXPECT_NE(module.handle(), nullptr);
    EXPECT_EQ(dlsym(RTLD_DEFAULT, "ktcallsnowhere"), nullptr);
}

// ---- GetProcAddress ----------------------------------------------------------------------------

TEST(GetProcAddress, FindsTheFunctionsOfAModule)
{
    const LoadedModule module(kModules / "ktplain.dll");
    void* const answer = GetProcAddress(module.handle(), "ktanswer");
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(reinterpret_cast<int (*)()>(answer)(), 42);
    EXPECT_EQ(KtKernel32::GetProcAddress(module.handle(), "ktanswer"), answer);
    EXPECT_EQ(GetProcAddress(module.handle(), "ktnosuch"), nullptr);
}

TEST(GetProcAddress, FindsNoOrdinals)
{
    const LoadedModule module(kModules / "ktplain.dll");
    for (const std::uintptr_t ordinal : {0u, 1u, 5u, 0xFFFFu}) {
        const auto* const name = reinterpret_cast<const char*>(ordinal);
        EXPECT_EQ(GetProcAddress(module.handle(), name), nullptr) << ordinal;
        EXPECT_EQ(GetProcAddress(nullptr, name), nullptr) << ordinal;
    }
}

TEST(GetProcAddress, TakesTheFirstAddressBehindTheOrdinalsForAName)
{
    const LoadedModule module(kModules / "ktplain.dll");
    void* const first = reinterpret_cast<void*>(0x10000);
    ASSERT_EQ(mmap(first, 4096, PROT_READ | PROT_WRITE,
                   MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0),
              first);
    std::strcpy(static_cast<char*>(first), "ktanswer");
    EXPECT_NE(GetProcAddress(module.handle(), static_cast<const char*>(first)), nullptr);
    munmap(first, 4096);
}

TEST(GetProcAddress, FindsNothingInHandlesThatNameNoModule)
{
    ASSERT_NE(dlsym(RTLD_DEFAULT, "loadstring"), nullptr);
    EXPECT_EQ(GetProcAddress(nullptr, "loadstring"), nullptr);
    EXPECT_EQ(GetProcAddress(kMainProgram, "loadstring"), nullptr);
    EXPECT_EQ(KtKernel32::GetProcAddress(nullptr, "loadstring"), nullptr);
}

// The library's own function lies before what comes after the library.
TEST(GetProcAddress, LooksInWhatIsLoadedAfterThisLibraryForMinusOne)
{
    constexpr const char* kOwnFunction = "_Z12GetTickCountv";
    auto* const next = reinterpret_cast<HINSTANCE>(std::intptr_t{-1});
    ASSERT_NE(dlsym(RTLD_NEXT, kOwnFunction), nullptr);
    for (const auto find : {::GetProcAddress, KtKernel32::GetProcAddress}) {
        EXPECT_EQ(find(next, kOwnFunction), nullptr);
        EXPECT_NE(find(next, "malloc"), nullptr);
    }
}

// ---- The twins ---------------------------------------------------------------------------------

TEST(KtKernel32, LoadsAndReleasesModulesAsTheGlobalFunctionsDo)
{
    const std::wstring name = wide(kModules / "ktplain.dll");
    const HINSTANCE module = KtKernel32::LoadLibrary(name.c_str());
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(KtKernel32::LoadLibraryEx(name.c_str(), nullptr, 0), module);
    EXPECT_FALSE(KtKernel32::FreeLibrary(module));
    EXPECT_TRUE(isLoaded(kPlainFile));
    EXPECT_FALSE(KtKernel32::FreeLibrary(module));
    EXPECT_FALSE(isLoaded(kPlainFile));
}

} // namespace
