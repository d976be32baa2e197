// SPDX-License-Identifier: MIT
//
// Modules that are loaded already: the library's calls beside the loader's.
#include "support/Fixture.h"
#include "support/Rows.h"

#include <KtQtBase/windows/Modules.h>

#include <memory>

#include <dlfcn.h>

namespace {

using bench::Row;

// This program's own module folder; the file's name is as the library spells it.
const std::string kWindowsName = std::string(KTQTBASE_BENCH_MODULES) + "/benchmodule.dll";
const std::string kFileName = std::string(KTQTBASE_BENCH_MODULES) + "/libbenchmodule.so";

// Keeps the module loaded while its references are counted up and down.
std::shared_ptr<void> loaded()
{
    return std::shared_ptr<void>(dlopen(kFileName.c_str(), RTLD_LAZY), dlclose);
}

void addLoad()
{
    Row("LoadLibrary, loaded", "1")
        .library([] {
            return [module = loaded(), name = bench::wide(kWindowsName)] {
                FreeLibrary(LoadLibrary(name.c_str()));
            };
        })
        .reference("dlopen", [] {
            return [module = loaded()] { dlclose(dlopen(kFileName.c_str(), RTLD_LAZY)); };
        });
}

void addLookup()
{
    Row("GetProcAddress", "1")
        .library([] {
            return [module = loaded()] {
                const auto handle = static_cast<HINSTANCE>(module.get());
                benchmark::DoNotOptimize(GetProcAddress(handle, "loadstring"));
            };
        })
        .reference("dlsym", [] {
            return [module = loaded()] {
                benchmark::DoNotOptimize(dlsym(module.get(), "loadstring"));
            };
        });
}

} // namespace

void bench::addModuleRows()
{
    addLoad();
    addLookup();
}
