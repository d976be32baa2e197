// SPDX-License-Identifier: MIT
//
// Kernel functions without a counterpart here: a host links and runs, but they do nothing.
//
//     HANDLE found = FindFirstFileW(L"/tmp/*.txt", &description);
//     if (found == nullptr) { ... }                               // always
//
// No function here reads, writes or keeps anything through its arguments, so every argument may be
// null. None sets an error code. All may be called from any thread.
#ifndef KTQTBASE_WINDOWS_KERNELSTUBS_H
#define KTQTBASE_WINDOWS_KERNELSTUBS_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/windows/Records.h>
#include <KtQtBase/windows/Scalars.h>

// ---- Handles and files -------------------------------------------------------------------------

// Closes a handle.
// Inert: returns 0 and closes nothing.
// On Windows: releases the object; non-zero means success.
KTQTBASE_INERT("returns 0 and closes nothing.")
KTQTBASE_EXPORT int CloseHandle(void* hObject);

// Opens or creates a file.
// Inert: returns null; no file is opened, created or cut.
// Kept: the failure is null, not INVALID_HANDLE_VALUE; OpenReadOnly and OpenWriteOnly of a path
// object would give false otherwise.
// On Windows: returns a handle of the file, or INVALID_HANDLE_VALUE.
KTQTBASE_INERT("returns null; no file is opened, created or cut.")
KTQTBASE_EXPORT HANDLE CreateFile(const wchar_t* lpFileName, unsigned int dwDesiredAccess,
                                  unsigned int dwShareMode,
                                  SECURITY_ATTRIBUTES* lpSecurityAttributes,
                                  unsigned int dwCreationDisposition,
                                  unsigned int dwFlagsAndAttributes, void* hTemplateFile);

// Deletes a file.
// Inert: returns 0; the file stays.
// On Windows: removes the file; non-zero means success.
KTQTBASE_INERT("returns 0; the file stays.")
KTQTBASE_EXPORT int DeleteFile(const wchar_t* lpFileName);

// Reads bytes from a file.
// Inert: returns 0; neither the buffer nor the count of bytes read is written.
// On Windows: fills the buffer from the file position and writes the count.
KTQTBASE_INERT("returns 0; neither the buffer nor the count of bytes read is written.")
KTQTBASE_EXPORT int ReadFile(void* hFile, void* lpBuffer, unsigned int nNumberOfBytesToRead,
                             void* lpNumberOfBytesRead, OVERLAPPED* lpOverlapped);

// Writes bytes to a file.
// Inert: returns 0; nothing is transferred and the count of bytes written is not written.
// On Windows: stores the buffer at the file position and writes the count.
KTQTBASE_INERT("returns 0; nothing is transferred and the count of bytes written is not written.")
KTQTBASE_EXPORT int WriteFile(void* hFile, void* lpBuffer, unsigned int nNumberOfBytesToWrite,
                              void* lpNumberOfBytesWritten, OVERLAPPED* lpOverlapped);

// The size of a file in bytes.
// Inert: returns 0; the upper half of the size is not written.
// On Windows: returns the lower 32 bits, or INVALID_FILE_SIZE.
KTQTBASE_INERT("returns 0; the upper half of the size is not written.")
KTQTBASE_EXPORT unsigned int GetFileSize(void* hFile, unsigned int* lpFileSizeHigh);

// Moves the position of a file.
// Inert: returns 0; nothing moves and the upper half of the distance is not written.
// On Windows: returns the lower 32 bits of the new position, or INVALID_SET_FILE_POINTER.
KTQTBASE_INERT("returns 0; nothing moves and the upper half of the distance is not written.")
KTQTBASE_EXPORT unsigned int SetFilePointer(void* hFile, int lDistanceToMove,
                                            int* lpDistanceToMoveHigh, unsigned int dwMoveMethod);

// The times of a file's creation, last access and last change.
// Inert: returns 0; none of the three times is written.
// On Windows: writes those that are not null; non-zero means success.
KTQTBASE_INERT("returns 0; none of the three times is written.")
KTQTBASE_EXPORT int GetFileTime(void* hFile, FILETIME* lpCreationTime, FILETIME* lpLastAccessTime,
                                FILETIME* lpLastWriteTime);

// Converts a file time from UTC to local time.
// Inert: returns 0; the local time is not written.
// On Windows: writes the local time; non-zero means success.
KTQTBASE_INERT("returns 0; the local time is not written.")
KTQTBASE_EXPORT int FileTimeToLocalFileTime(const FILETIME* lpFileTime, FILETIME* lpLocalFileTime);

