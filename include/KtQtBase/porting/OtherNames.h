// SPDX-License-Identifier: MIT
//
// Functions of this library under their other Windows names: with W where the library's name has
// none, without it where it has one, and at global scope where it is in a namespace only.
//
//     HINSTANCE module = LoadLibraryW(L"shapes.dll"); // LoadLibrary
//     wchar_t folder[1024] = {};
//     GetCurrentDirectory(1024, folder);              // GetCurrentDirectoryW
//
// On Windows one of the two is a macro. Here it is a reference to the function, so that its address
// is the function's own. Arguments and results are described where the function is declared.
#ifndef KTQTBASE_PORTING_OTHERNAMES_H
#define KTQTBASE_PORTING_OTHERNAMES_H

#include <KtQtBase/Messages.h>
#include <KtQtBase/WindowsFunctions.h>

#include <KtQtBase/porting/HostMacros.h> // sets the host's macros aside

// ---- Functions that work -----------------------------------------------------------------------

KTQTBASE_PORTING_FUNCTION(CharNextW, CharNext);
KTQTBASE_PORTING_FUNCTION(CopyFileW, CopyFile);
KTQTBASE_PORTING_FUNCTION(GetCurrentDirectory, GetCurrentDirectoryW);
KTQTBASE_PORTING_FUNCTION(GetModuleFileNameW, GetModuleFileName);
KTQTBASE_PORTING_FUNCTION(GetModuleHandleW, GetModuleHandle);
KTQTBASE_PORTING_FUNCTION(GetPrivateProfileIntW, GetPrivateProfileInt);
KTQTBASE_PORTING_FUNCTION(GetPrivateProfileStringW, GetPrivateProfileString);
KTQTBASE_PORTING_FUNCTION(GetTempFileNameW, GetTempFileName);
KTQTBASE_PORTING_FUNCTION(LoadLibraryExW, LoadLibraryEx);
KTQTBASE_PORTING_FUNCTION(LoadLibraryW, LoadLibrary);
KTQTBASE_PORTING_FUNCTION(LoadStringW, LoadString);
KTQTBASE_PORTING_FUNCTION(PostMessageW, PostMessage);
KTQTBASE_PORTING_FUNCTION(SendMessageW, SendMessage);

// ---- Functions that do nothing here ------------------------------------------------------------

// A mention is a use, and these mentions are not the host's.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

KTQTBASE_PORTING_INERT(CompareStringW, CompareString);
KTQTBASE_PORTING_INERT(CreateFileW, CreateFile);
KTQTBASE_PORTING_INERT(CreateFontIndirect, CreateFontIndirectW);
KTQTBASE_PORTING_INERT(DeleteFileW, DeleteFile);
KTQTBASE_PORTING_INERT(DeviceCapabilities, DeviceCapabilitiesW);
KTQTBASE_PORTING_INERT(DocumentProperties, DocumentPropertiesW);
KTQTBASE_PORTING_INERT(EnumFontFamiliesExW, EnumFontFamiliesEx);
KTQTBASE_PORTING_INERT(EnumForms, EnumFormsW);
KTQTBASE_PORTING_INERT(ExtTextOutW, ExtTextOut);
KTQTBASE_PORTING_INERT(FindFirstChangeNotification, FindFirstChangeNotificationW);
KTQTBASE_PORTING_INERT(FindFirstFile, FindFirstFileW);
KTQTBASE_PORTING_INERT(FindNextFile, FindNextFileW);
KTQTBASE_PORTING_INERT(GetEnvironmentVariableW, GetEnvironmentVariable);
KTQTBASE_PORTING_INERT(GetNumberFormatW, GetNumberFormat);
KTQTBASE_PORTING_INERT(GetPrinter, GetPrinterW);
KTQTBASE_PORTING_INERT(GetPrivateProfileSectionNamesW, GetPrivateProfileSectionNames);
KTQTBASE_PORTING_INERT(GetUserName, GetUserNameW);
KTQTBASE_PORTING_INERT(GetVersionEx, GetVersionExW);
KTQTBASE_PORTING_INERT(MessageBoxW, MessageBox);
KTQTBASE_PORTING_INERT(OpenPrinter, OpenPrinterW);
KTQTBASE_PORTING_INERT(OutputDebugStringW, OutputDebugString);
KTQTBASE_PORTING_INERT(PathMatchSpecW, PathMatchSpec);
KTQTBASE_PORTING_INERT(RegisterClipboardFormat, RegisterClipboardFormatW);
KTQTBASE_PORTING_INERT(SHGetFolderPathW, SHGetFolderPath);
KTQTBASE_PORTING_INERT(SHGetSpecialFolderPathW, SHGetSpecialFolderPath);
KTQTBASE_PORTING_INERT(SetCurrentDirectory, SetCurrentDirectoryW);
KTQTBASE_PORTING_INERT(SetEnvironmentVariable, SetEnvironmentVariableW);
KTQTBASE_PORTING_INERT(WritePrivateProfileStringW, WritePrivateProfileString);

#pragma GCC diagnostic pop

// ---- Functions of the namespaces ---------------------------------------------------------------

// Of these only GetFileAttributesW works; the others are inert.
KTQTBASE_PORTING_USING(KtKernel32, GetFileAttributesW);
KTQTBASE_PORTING_USING(KtKernel32, FindCloseChangeNotification);
KTQTBASE_PORTING_USING(KtKernel32, FindNextChangeNotification);
KTQTBASE_PORTING_USING(KtKernel32, SetLastError);
KTQTBASE_PORTING_USING(KtKernel32, WaitForSingleObject);
KTQTBASE_PORTING_USING(KtUser32, EnableWindow);
KTQTBASE_PORTING_USING(KtUser32, GetCursor);
KTQTBASE_PORTING_USING(KtUser32, GetFocus);
KTQTBASE_PORTING_USING(KtUser32, SetCursor);
KTQTBASE_PORTING_USING(KtUser32, SetFocus);

#include <KtQtBase/porting/HostMacros.h> // gives them back

#endif
