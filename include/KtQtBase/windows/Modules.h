// SPDX-License-Identifier: MIT
//
// Modules: shared libraries under their Windows names.
//
//     HINSTANCE module = LoadLibrary(L"plugins/shapes.dll");      // plugins/libshapes.so
//     void* function = module ? GetProcAddress(module, "CreateShape") : nullptr;
//     FreeLibrary(module);
//
// A module handle is the loader's own handle. Two values are special: null, and 1, which stands for
// the main program. Neither names a module to GetProcAddress or FreeLibrary.
//
// A module name is converted with the LC_CTYPE "UTF-8", which LoadLibrary and GetModuleHandle set
// for the whole process, for good; other conversions of the library rely on it. Call them from one
// thread. The suffix of a shared library is .dylib on macOS and .so on Linux; the rows show .so.
#ifndef KTQTBASE_WINDOWS_MODULES_H
#define KTQTBASE_WINDOWS_MODULES_H

#include <KtQtBase/Export.h>
#include <KtQtBase/windows/Scalars.h>

// Loads a module.
//   lpLibFileName    in: its Windows name; a final ".dll" in any case is dropped, and "lib" and the
//                    platform's suffix go around the part behind the last slash
// Result: the handle, or null where the loader refuses the module. Each success adds a reference.
// Also null: a null name, one that does not convert to UTF-8, a folder or a base name of 512 bytes
// or more, a file name of 1,024 bytes or more; the loader is not asked then.
//   L"foo.dll", L"foo.DLL", L"foo"   => libfoo.so, by the loader's own search
//   L"plugins/foo.dll"               => plugins/libfoo.so
//   L"/opt/x/Bar.DLL"                => /opt/x/libBar.so
//   L"foo.so"                        => libfoo.so.so
//   L"foo.dll.bak"                   => libfoo.dll.bak.so
//   L"dir/"                          => dir/lib.so
//   L"dir\\foo.dll"                  => libdir\foo.so, since a backslash is no separator
// On Windows: the name is used as it is, and an error code is set.
KTQTBASE_EXPORT HINSTANCE LoadLibrary(const wchar_t* lpLibFileName);

// Loads a module, as LoadLibrary does.
//   hFile, dwFlags    ignored
// On Windows: the flags choose how the module is loaded.
KTQTBASE_EXPORT HINSTANCE LoadLibraryEx(const wchar_t* lpLibFileName, void* hFile,
                                        unsigned int dwFlags);

// Gives a reference to a module back.
// Result: false when the module was released, true when releasing failed, as it does for null, 1
// and -1.
// Kept: the sense is the loader's (0 is success), and hosts do not rely on the result.
// On Windows: non-zero means that the module was released.
KTQTBASE_EXPORT bool FreeLibrary(HINSTANCE hLibModule);

// Finds a function or an object in a module.
//   hModule       in: a handle from LoadLibrary or GetModuleHandle
//   lpProcName    in: its name; a pointer value below 0x10000 is an ordinal and finds nothing
// Result: its address, or null. A null handle and the handle 1 find nothing.
// On Windows: ordinals are looked up, and the handle of the main program is searched.
KTQTBASE_EXPORT void* GetProcAddress(HINSTANCE hModule, const char* lpProcName);

// The handle of a module, which is loaded where it is not loaded yet.
//   lpModuleName    in: its Windows name, or null for the main program
// Result: 1 for a null name; else a handle with a reference of its own, or null. A name that does
// not convert, or has 1,024 bytes or more with what is added to it, gives null.
//   L"foo.dll"       => libfoo.so
//   L"dir/foo.dll"   => libdir/foo.so
// Kept: the name is not split at a slash as LoadLibrary does; hosts pass base names.
// On Windows: nothing is loaded and no reference added.
KTQTBASE_EXPORT HINSTANCE GetModuleHandle(const wchar_t* lpModuleName);

// The file name of a module.
//   hModule       in: null or 1 for the main program; any other value is taken as an address inside
//                 a module
//   lpFilename    out: the name; a name of nSize characters or more is cut and not terminated;
//                 null writes nothing
//   nSize         in: the room in characters; 0 writes nothing
// Result, main program: 0 when the path was obtained; 0xFFFFFFFF when it has 1,024 bytes or more,
// with the empty string written. Result, others: non-zero when the loader knows the address; else
// 0, and lpFilename is left untouched. A path that does not convert is given up to its first such
// byte, terminated.
// Kept: the result is never a length, and 0 means success for the main program only; hosts look at
// the buffer. A handle of the GNU loader is no address inside its module, so that on Linux most
// handles give 0.
// On Windows: the number of characters.
KTQTBASE_EXPORT unsigned int GetModuleFileName(HINSTANCE hModule, wchar_t* lpFilename,
                                               unsigned int nSize);

// The same six functions; each calls the global one of its name.
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