// Splits a file time into a date and a time of day.
// Inert: returns 0; the system time is not written.
// On Windows: writes the date and time; non-zero means success.
KTQTBASE_INERT("returns 0; the system time is not written.")
KTQTBASE_EXPORT int FileTimeToSystemTime(const FILETIME* lpFileTime, SYSTEMTIME* lpSystemTime);

// ---- Searching and watching folders ------------------------------------------------------------

// Begins a search for files by a pattern.
// Inert: returns null; the record is not written.
// Kept: the failure is null, not INVALID_HANDLE_VALUE. Part of the interface. Compare with both.
// On Windows: returns a search handle and describes the first file, or INVALID_HANDLE_VALUE.
KTQTBASE_INERT("returns null; the record is not written.")
KTQTBASE_EXPORT HANDLE FindFirstFileW(const wchar_t* lpFileName, WIN32_FIND_DATAW* lpFindFileData);

// Goes on with a search.
// Inert: returns 0, no further file; the record is not written.
// On Windows: describes the next file; non-zero means that there was one.
KTQTBASE_INERT("returns 0, no further file; the record is not written.")
KTQTBASE_EXPORT int FindNextFileW(void* hFindFile, WIN32_FIND_DATAW* lpFindFileData);

// Ends a search.
// Inert: returns 0 and releases nothing.
// On Windows: releases the search handle; non-zero means success.
KTQTBASE_INERT("returns 0 and releases nothing.")
KTQTBASE_EXPORT int FindClose(void* hFindFile);

// Begins to watch a folder.
// Inert: returns null; nothing is watched.
// On Windows: returns a handle that is signalled at a change, or INVALID_HANDLE_VALUE.
KTQTBASE_INERT("returns null; nothing is watched.")
KTQTBASE_EXPORT HANDLE FindFirstChangeNotificationW(const wchar_t* lpPathName, bool bWatchSubtree,
                                                    unsigned int dwNotifyFilter);

// ---- Locks -------------------------------------------------------------------------------------

// Prepares a lock.
// Inert: returns nothing; the record is not written.
// On Windows: fills the record, which is then ready to be entered.
KTQTBASE_INERT("returns nothing; the record is not written.")
KTQTBASE_EXPORT void InitializeCriticalSection(RTL_CRITICAL_SECTION* lpCriticalSection);

// Releases the resources of a lock.
// Inert: returns nothing; the record is not written.
// On Windows: releases the resources of a lock that nobody holds.
KTQTBASE_INERT("returns nothing; the record is not written.")
KTQTBASE_EXPORT void DeleteCriticalSection(RTL_CRITICAL_SECTION* lpCriticalSection);

// Takes a lock.
// Inert: returns nothing and never waits, so the lock protects nothing between threads.
// On Windows: waits until no other thread holds the lock.
KTQTBASE_INERT("returns nothing and never waits, so the lock protects nothing between threads.")
KTQTBASE_EXPORT void EnterCriticalSection(RTL_CRITICAL_SECTION* lpCriticalSection);

// Releases a lock.
// Inert: returns nothing; the record is not written.
// On Windows: lets one waiting thread in.
KTQTBASE_INERT("returns nothing; the record is not written.")
KTQTBASE_EXPORT void LeaveCriticalSection(RTL_CRITICAL_SECTION* lpCriticalSection);

// ---- Process and system ------------------------------------------------------------------------

// Gives a text to a debugger.
// Inert: returns nothing; nothing is printed, to a console either.
// On Windows: shows the text in the debugger, if one is attached.
KTQTBASE_INERT("returns nothing; nothing is printed, to a console either.")
KTQTBASE_EXPORT void OutputDebugString(const wchar_t* lpOutputString);

// Tests whether memory cannot be read.
// Inert: returns 0, so every pointer counts as readable, even null; the memory is not touched.
// On Windows: non-zero means that at least one byte cannot be read.
KTQTBASE_INERT("returns 0, so every pointer counts as readable, even null; the memory is not "
               "touched.")
KTQTBASE_EXPORT int IsBadReadPtr(const void* lp, unsigned long long ucb);

// The value of an environment variable.
// Inert: returns 0, so every variable reads as absent; the buffer is not written.
// On Windows: writes the value and returns its length, or the size needed.
KTQTBASE_INERT("returns 0, so every variable reads as absent; the buffer is not written.")
KTQTBASE_EXPORT unsigned int GetEnvironmentVariable(const wchar_t* lpName, wchar_t* lpBuffer,
                                                    unsigned int nSize);

// Sets or removes an environment variable.
// Inert: returns 0; the environment stays as it is.
// On Windows: changes the environment of the process; non-zero means success.
KTQTBASE_INERT("returns 0; the environment stays as it is.")
KTQTBASE_EXPORT int SetEnvironmentVariableW(const wchar_t* lpName, const wchar_t* lpValue);

