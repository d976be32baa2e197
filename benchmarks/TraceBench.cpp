// SPDX-License-Identifier: MIT
//
// What ktqt-trace adds to a call: the same function, through the recorder and past it.
#include "support/Rows.h"

#include <KtQtBase/windows/KernelStubs.h>

#include <memory>

#include <dlfcn.h>

namespace {

using bench::Row;
using Close = int(void*);

// The recorder of ktqt-trace, which here comes behind the library and so gets no calls by itself.
std::shared_ptr<void> recorder()
{
    return std::shared_ptr<void>(dlopen(KTQTBASE_BENCH_RECORDER, RTLD_NOW | RTLD_LOCAL), dlclose);
}

// Both sides call through a pointer, as a program calls a function of another library.
auto callsOf(std::shared_ptr<void> library, Close* close)
{
    return [library = std::move(library), close] { benchmark::DoNotOptimize(close(nullptr)); };
}

} // namespace

void bench::addTraceRows()
{
    Row("CloseHandle, traced", "1")
        .library([] {
            auto library = recorder();
            auto* const close = reinterpret_cast<Close*>(dlsym(library.get(), "_Z11CloseHandlePv"));
            return callsOf(std::move(library), close);
        })
        .reference("not traced", [] { return callsOf(nullptr, CloseHandle); });
}
