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

// Each with its function's own sentence. A mention is a use, and these mentions are not the host's.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

KTQTBASE_PORTING_INERT(CompareStringW, CompareString,
                       "returns 0, which is none of the CSTR_ results; the texts are not read.");
KTQTBASE_PORTING_INERT(CreateFileW, CreateFile, "returns null; no file is opened, created or cut.");
KTQTBASE_PORTING_INERT(CreateFontIndirect, CreateFontIndirectW,
                       "returns null; the record is not read.");
KTQTBASE_PORTING_INERT(DeleteFileW, DeleteFile, "returns 0; the file stays.");
KTQTBASE_PORTING_INERT(DeviceCapabilities, DeviceCapabilitiesW,
                       "returns 0 for every capability; the output is not written.");
KTQTBASE_PORTING_INERT(DocumentProperties, DocumentPropertiesW,
                       "returns 0; the settings are not written and no dialog is shown.");
KTQTBASE_PORTING_INERT(EnumFontFamiliesExW, EnumFontFamiliesEx,
                       "returns 0; the callback is never called.");
KTQTBASE_PORTING_INERT(EnumForms, EnumFormsW,
                       "returns 0; neither the buffer, the size needed nor the count is written.");
KTQTBASE_PORTING_INERT(ExtTextOutW, ExtTextOut, "returns 0; nothing is drawn.");
KTQTBASE_PORTING_INERT(FindFirstChangeNotification, FindFirstChangeNotificationW,
                       "returns null; nothing is watched.");
KTQTBASE_PORTING_INERT(FindFirstFile, FindFirstFileW, "returns null; the record is not written.");
KTQTBASE_PORTING_INERT(FindNextFile, FindNextFileW,
                       "returns 0, no further file; the record is not written.");
KTQTBASE_PORTING_INERT(GetEnvironmentVariableW, GetEnvironmentVariable,
                       "returns 0, so every variable reads as absent; the buffer is not written.");
KTQTBASE_PORTING_INERT(GetNumberFormatW, GetNumberFormat, "returns 0; the text is not written.");
KTQTBASE_PORTING_INERT(GetPrinter, GetPrinterW,
                       "returns 0; neither the buffer nor the size needed is written.");
KTQTBASE_PORTING_INERT(
    GetPrivateProfileSectionNamesW, GetPrivateProfileSectionNames,
    "returns 0 and reads nothing; read_profile_string without a section gives the names.");
KTQTBASE_PORTING_INERT(GetUserName, GetUserNameW,
                       "returns 0; neither the buffer nor its size is written.");
KTQTBASE_PORTING_INERT(GetVersionEx, GetVersionExW, "returns 0; the record is not filled.");
KTQTBASE_PORTING_INERT(
    MessageBoxW, MessageBox,
    "returns 0, which is none of the ID results; no box is shown. AfxMessageBox shows one.");
KTQTBASE_PORTING_INERT(OpenPrinter, OpenPrinterW, "returns 0; the handle is not written.");
KTQTBASE_PORTING_INERT(OutputDebugStringW, OutputDebugString,
                       "returns nothing; nothing is printed, to a console either.");
KTQTBASE_PORTING_INERT(
    PathMatchSpecW, PathMatchSpec,
    "returns 0, so that nothing matches, not even a name that equals the pattern.");
KTQTBASE_PORTING_INERT(RegisterClipboardFormat, RegisterClipboardFormatW,
                       "returns 0, which is no format; nothing is registered.");
KTQTBASE_PORTING_INERT(SHGetFolderPathW, SHGetFolderPath,
                       "returns 0; the path buffer is not written.");
KTQTBASE_PORTING_INERT(
    SHGetSpecialFolderPathW, SHGetSpecialFolderPath,
    "returns 0, a failure; the path buffer is not written and no folder is made.");
KTQTBASE_PORTING_INERT(SetCurrentDirectory, SetCurrentDirectoryW,
                       "returns 0; the working directory stays.");
KTQTBASE_PORTING_INERT(SetEnvironmentVariable, SetEnvironmentVariableW,
                       "returns 0; the environment stays as it is.");
KTQTBASE_PORTING_INERT(WritePrivateProfileStringW, WritePrivateProfileString,
                       "returns 1; no file is made or changed.");

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