// The version of the system, as one number.
// Inert: returns 0.
// On Windows: the major version in bits 0 to 7, the minor one in 8 to 15, the build above.
KTQTBASE_INERT("returns 0.")
KTQTBASE_EXPORT unsigned int GetVersion();

// The version of the system, as a record.
// Inert: returns 0; the record is not filled.
// On Windows: fills the record; non-zero means success.
KTQTBASE_INERT("returns 0; the record is not filled.")
KTQTBASE_EXPORT int GetVersionExW(OSVERSIONINFOW* lpVersionInformation);

// The name of the user; Windows keeps it in its security library, not in the kernel.
// Inert: returns 0; neither the buffer nor its size is written.
// On Windows: writes the name and its length with the NUL; non-zero means success.
KTQTBASE_INERT("returns 0; neither the buffer nor its size is written.")
KTQTBASE_EXPORT int GetUserNameW(wchar_t* lpBuffer, unsigned int* pcbBuffer);

// Compares two texts by the rules of a language.
// Inert: returns 0, which is none of the CSTR_ results; the texts are not read.
// On Windows: CSTR_LESS_THAN, CSTR_EQUAL or CSTR_GREATER_THAN; 0 is a failure.
KTQTBASE_INERT("returns 0, which is none of the CSTR_ results; the texts are not read.")
KTQTBASE_EXPORT int CompareString(unsigned int Locale, unsigned int dwCmpFlags,
                                  const wchar_t* lpString1, int cchCount1, const wchar_t* lpString2,
                                  int cchCount2);

// Formats a number by the rules of a locale.
// Inert: returns 0; the text is not written.
// On Windows: the number is written, and its length returned.
KTQTBASE_INERT("returns 0; the text is not written.")
KTQTBASE_EXPORT int GetNumberFormat(unsigned int Locale, unsigned int dwFlags,
                                    const wchar_t* lpValue, const NUMBERFMTW* lpFormat,
                                    wchar_t* lpNumberStr, int cchNumber);

// ---- The second set ----------------------------------------------------------------------------

// CloseHandle and GetFileSize are global, too, and do the same there. The other functions are in
// this namespace only: a host writes KtKernel32::WaitForSingleObject.
namespace KtKernel32 {

// Closes a handle.
// Inert: returns 0 and closes nothing.
// On Windows: releases the object; non-zero means success.
KTQTBASE_INERT("returns 0 and closes nothing.")
KTQTBASE_EXPORT int CloseHandle(void* hObject);

// The size of a file in bytes.
// Inert: returns what the global GetFileSize does, 0; the upper half is not written.
// On Windows: returns the lower 32 bits, or INVALID_FILE_SIZE.
KTQTBASE_INERT("returns what the global GetFileSize does, 0; the upper half is not written.")
KTQTBASE_EXPORT unsigned int GetFileSize(void* hFile, unsigned int* lpFileSizeHigh);

// Ends the watching of a folder.
// Inert: returns 0 and releases nothing.
// On Windows: releases the handle; non-zero means success.
KTQTBASE_INERT("returns 0 and releases nothing.")
KTQTBASE_EXPORT int FindCloseChangeNotification(void* hChangeHandle);

// Waits for the next change in a watched folder.
// Inert: returns 0; nothing is watched.
// On Windows: makes the handle ready for the next change; non-zero means success.
KTQTBASE_INERT("returns 0; nothing is watched.")
KTQTBASE_EXPORT int FindNextChangeNotification(void* hChangeHandle);

// Waits until an object is signalled.
//   dwMilliseconds    ignored: the call returns at once, for INFINITE too
// Inert: returns 0, which reads as WAIT_OBJECT_0, "signalled".
// On Windows: waits, and returns WAIT_OBJECT_0, WAIT_TIMEOUT, WAIT_ABANDONED or WAIT_FAILED.
KTQTBASE_INERT("returns 0, which reads as WAIT_OBJECT_0, \"signalled\".")
KTQTBASE_EXPORT unsigned int WaitForSingleObject(void* hHandle, unsigned int dwMilliseconds);

// Sets the calling thread's last error.
// Inert: returns nothing; neither GetLastError nor errno changes.
// Kept: errno is the only last error; a host that sets one would lose libc's.
// On Windows: GetLastError returns the value afterwards.
KTQTBASE_INERT("returns nothing; neither GetLastError nor errno changes.")
KTQTBASE_EXPORT void SetLastError(unsigned int dwErrCode);

} // namespace KtKernel32

#endif
