// SPDX-License-Identifier: MIT
//
// File names of modules, of the main program and of executables elsewhere.
#include "support/LocaleScope.h"
#include "support/WhereAmI.h"
#include "system/ModuleTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using ktqtbase::test::Answers;
using ktqtbase::test::answersFrom;
using ktqtbase::test::folderForPathOf;
using ktqtbase::test::kMainProgram;
using ktqtbase::test::kModules;
using ktqtbase::test::LoadedModule;
using ktqtbase::test::LocaleScope;
using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::wide;

using Function = unsigned int (*)(HINSTANCE, wchar_t*, unsigned int);

struct Name
{
    unsigned int result;
    std::wstring buffer; // all of it, one more character than the function is told
};

Name nameOf(HINSTANCE module, std::size_t size, Function function = GetModuleFileName)
{
    Name name{0, std::wstring(size + 1, L'#')};
    name.result = function(module, name.buffer.data(), static_cast<unsigned int>(size));
    return name;
}

// ---- The main program --------------------------------------------------------------------------

class ModuleFileNameOfTheMainProgram : public testing::Test
{
protected:
    const LocaleScope anyName{"C.UTF-8"};
    const std::wstring path = wide(std::filesystem::read_symlink("/proc/self/exe"));
};

TEST_F(ModuleFileNameOfTheMainProgram, Is0AndGivesItsPath)
{
    for (const HINSTANCE module : {HINSTANCE(nullptr), kMainProgram}) {
        const Name name = nameOf(module, path.size() + 2);
        EXPECT_EQ(name.result, 0u);
        EXPECT_EQ(name.buffer, path + L'\0' + L"##");
    }
}

TEST_F(ModuleFileNameOfTheMainProgram, CutsItsPathAtTheSizeWithoutATerminator)
{
    for (const std::size_t size : {std::size_t(0), std::size_t(1), path.size() - 1, path.size()}) {
        const Name name = nameOf(nullptr, size);
        EXPECT_EQ(name.result, 0u) << size;
        EXPECT_EQ(name.buffer, path.substr(0, size) + L'#') << size;
    }
}

TEST_F(ModuleFileNameOfTheMainProgram, TerminatesAPathThatHasOneCharacterToSpare)
{
    EXPECT_EQ(nameOf(kMainProgram, path.size() + 1).buffer, path + L'\0' + L'#');
}

TEST(GetModuleFileName, Is0ForTheMainProgramAndANullBuffer)
{
    for (const Function function : {::GetModuleFileName, KtKernel32::GetModuleFileName}) {
        for (const unsigned int size : {0u, 1u, 1024u}) {
            EXPECT_EQ(function(nullptr, nullptr, size), 0u) << size;
            EXPECT_EQ(function(kMainProgram, nullptr, size), 0u) << size;
        }
    }
}

// ---- Addresses inside a module -----------------------------------------------------------------

// The address of a function of the module, as a handle.
HINSTANCE addressIn(const LoadedModule& module)
{
    return static_cast<HINSTANCE>(GetProcAddress(module.handle(), "ktanswer"));
}

TEST(GetModuleFileName, GivesTheFileOfAnAddressAndTheLoadersResult)
{
    const LocaleScope scope("C.UTF-8");
    const LoadedModule module(kModules / "m\u00f3dul.dll");
    const std::wstring path = wide(kModules / "libm\u00f3dul.so");
    Dl_info info;
    const Name name = nameOf(addressIn(module), path.size() + 2);
    EXPECT_EQ(name.result, static_cast<unsigned int>(dladdr(addressIn(module), &info)));
    EXPECT_NE(name.result, 0u);
    EXPECT_EQ(name.buffer, path + L'\0' + L"##");
}

TEST(GetModuleFileName, CutsAModulesPathAtTheSizeWithoutATerminator)
{
    const LoadedModule module(kModules / "ktplain.dll");
    const std::wstring path = wide(kModules / "libktplain.so");
    for (const std::size_t size : {std::size_t(0), std::size_t(1), path.size() - 1, path.size()}) {
        const Name name = nameOf(addressIn(module), size);
        EXPECT_NE(name.result, 0u) << size;
        EXPECT_EQ(name.buffer, path.substr(0, size) + L'#') << size;
    }
    EXPECT_EQ(nameOf(addressIn(module), path.size() + 1).buffer, path + L'\0' + L'#');
}

