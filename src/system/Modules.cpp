// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Modules.h>

#include "platform/Platform.h"
#include "string/TextConversion.h"
#include "string/TextRoom.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

#include <strings.h>

namespace {

using ktqtbase::NarrowText;

constexpr std::size_t kPartRoom = 512;
constexpr std::uintptr_t kFirstNamePointer = 0x10000;
const HINSTANCE kMainProgram = reinterpret_cast<HINSTANCE>(1);

// Removes a final ".dll", in any case.
void dropDllSuffix(char* name)
{
    char* dot = std::strrchr(name, '.');
    if (dot && strcasecmp(dot, ".dll") == 0)
        *dot = '\0';
}

// Opens folder + "lib" + base + suffix, or nothing if that is too long.
HINSTANCE openMapped(const char* folder, std::size_t folderLength, const char* base)
{
    char fileName[ktqtbase::kTextRoom];
    const int length =
        std::snprintf(fileName, sizeof fileName, "%.*slib%s%s", static_cast<int>(folderLength),
                      folder, base, ktqtbase::platform::sharedLibrarySuffix());
    if (length < 0 || static_cast<std::size_t>(length) >= sizeof fileName)
        return nullptr;
    return static_cast<HINSTANCE>(ktqtbase::platform::openModule(fileName));
}

unsigned int mainProgramFileName(wchar_t* fileName, unsigned int size)
{
    char path[ktqtbase::kTextRoom] = {};
    std::uint32_t room = sizeof path;
    const int result = ktqtbase::platform::executablePath(path, &room);
    ktqtbase::widen(path, fileName, size);
    return static_cast<unsigned int>(result);
}

} // namespace

HINSTANCE LoadLibrary(const wchar_t* lpLibFileName)
{
    ktqtbase::useUtf8Locale();
    NarrowText name(lpLibFileName);
    if (!name.converted())
        return nullptr;
    dropDllSuffix(name.data());

    const char* const slash = std::strrchr(name.c_str(), '/');
    const char* const base = slash ? slash + 1 : name.c_str();
    const auto folderLength = static_cast<std::size_t>(base - name.c_str());
    if (folderLength >= kPartRoom || std::strlen(base) >= kPartRoom)
        return nullptr;
    return openMapped(name.c_str(), folderLength, base);
}

HINSTANCE LoadLibraryEx(const wchar_t* lpLibFileName, void*, unsigned int)
{
    return LoadLibrary(lpLibFileName);
}

bool FreeLibrary(HINSTANCE hLibModule)
{
    return ktqtbase::platform::closeModule(hLibModule) != 0;
}

void* GetProcAddress(HINSTANCE hModule, const char* lpProcName)
{
    if (reinterpret_cast<std::uintptr_t>(lpProcName) < kFirstNamePointer)
        return nullptr;
    return ktqtbase::platform::findSymbol(hModule, lpProcName);
}

HINSTANCE GetModuleHandle(const wchar_t* lpModuleName)
{
    if (!lpModuleName)
        return kMainProgram;
    ktqtbase::useUtf8Locale();
    NarrowText name(lpModuleName);
    if (!name.converted())
        return nullptr;
    dropDllSuffix(name.data());
    return openMapped("", 0, name.c_str());
}

unsigned int GetModuleFileName(HINSTANCE hModule, wchar_t* lpFilename, unsigned int nSize)
{
    if (!hModule || hModule == kMainProgram)
        return mainProgramFileName(lpFilename, nSize);
    const char* fileName = nullptr;
    const int found = ktqtbase::platform::moduleFileName(hModule, &fileName);
    if (found)
        ktqtbase::widen(fileName, lpFilename, nSize);
    return static_cast<unsigned int>(found);
}

HINSTANCE KtKernel32::LoadLibrary(const wchar_t* lpLibFileName)
{
    return ::LoadLibrary(lpLibFileName);
}

HINSTANCE KtKernel32::LoadLibraryEx(const wchar_t* lpLibFileName, void* hFile, unsigned int dwFlags)
{
    return ::LoadLibraryEx(lpLibFileName, hFile, dwFlags);
}

bool KtKernel32::FreeLibrary(HINSTANCE hLibModule)
{
    return ::FreeLibrary(hLibModule);
}

void* KtKernel32::GetProcAddress(HINSTANCE hModule, const char* lpProcName)
{
    return ::GetProcAddress(hModule, lpProcName);
}

HINSTANCE KtKernel32::GetModuleHandle(const wchar_t* lpModuleName)
{
    return ::GetModuleHandle(lpModuleName);
}

unsigned int KtKernel32::GetModuleFileName(HINSTANCE hModule, wchar_t* lpFilename,
                                           unsigned int nSize)
{
    return ::GetModuleFileName(hModule, lpFilename, nSize);
}
