// SPDX-License-Identifier: MIT
#include "support/RowName.h"

#include <KtOsBase/KtOsBase.h>
#include <KtQtBase/WindowsTypes.h>
#include <KtQtBase/windows/KernelStubs.h>
#include <KtQtBase/windows/SystemInformation.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <thread>

#include <sys/time.h>

namespace {

using ktqtbase::test::RowName;

// ---- The clock ---------------------------------------------------------------------------------

std::uint64_t wallClock()
{
    timeval now;
    gettimeofday(&now, nullptr);
    return static_cast<std::uint64_t>(now.tv_sec) * 1000 +
           static_cast<std::uint64_t>(now.tv_usec) / 1000;
}

struct ClockRow
{
    const char* name;
    unsigned int (*read)();
};

class TickCount : public testing::TestWithParam<ClockRow>
{};

TEST_P(TickCount, IsTheWallClockInMillisecondsModulo32Bits)
{
    const std::uint64_t before = wallClock();
    const unsigned int ticks = GetParam().read();
    const std::uint64_t after = wallClock();
    EXPECT_LE(ticks - static_cast<std::uint32_t>(before), after - before);
}

TEST_P(TickCount, AdvancesByMilliseconds)
{
    const unsigned int start = GetParam().read();
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
    const unsigned int passed = GetParam().read() - start;
    EXPECT_GE(passed, 249u);
    EXPECT_LT(passed, 10000u);
}

const ClockRow kClocks[] = {{"Global", GetTickCount}, {"KtKernel32", KtKernel32::GetTickCount}};

INSTANTIATE_TEST_SUITE_P(Functions, TickCount, testing::ValuesIn(kClocks), RowName());

// ---- The last error ----------------------------------------------------------------------------

TEST(GetLastError, IsErrno)
{
    for (const int error : {0, ENOENT, 12345}) {
        errno = error;
        const unsigned int global = GetLastError();
        errno = error;
        const unsigned int twin = KtKernel32::GetLastError();
        EXPECT_EQ(global, static_cast<unsigned int>(error));
        EXPECT_EQ(twin, static_cast<unsigned int>(error));
    }
}

TEST(GetLastError, KnowsNothingOfSetLastError)
{
    for (const auto read : {&::GetLastError, &KtKernel32::GetLastError}) {
        errno = ENOENT;
        KtKernel32::SetLastError(5);
        EXPECT_EQ(read(), static_cast<unsigned int>(ENOENT));
        EXPECT_EQ(errno, ENOENT);
    }
}

TEST(GetLastError, BelongsToTheCallingThread)
{
    unsigned int elsewhere = 0;
    errno = EACCES;
    std::thread([&] {
        errno = ENOENT;
        elsewhere = GetLastError();
    }).join();
    errno = EACCES;
    EXPECT_EQ(GetLastError(), static_cast<unsigned int>(EACCES));
    EXPECT_EQ(elsewhere, static_cast<unsigned int>(ENOENT));
}

// ---- The screen --------------------------------------------------------------------------------

// A GUI application on a screen that is not square.
class Gui
{
    char m_name[5] = "test";
    char m_option[10] = "-platform";
    char m_platform[8] = "minimal";
    char* m_arguments[4] = {m_name, m_option, m_platform, nullptr};
    int m_count = 3;
    QGuiApplication m_application{m_count, m_arguments};
};

TEST(DisplaySize, Is0WithoutAGuiApplication)
{
    EXPECT_EQ(getDisplayWidth(), 0);
    EXPECT_EQ(getDiaplayHeight(), 0);
    EXPECT_EQ(GetSystemMetrics(SM_CXFULLSCREEN), 0);
    EXPECT_EQ(GetSystemMetrics(SM_CYFULLSCREEN), 0);
}

TEST(DisplaySize, IsThatOfThePrimaryScreen)
{
    const Gui gui;
    const QSize size = QGuiApplication::primaryScreen()->geometry().size();
    ASSERT_NE(size.width(), size.height());
    EXPECT_EQ(getDisplayWidth(), size.width());
    EXPECT_EQ(getDiaplayHeight(), size.height());
}

TEST(GetSystemMetrics, GivesWidthFor16HeightFor17And0ForAllElse)
{
    const Gui gui;
    for (int index = -1; index <= 100; ++index) {
        int expected = 0;
        if (index == 16)
            expected = getDisplayWidth();
        else if (index == 17)
            expected = getDiaplayHeight();
        EXPECT_EQ(GetSystemMetrics(index), expected) << index;
    }
    EXPECT_GT(GetSystemMetrics(16), 0);
    EXPECT_GT(GetSystemMetrics(17), 0);
}

// ---- Characters --------------------------------------------------------------------------------

TEST(KtKernel32, AsksTheOsBaseLibraryAboutLeadBytes)
{
    for (int byte = 0; byte < 256; ++byte) {
        const auto value = static_cast<unsigned char>(byte);
        EXPECT_EQ(KtKernel32::IsDBCSLeadByte(value), IsDBCSLeadByte(value)) << byte;
    }
}

} // namespace