TEST(GetModuleFileName, GivesAModulesPathUpToAByteThatDoesNotConvert)
{
    const LocaleScope scope("C.UTF-8");
    const TemporaryFolder folder;
    std::filesystem::copy_file(kModules / "libktplain.so", folder / "a\xff.so");
    const LoadedModule module(
        static_cast<HINSTANCE>(dlopen((folder / "a\xff.so").c_str(), RTLD_LAZY)));
    const std::wstring before = wide(folder / "a");
    const Name name = nameOf(addressIn(module), before.size() + 2);
    EXPECT_NE(name.result, 0u);
    EXPECT_EQ(name.buffer, before + L'\0' + L"##");
}

// A handle of this loader is the address of a record on the heap.
TEST(GetModuleFileName, Is0ForAHandleAndLeavesTheBuffer)
{
    const LoadedModule module(kModules / "ktplain.dll");
    ASSERT_NE(module.handle(), nullptr);
    const Name name = nameOf(module.handle(), 8);
    EXPECT_EQ(name.result, 0u);
    EXPECT_EQ(name.buffer, L"#########");
}

TEST(GetModuleFileName, TakesEveryValueAbove1ForAnAddress)
{
    const Name name = nameOf(reinterpret_cast<HINSTANCE>(2), 8);
    EXPECT_EQ(name.result, 0u);
    EXPECT_EQ(name.buffer, L"#########");
}

TEST_F(ModuleFileNameOfTheMainProgram, AndOfModulesIsTheSameFromKtKernel32)
{
    const LoadedModule module(kModules / "ktplain.dll");
    EXPECT_EQ(nameOf(nullptr, path.size(), KtKernel32::GetModuleFileName).buffer, path + L'#');
    EXPECT_EQ(nameOf(addressIn(module), 300, KtKernel32::GetModuleFileName).buffer,
              nameOf(addressIn(module), 300).buffer);
    EXPECT_EQ(nameOf(module.handle(), 8, KtKernel32::GetModuleFileName).result, 0u);
}

// ---- Executables elsewhere ---------------------------------------------------------------------

TEST(ExecutablePath, IsGivenWholeWhereItFits)
{
    const TemporaryFolder folder;
    const std::filesystem::path place = folderForPathOf(1023, folder);
    Answers answers = answersFrom(place);
    EXPECT_EQ(answers["module.result"], "0");
    EXPECT_EQ(answers["module"], (place / "where_am_i").string());
    for (const std::string name : {"directory", "twin"}) {
        EXPECT_EQ(answers[name + ".result"], "1024") << name;
        EXPECT_EQ(answers[name], place.string()) << name;
    }
}

TEST(ExecutablePath, IsNotGivenWhereItHas1024Bytes)
{
    const TemporaryFolder folder;
    Answers answers = answersFrom(folderForPathOf(1024, folder));
    EXPECT_EQ(answers["module.result"], "4294967295");
    EXPECT_EQ(answers["module"], "");
    for (const std::string name : {"directory", "twin"}) {
        EXPECT_EQ(answers[name + ".result"], "1025") << name;
        EXPECT_EQ(answers[name], "") << name;
    }
}

TEST(ExecutablePath, TellsTheSizeThatALongOneNeeds)
{
    const TemporaryFolder folder;
    EXPECT_EQ(answersFrom(folderForPathOf(2500, folder))["directory.result"], "2501");
}

TEST(ExecutablePath, ThatDoesNotConvertIsCutForTheModuleAndEmptyForTheDirectory)
{
    const TemporaryFolder folder;
    Answers answers = answersFrom(folder / "a\xff");
    EXPECT_EQ(answers["module.result"], "0");
    EXPECT_EQ(answers["module"], (folder / "a").string());
    for (const std::string name : {"directory", "twin"}) {
        EXPECT_EQ(answers[name + ".result"], "1024") << name;
        EXPECT_EQ(answers[name], "") << name;
    }
}

TEST(ExecutablePath, MayHoldCharactersBeyondAscii)
{
    const TemporaryFolder folder;
    Answers answers = answersFrom(folder / "\u4e2d\U0001F600");
    EXPECT_EQ(answers["module"], (folder / "\u4e2d\U0001F600/where_am_i").string());
    EXPECT_EQ(answers["directory"], (folder / "\u4e2d\U0001F600").string());
}

TEST(ExecutablePath, IsStillKnownWhenTheProgramsOwnObjectsGo)
{
    const TemporaryFolder folder;
    Answers answers = answersFrom(folder / "place");
    EXPECT_EQ(answers["exit.result"], "1024");
    EXPECT_EQ(answers["exit"], (folder / "place").string());
    EXPECT_EQ(answers["exit"], answers["directory"]);
}

} // namespace
