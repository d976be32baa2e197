// SPDX-License-Identifier: MIT
//
// What macOS answers otherwise than Linux does. Not yet run on a Mac.
#import <AppKit/AppKit.h>

#include "platform/Platform.h"

#include "support/LocaleScope.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/windows/Files.h>

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <string>

#include <dlfcn.h>
#include <sys/stat.h>

namespace {

namespace platform = ktqtbase::platform;
using ktqtbase::test::LocaleScope;
using ktqtbase::test::TemporaryFolder;

// ---- Names of locales and their conversions ----------------------------------------------------

TEST(MacLocale, HasAUtf8CharacterTypeWithoutALanguage)
{
    EXPECT_STREQ(platform::utf8LocaleName(), "UTF-8");
    const LocaleScope utf8("UTF-8", LC_CTYPE);
    char bytes[MB_LEN_MAX + 1] = "";
    EXPECT_EQ(std::wcstombs(bytes, L"\u00e9", sizeof bytes), 2u);
    EXPECT_STREQ(bytes, "\xc3\xa9");
}

// Linux converts none of them.
TEST(MacLocale, ConvertsBytesAbove127WithoutALocale)
{
    const LocaleScope none("C");
    wchar_t wide[2] = {};
    EXPECT_EQ(std::mbstowcs(wide, "\xe9", 2), 1u);
    EXPECT_EQ(wide[0], L'\u00e9');
    char narrow[2] = {};
    EXPECT_EQ(std::wcstombs(narrow, L"\u00e9", 2), 1u);
    EXPECT_STREQ(narrow, "\xe9");
}

TEST(MacLocale, ConvertsNoCharacterBeyondAByteWithoutALocale)
{
    const LocaleScope none("C");
    char bytes[MB_LEN_MAX + 1] = "";
    EXPECT_EQ(std::wcstombs(bytes, L"\u0416", sizeof bytes), static_cast<std::size_t>(-1));
    EXPECT_EQ(GetFileAttributes(L"/\u0416"), 0xFFFFFFFFu);
}

// ---- The loader --------------------------------------------------------------------------------

TEST(MacLoader, HasItsOwnSuffixAndFindsNoMissingModule)
{
    EXPECT_STREQ(platform::sharedLibrarySuffix(), ".dylib");
    EXPECT_EQ(platform::openModule("/no/such/module.dylib"), nullptr);
}

TEST(MacLoader, RefusesAFileThatIsNoModule)
{
    const TemporaryFolder folder;
    const std::string text = folder / "text.dylib";
    std::ofstream(text) << "no module";
    EXPECT_EQ(platform::openModule(text.c_str()), nullptr);
}

TEST(MacLoader, RefusesHandlesThatNameNoModule)
{
    for (const std::intptr_t value : {0, 1}) {
        void* const handle = reinterpret_cast<void*>(value);
        EXPECT_EQ(platform::findSymbol(handle, "malloc"), nullptr) << value;
        EXPECT_NE(platform::closeModule(handle), 0) << value;
    }
    EXPECT_NE(platform::closeModule(RTLD_NEXT), 0);
}

TEST(MacLoader, TellsTheExecutablesPath)
{
    std::uint32_t size = 0;
    char none = 0;
    EXPECT_EQ(platform::executablePath(&none, &size), -1);
    std::string path(size, '\0');
    ASSERT_EQ(platform::executablePath(path.data(), &size), 0);
    EXPECT_TRUE(std::filesystem::is_regular_file(path.c_str())) << path;
}

// ---- Files -------------------------------------------------------------------------------------

// As the volume does: by default the system's own one ignores case.
TEST(MacFiles, AreFoundInAnotherCaseWhereTheVolumeIgnoresCase)
{
    const TemporaryFolder folder;
    std::ofstream(folder / "name") << "text";
    const std::filesystem::path other = folder / "NAME";
    const bool found = GetFileAttributes(other.wstring().c_str()) != 0xFFFFFFFFu;
    EXPECT_EQ(found, std::filesystem::exists(other));
}

TEST(MacFiles, HaveAModeOf16Bits)
{
    EXPECT_EQ(sizeof(mode_t), 2u);
    EXPECT_EQ(GetFileAttributes(L"/") & 0xFFFFF000u, 0x4000u);
}

// ---- The screen --------------------------------------------------------------------------------

// With the menu bar and the dock, cut to whole points; 0 on a machine without a screen.
TEST(MacScreen, HasTheWholeFrameOfTheMainScreen)
{
    @autoreleasepool {
        const NSSize size =
            [NSScreen mainScreen] ? [[NSScreen mainScreen] frame].size : NSMakeSize(0, 0);
        EXPECT_EQ(platform::mainScreenWidth(), static_cast<int>(size.width));
        EXPECT_EQ(platform::mainScreenHeight(), static_cast<int>(size.height));
    }
}

} // namespace
