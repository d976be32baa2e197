// SPDX-License-Identifier: MIT
//
// What the tests of modules share.
#ifndef KTQTBASE_TESTS_SYSTEM_MODULETESTSUPPORT_H
#define KTQTBASE_TESTS_SYSTEM_MODULETESTSUPPORT_H

#include "support/TemporaryFolder.h"

#include <KtQtBase/windows/Modules.h>

#include <dlfcn.h>

namespace ktqtbase::test {

inline const std::filesystem::path kModules = KTQTBASE_MODULE_FOLDER;
const HINSTANCE kMainProgram = reinterpret_cast<HINSTANCE>(1);

// A module, given back at the end of a test.
class LoadedModule
{
public:
    explicit LoadedModule(HINSTANCE handle) : m_handle(handle) {}
    explicit LoadedModule(const std::filesystem::path& windowsName)
        : LoadedModule(LoadLibrary(wide(windowsName).c_str()))
    {}
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;
    ~LoadedModule() { FreeLibrary(m_handle); }

    HINSTANCE handle() const { return m_handle; }

private:
    HINSTANCE m_handle;
};

// Whether the loader holds the file of this very name.
inline bool isLoaded(const std::filesystem::path& file)
{
    void* const handle = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle;
}

} // namespace ktqtbase::test

#endif
