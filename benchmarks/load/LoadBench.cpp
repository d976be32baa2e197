// SPDX-License-Identifier: MIT
//
// Loading and unloading the library itself, in a program of its own, since it must not be linked
// with it. What a host has loaded before is loaded here too: Qt's widgets and the OS-base library.
#include "support/Rows.h"

#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>

namespace {

// A module that stays loaded would make the next load a count of references.
void loadAndUnload(const char* fileName)
{
    void* const module = dlopen(fileName, RTLD_LAZY);
    if (!module || dlclose(module) != 0 || dlopen(fileName, RTLD_LAZY | RTLD_NOLOAD)) {
        std::fprintf(stderr, "%s does not load and unload\n", fileName);
        std::exit(1);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (!dlopen(KTQTBASE_BENCH_OSBASE, RTLD_LAZY))
        return 1;
    bench::Row("Load and unload", "1")
        .library([] { return [] { loadAndUnload(KTQTBASE_BENCH_LIBRARY); }; })
        .reference("small Qt module",
                   [] { return [] { loadAndUnload(KTQTBASE_BENCH_QT_MODULE); }; });

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
