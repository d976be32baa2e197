// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/KernelStubs.h>

#include "system/stubs/Poisoned.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

namespace {

// A folder of its own with one file of five bytes in it.
class KernelStubs : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string folder = testing::TempDir() + "kernel-stubs-XXXXXX";
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        m_folder = folder;
        m_file = m_folder / "present.txt";
        std::ofstream(m_file) << "bytes";
    }

    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::filesystem::path m_folder;
    std::filesystem::path m_file;
};

int g_object = 0;
void* const kHandle = &g_object;

TEST(CloseHandle, ReturnsZero)
{
    EXPECT_EQ(CloseHandle(kHandle), 0);
    EXPECT_EQ(CloseHandle(nullptr), 0);
    EXPECT_EQ(KtKernel32::CloseHandle(kHandle), 0);
    EXPECT_EQ(KtKernel32::CloseHandle(nullptr), 0);
}

TEST_F(KernelStubs, CreateFileGivesNullForAnExistingFile)
{
    const HANDLE file = CreateFile(m_file.wstring().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_EQ(file, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE);
}

TEST_F(KernelStubs, CreateFileMakesNoFile)
{
    const std::filesystem::path absent = m_folder / "absent.txt";
    EXPECT_EQ(CreateFile(absent.wstring().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                         FILE_ATTRIBUTE_NORMAL, nullptr),
              nullptr);
    EXPECT_FALSE(std::filesystem::exists(absent));
}

TEST_F(KernelStubs, CreateFileCutsNoFile)
{
    EXPECT_EQ(CreateFile(m_file.wstring().c_str(), GENERIC_WRITE, 0, nullptr, TRUNCATE_EXISTING, 0,
                         nullptr),
              nullptr);
    EXPECT_EQ(std::filesystem::file_size(m_file), 5u);
}

TEST_F(KernelStubs, DeleteFileDeletesNothing)
{
    EXPECT_EQ(DeleteFile(m_file.wstring().c_str()), 0);
    EXPECT_TRUE(std::filesystem::exists(m_file));
}

TEST_F(KernelStubs, FindFirstFileFindsNothingAndGivesNull)
{
    Poisoned<WIN32_FIND_DATAW> found;
    const HANDLE search = FindFirstFileW((m_folder / "*.txt").wstring().c_str(), found.get());
    EXPECT_EQ(search, nullptr);
    EXPECT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(found.isUntouched());
}

TEST_F(KernelStubs, FindFirstChangeNotificationGivesNull)
{
    EXPECT_EQ(FindFirstChangeNotificationW(m_folder.wstring().c_str(), true,
                                           FILE_NOTIFY_CHANGE_FILE_NAME),
              nullptr);
}

TEST(ReadFile, TransfersNothing)
{
    Poisoned<char[16]> buffer;
    Poisoned<DWORD> count;
    Poisoned<OVERLAPPED> overlapped;
    EXPECT_EQ(ReadFile(kHandle, buffer.get(), 16, count.get(), overlapped.get()), 0);
    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_TRUE(count.isUntouched());
    EXPECT_TRUE(overlapped.isUntouched());
}

TEST(WriteFile, TransfersNothing)
{
    Poisoned<char[16]> buffer;
    Poisoned<DWORD> count;
    Poisoned<OVERLAPPED> overlapped;
    EXPECT_EQ(WriteFile(kHandle, buffer.get(), 16, count.get(), overlapped.get()), 0);
    EXPECT_TRUE(buffer.isUntouched());
    EXPECT_TRUE(count.isUntouched());
    EXPECT_TRUE(overlapped.isUntouched());
}

TEST(GetFileSize, IsZeroAndLeavesUpperHalf)
{
    Poisoned<unsigned int> upper;
    EXPECT_EQ(GetFileSize(kHandle, upper.get()), 0u);
    EXPECT_EQ(KtKernel32::GetFileSize(kHandle, upper.get()), 0u);
    EXPECT_TRUE(upper.isUntouched());
    EXPECT_EQ(GetFileSize(kHandle, nullptr), 0u);
    EXPECT_EQ(KtKernel32::GetFileSize(kHandle, nullptr), 0u);
}

TEST(SetFilePointer, IsZeroAndLeavesUpperHalf)
{
    Poisoned<int> upper;
    EXPECT_EQ(SetFilePointer(kHandle, 100, upper.get(), FILE_END), 0u);
    EXPECT_TRUE(upper.isUntouched());
}

TEST(GetFileTime, WritesNoTime)
{
    Poisoned<FILETIME[3]> times;
    FILETIME* const time = *times.get();
    EXPECT_EQ(GetFileTime(kHandle, time, time + 1, time + 2), 0);
    EXPECT_TRUE(times.isUntouched());
}

TEST(FileTimeToLocalFileTime, WritesNoTime)
{
    const FILETIME utc = {0xD53E8000, 0x019DB1DE};
    Poisoned<FILETIME> local;
    EXPECT_EQ(FileTimeToLocalFileTime(&utc, local.get()), 0);
    EXPECT_TRUE(local.isUntouched());
}

TEST(FileTimeToSystemTime, WritesNoTime)
{
    const FILETIME utc = {0xD53E8000, 0x019DB1DE};
    Poisoned<SYSTEMTIME> date;
    EXPECT_EQ(FileTimeToSystemTime(&utc, date.get()), 0);
    EXPECT_TRUE(date.isUntouched());
}

TEST(FindNextFile, FindsNoFurtherFile)
{
    Poisoned<WIN32_FIND_DATAW> found;
    EXPECT_EQ(FindNextFileW(kHandle, found.get()), 0);
    EXPECT_TRUE(found.isUntouched());
}

TEST(FindClose, ReturnsZero)
{
    EXPECT_EQ(FindClose(kHandle), 0);
    EXPECT_EQ(FindClose(nullptr), 0);
}

TEST(CriticalSection, IsNeverWritten)
{
    Poisoned<RTL_CRITICAL_SECTION> lock;
    InitializeCriticalSection(lock.get());
    EnterCriticalSection(lock.get());
    LeaveCriticalSection(lock.get());
    DeleteCriticalSection(lock.get());
    EXPECT_TRUE(lock.isUntouched());
}

TEST(EnterCriticalSection, LetsTwoThreadsInTwice)
{
    CRITICAL_SECTION lock = {};
    int entered = 0;
    const auto enterTwice = [&] {
        EnterCriticalSection(&lock);
        EnterCriticalSection(&lock);
        ++entered;
    };
    enterTwice();
    std::thread(enterTwice).join();
    EXPECT_EQ(entered, 2);
}

TEST(OutputDebugString, PrintsNothing)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    OutputDebugString(L"a line for the debugger\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(IsBadReadPtr, CallsEveryPointerReadable)
{
    EXPECT_EQ(IsBadReadPtr(kHandle, sizeof(g_object)), 0);
    EXPECT_EQ(IsBadReadPtr(nullptr, 1), 0);
    EXPECT_EQ(IsBadReadPtr(reinterpret_cast<const void*>(1), ~0ULL), 0);
}

TEST(GetEnvironmentVariable, ReadsAVariableThatIsSetAsAbsent)
{
    ASSERT_EQ(setenv("KTQTBASE_STUB_PRESENT", "value", 1), 0);
    Poisoned<wchar_t[16]> buffer;
    EXPECT_EQ(GetEnvironmentVariable(L"KTQTBASE_STUB_PRESENT", *buffer.get(), 16), 0u);
    EXPECT_TRUE(buffer.isUntouched());
    unsetenv("KTQTBASE_STUB_PRESENT");
}

TEST(SetEnvironmentVariable, SetsNothing)
{
    ASSERT_EQ(unsetenv("KTQTBASE_STUB_ABSENT"), 0);
    EXPECT_EQ(SetEnvironmentVariableW(L"KTQTBASE_STUB_ABSENT", L"value"), 0);
    EXPECT_EQ(std::getenv("KTQTBASE_STUB_ABSENT"), nullptr);
}

TEST(SetEnvironmentVariable, RemovesNothing)
{
    ASSERT_EQ(setenv("KTQTBASE_STUB_PRESENT", "value", 1), 0);
    EXPECT_EQ(SetEnvironmentVariableW(L"KTQTBASE_STUB_PRESENT", nullptr), 0);
    EXPECT_STREQ(std::getenv("KTQTBASE_STUB_PRESENT"), "value");
    unsetenv("KTQTBASE_STUB_PRESENT");
}

TEST(GetVersion, IsZero)
{
    EXPECT_EQ(GetVersion(), 0u);
}

TEST(GetVersionEx, FillsNothing)
{
    Poisoned<OSVERSIONINFOW> version;
    EXPECT_EQ(GetVersionExW(version.get()), 0);
    EXPECT_TRUE(version.isUntouched());
}

TEST(GetUserName, WritesNeitherNameNorSize)
{
    Poisoned<wchar_t[16]> name;
    Poisoned<unsigned int> size;
    EXPECT_EQ(GetUserNameW(*name.get(), size.get()), 0);
    EXPECT_TRUE(name.isUntouched());
    EXPECT_TRUE(size.isUntouched());
}

TEST(GetNumberFormat, WritesNoText)
{
    const NUMBERFMTW format{};
    Poisoned<wchar_t[2]> area;
    EXPECT_EQ(GetNumberFormat(0, 0, L"1234", &format, *area.get(), 2), 0);
    EXPECT_TRUE(area.isUntouched());
    EXPECT_EQ(GetNumberFormat(0, 0, nullptr, nullptr, nullptr, 0), 0);
}

TEST(CompareString, IsZeroForEqualAndForDifferentTexts)
{
    EXPECT_EQ(CompareString(LOCALE_USER_DEFAULT, 0, L"same", 4, L"same", 4), 0);
    EXPECT_EQ(CompareString(LOCALE_USER_DEFAULT, NORM_IGNORECASE, L"a", -1, L"b", -1), 0);
}

TEST(ChangeNotification, IsNeitherContinuedNorClosed)
{
    EXPECT_EQ(KtKernel32::FindNextChangeNotification(kHandle), 0);
    EXPECT_EQ(KtKernel32::FindCloseChangeNotification(kHandle), 0);
}

TEST(WaitForSingleObject, ReturnsAtOnceAsIfSignalled)
{
    EXPECT_EQ(KtKernel32::WaitForSingleObject(kHandle, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(KtKernel32::WaitForSingleObject(nullptr, 0), WAIT_OBJECT_0);
}

TEST(SetLastError, LeavesErrno)
{
    errno = ENOENT;
    KtKernel32::SetLastError(ERROR_ACCESS_DENIED);
    EXPECT_EQ(errno, ENOENT);
}

} // namespace
