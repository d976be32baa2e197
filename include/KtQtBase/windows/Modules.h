// SPDX-License-Identifier: MIT
//
// Modules: shared libraries under their Windows names.
//
//     HINSTANCE module = LoadLibrary(L"plugins/shapes.dll");      // plugins/libshapes.so
//     void* function = module ? GetProcAddress(module, "CreateShape") : nullptr;
//     FreeLibrary(module);
//
// A module handle is the loader's own handle. Two values are special: null, and 1, which stands for
// the main program. For GetProcAddress and FreeLibrary neither is a module. They and LoadString do
// not test other values: never pass them a handle that was released, or a number that is no handle.
//
// A module name is converted with the LC_CTYPE "UTF-8", which LoadLibrary and GetModuleHandle (not of a null name) set
// permanently for the whole process; other conversions of the library rely on it. Call both from
// one thread. The suffix of a shared library is .dylib on macOS and .so on Linux, as in the rows.
#ifndef KTQTBASE_WINDOWS_MODULES_H
#define KTQTBASE_WINDOWS_MODULES_H

#include <KtQtBase/Export.h>
#include <KtQtBase/windows/Scalars.h>

// Loads a module.
//   lpLibFileName    in: its Windows name. A final ".dll", in any case, is removed; "lib" is put
//                    before the part after the last slash, and the platform's suffix at the end.
// Result: the handle, or null if the loader refuses the module. Each success adds a reference.
// Also null, without asking the loader: for a null name, one that does not convert to UTF-8, a
// folder or a last part of 512 bytes or more, a file name of 1,024 bytes or more.
//   L"foo.dll", L"foo.DLL", L"foo"   => libfoo.so, by the loader's own search
//   L"plugins/foo.dll"               => plugins/libfoo.so
//   L"/opt/x/Bar.DLL"                => /opt/x/libBar.so
//   L"foo.so"                        => libfoo.so.so
//   L"foo.dll.bak"                   => libfoo.dll.bak.so
//   L"dir/"                          => dir/lib.so
//   L"dir\\foo.dll"                  => libdir\foo.so, since a backslash is no separator
//   L"foo.dll "                      => libfoo.dll .so, since a blank at the end counts
// On Windows: only a missing ".dll" is added, a backslash separates folders, blanks at the end are
// dropped, and an error code is set.
KTQTBASE_EXPORT HINSTANCE LoadLibrary(const wchar_t* lpLibFileName);

// Loads a module, as LoadLibrary does.
//   hFile, dwFlags    ignored
// On Windows: the flags choose how the module is loaded.
KTQTBASE_EXPORT HINSTANCE LoadLibraryEx(const wchar_t* lpLibFileName, void* hFile,
                                        unsigned int dwFlags);

// Releases a reference to a module.
// Result: false if it was released, true if that failed, as it does for null, 1 and -1.
// Kept: false is success, like the loader's 0; a host that tests the result would see the opposite.
// On Windows: non-zero means that the module was released; a wrong handle gives 0.
KTQTBASE_EXPORT bool FreeLibrary(HINSTANCE hLibModule);

// Finds a function or an object in a module.
//   hModule       in: a handle from LoadLibrary or GetModuleHandle, or -1
//   lpProcName    in: its name; a pointer value below 0x10000 is an ordinal and finds nothing
// Result: its address, or null. A null handle and the handle 1 find nothing. The handle -1 looks in
// the libraries that the loader searches after this one, and not in this library or the program.
// On Windows: ordinals are looked up, functions of the main program are found, and a wrong handle
// gives null.
KTQTBASE_EXPORT void* GetProcAddress(HINSTANCE hModule, const char* lpProcName);

// The handle of a module, which is loaded if it is not loaded yet.
//   lpModuleName    in: its Windows name, or null for the main program
// Result: 1 for a null name; else a handle with a reference of its own, or null. Null for a name
// that does not convert, or has 1,024 bytes or more with what is added to it.
//   L"foo.dll"       => libfoo.so
//   L"dir/foo.dll"   => libdir/foo.so
// Kept: unlike LoadLibrary, it does not split the name at a slash; another file would be loaded
// otherwise.
// On Windows: nothing is loaded and no reference is added.
KTQTBASE_EXPORT HINSTANCE GetModuleHandle(const wchar_t* lpModuleName);

// The file name of a module.
//   hModule       in: null or 1 for the main program; any other value is taken as an address inside
//                 a module
//   lpFilename    out: the name; a name of nSize characters or more is cut and not terminated;
//                 null writes nothing
//   nSize         in: the room in characters; 0 writes nothing
// Result, main program: 0 if the path is known; 0xFFFFFFFF if it has 1,024 bytes or more, with the
// empty string written. Result, others: non-zero if the loader knows the address; else 0, and
// lpFilename is untouched. A path that does not convert is cut, and terminated, at the first byte
// that does not. A handle of the GNU loader is not an address inside its module, so that on Linux
// most handles give 0.
// Kept: the result is never a length, and 0 means success for the main program only. Part of the
// interface. Test the buffer.
// On Windows: the number of characters.
KTQTBASE_EXPORT unsigned int GetModuleFileName(HINSTANCE hModule, wchar_t* lpFilename,
                                               unsigned int nSize);

// The same six functions; each calls the global function of its name.
namespace KtKernel32 {

KTQTBASE_EXPORT HINSTANCE LoadLibrary(const wchar_t* lpLibFileName);
KTQTBASE_EXPORT HINSTANCE LoadLibraryEx(const wchar_t* lpLibFileName, void* hFile,
                                        unsigned int dwFlags);
KTQTBASE_EXPORT bool FreeLibrary(HINSTANCE hLibModule);
KTQTBASE_EXPORT void* GetProcAddress(HINSTANCE hModule, const char* lpProcName);
KTQTBASE_EXPORT HINSTANCE GetModuleHandle(const wchar_t* lpModuleName);
KTQTBASE_EXPORT unsigned int GetModuleFileName(HINSTANCE hModule, wchar_t* lpFilename,
                                               unsigned int nSize);

} // namespace KtKernel32

#endif
