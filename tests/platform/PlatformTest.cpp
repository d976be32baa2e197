// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include "support/LocaleScope.h"

#include <gtest/gtest.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <climits>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

namespace {

namespace platform = ktqtbase::platform;

constexpr char kPoison = '\x7e';
constexpr const char* kSomeSymbol = "_Z14IsDBCSLeadByteh";

std::string ownPath()
{
    return std::filesystem::read_symlink("/proc/self/exe").string();
}

std::uint32_t sizeNeeded()
{
    return static_cast<std::uint32_t>(ownPath().size() + 1);
}

TEST(executablePath, FillsABufferOfTheExactSize)
{
    std::uint32_t size = sizeNeeded();
    std::string buffer(size + 8u, kPoison);
    EXPECT_EQ(platform::executablePath(buffer.data(), &size), 0);
    EXPECT_EQ(size, sizeNeeded());
    EXPECT_EQ(buffer, ownPath() + '\0' + std::string(8, kPoison));
}

TEST(executablePath, LeavesTheSizeOfALargerBuffer)
{
    std::uint32_t size = sizeNeeded() + 100;
    std::string buffer(size, kPoison);
    EXPECT_EQ(platform::executablePath(buffer.data(), &size), 0);
    EXPECT_EQ(size, sizeNeeded() + 100);
    EXPECT_EQ(buffer, ownPath() + '\0' + std::string(100, kPoison));
}

TEST(executablePath, TellsTheSizeWhereTheBufferIsTooSmall)
{
    for (std::uint32_t given : {0u, 1u, sizeNeeded() - 1}) {
        std::uint32_t size = given;
        std::string buffer(sizeNeeded(), kPoison);
        EXPECT_EQ(platform::executablePath(buffer.data(), &size), -1) << given;
        EXPECT_EQ(size, sizeNeeded()) << given;
        EXPECT_EQ(buffer, std::string(sizeNeeded(), kPoison)) << given;
    }
}

TEST(sharedLibrarySuffix, IsThatOfThisPlatform)
{
    EXPECT_STREQ(platform::sharedLibrarySuffix(), ".so");
}

TEST(utf8LocaleName, NamesAUtf8CharacterType)
{
    const ktqtbase::test::LocaleScope before("C", LC_CTYPE);
    ASSERT_NE(std::setlocale(LC_CTYPE, platform::utf8LocaleName()), nullptr);
    char bytes[MB_LEN_MAX + 1] = "";
    EXPECT_EQ(std::wcstombs(bytes, L"\u00e9", sizeof(bytes)), 2u);
    EXPECT_STREQ(bytes, "\xc3\xa9");
}

TEST(mainScreen, HasNoSizeWithoutAnApplication)
{
    ASSERT_EQ(QGuiApplication::instance(), nullptr);
    EXPECT_EQ(platform::mainScreenWidth(), 0);
    EXPECT_EQ(platform::mainScreenHeight(), 0);
}

bool agreesWithThePrimaryScreen()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char name[] = "platform-test";
    char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);
    const QSize size = QGuiApplication::primaryScreen()->geometry().size();
    return !size.isEmpty() && platform::mainScreenWidth() == size.width() &&
           platform::mainScreenHeight() == size.height();
}

// In a process of its own: the other test needs one without an application, and the screen plug-in
// does not free all that it takes.
TEST(mainScreen, HasTheSizeOfThePrimaryScreen)
{
    EXPECT_EXIT(std::_Exit(agreesWithThePrimaryScreen() ? 0 : 1), testing::ExitedWithCode(0), "");
}

// What stands for a module handle but names none.
TEST(Loader, RefusesHandlesThatNameNoModule)
{
    for (std::intptr_t value : {0, 1}) {
        void* handle = reinterpret_cast<void*>(value);
        EXPECT_EQ(platform::findSymbol(handle, "malloc"), nullptr) << value;
        EXPECT_NE(platform::closeModule(handle), 0) << value;
    }
}

TEST(Loader, LooksInWhateverElseItIsGivenButClosesNoHandleOfMinusOne)
{
    void* next = reinterpret_cast<void*>(std::intptr_t{-1});
    EXPECT_NE(platform::findSymbol(next, "malloc"), nullptr);
    EXPECT_NE(platform::closeModule(next), 0);
}

TEST(Loader, FindsTheSymbolsOfAModule)
{
    void* module = platform::openModule(SOME_MODULE);
    ASSERT_NE(module, nullptr);
    EXPECT_NE(platform::findSymbol(module, kSomeSymbol), nullptr);
    EXPECT_EQ(platform::findSymbol(module, "no_such_symbol"), nullptr);
    EXPECT_EQ(platform::closeModule(module), 0);
}

TEST(Loader, GivesNullForAMissingFile)
{
    EXPECT_EQ(platform::openModule("/no/such/module.so"), nullptr);
}

TEST(moduleFileName, GivesTheFileOfAnAddress)
{
    void* module = platform::openModule(SOME_MODULE);
    const char* file = "";
    EXPECT_NE(platform::moduleFileName(platform::findSymbol(module, kSomeSymbol), &file), 0);
    // The text goes with the module.
    const std::string copy = file;
    platform::closeModule(module);
    EXPECT_TRUE(std::filesystem::equivalent(copy, SOME_MODULE)) << copy;
}

TEST(moduleFileName, LeavesTheNameForAnAddressOutsideEveryModule)
{
    const char poison[] = "poison";
    const char* file = poison;
    const auto onHeap = std::make_unique<int>(0);
    EXPECT_EQ(platform::moduleFileName(nullptr, &file), 0);
    EXPECT_EQ(platform::moduleFileName(onHeap.get(), &file), 0);
    EXPECT_EQ(file, poison);
}

} // namespace
