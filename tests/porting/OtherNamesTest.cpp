// SPDX-License-Identifier: MIT
//
// The functions of the library under their other Windows names.
#include <KtQtBase/Porting.h>

#include <gtest/gtest.h>

struct NameRow
{
    const char* name;
    const void* function;
    const void* library;
};

// NOLINTBEGIN(bugprone-macro-parentheses): names of functions.
#define ROW(name, other)                                                                           \
    {                                                                                              \
#name, reinterpret_cast < const void*>(&name), reinterpret_cast < const void*>(&other)     \
    }
// NOLINTEND(bugprone-macro-parentheses)

static const NameRow kNames[] = {
    ROW(CharNextW, ::CharNext),
    ROW(CopyFileW, ::CopyFile),
    ROW(GetCurrentDirectory, ::GetCurrentDirectoryW),
    ROW(GetModuleFileNameW, ::GetModuleFileName),
    ROW(GetModuleHandleW, ::GetModuleHandle),
    ROW(GetPrivateProfileIntW, ::GetPrivateProfileInt),
    ROW(GetPrivateProfileStringW, ::GetPrivateProfileString),
    ROW(GetTempFileNameW, ::GetTempFileName),
    ROW(LoadLibraryExW, ::LoadLibraryEx),
    ROW(LoadLibraryW, ::LoadLibrary),
    ROW(LoadStringW, ::LoadString),
    ROW(PostMessageW, ::PostMessage),
    ROW(SendMessageW, ::SendMessage),
    ROW(CompareStringW, ::CompareString),
    ROW(CreateFileW, ::CreateFile),
    ROW(CreateFontIndirect, ::CreateFontIndirectW),
    ROW(DeleteFileW, ::DeleteFile),
    ROW(DeviceCapabilities, ::DeviceCapabilitiesW),
    ROW(DocumentProperties, ::DocumentPropertiesW),
    ROW(EnumFontFamiliesExW, ::EnumFontFamiliesEx),
    ROW(EnumForms, ::EnumFormsW),
    ROW(ExtTextOutW, ::ExtTextOut),
    ROW(FindFirstChangeNotification, ::FindFirstChangeNotificationW),
    ROW(FindFirstFile, ::FindFirstFileW),
    ROW(FindNextFile, ::FindNextFileW),
    ROW(GetEnvironmentVariableW, ::GetEnvironmentVariable),
    ROW(GetNumberFormatW, ::GetNumberFormat),
    ROW(GetPrinter, ::GetPrinterW),
    ROW(GetPrivateProfileSectionNamesW, ::GetPrivateProfileSectionNames),
    ROW(GetUserName, ::GetUserNameW),
    ROW(GetVersionEx, ::GetVersionExW),
    ROW(MessageBoxW, ::MessageBox),
    ROW(OpenPrinter, ::OpenPrinterW),
    ROW(OutputDebugStringW, ::OutputDebugString),
    ROW(PathMatchSpecW, ::PathMatchSpec),
    ROW(RegisterClipboardFormat, ::RegisterClipboardFormatW),
    ROW(SHGetFolderPathW, ::SHGetFolderPath),
    ROW(SHGetSpecialFolderPathW, ::SHGetSpecialFolderPath),
    ROW(SetCurrentDirectory, ::SetCurrentDirectoryW),
    ROW(SetEnvironmentVariable, ::SetEnvironmentVariableW),
    ROW(WritePrivateProfileStringW, ::WritePrivateProfileString),
    ROW(::GetFileAttributesW, KtKernel32::GetFileAttributesW),
    ROW(::FindCloseChangeNotification, KtKernel32::FindCloseChangeNotification),
    ROW(::FindNextChangeNotification, KtKernel32::FindNextChangeNotification),
    ROW(::SetLastError, KtKernel32::SetLastError),
    ROW(::WaitForSingleObject, KtKernel32::WaitForSingleObject),
    ROW(::EnableWindow, KtUser32::EnableWindow),
    ROW(::GetCursor, KtUser32::GetCursor),
    ROW(::GetFocus, KtUser32::GetFocus),
    ROW(::SetCursor, KtUser32::SetCursor),
    ROW(::SetFocus, KtUser32::SetFocus),
};

TEST(PortingOtherNames, AreTheLibrarysOwnFunctions)
{
    for (const NameRow& row : kNames)
        EXPECT_EQ(row.function, row.library) << row.name;
}

TEST(PortingOtherNames, AreCalledLikeTheFunctions)
{
    wchar_t name[64] = {};
    EXPECT_EQ(GetTempFileNameW(L"/tmp/", L"kt", 1, name), 12U);
    EXPECT_STREQ(name, L"/tmp/kt1.tmp");
    EXPECT_EQ(FindFirstFile(L"/tmp/*", nullptr), nullptr);
    EXPECT_EQ(SetFocus(nullptr), nullptr);
    EXPECT_EQ(SendMessageW(nullptr, WM_USER, 0, 0), 0);
}
