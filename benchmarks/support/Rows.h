// SPDX-License-Identifier: MIT
//
// Rows of the benchmark table. A row is one work at one size, done by the library and by one or
// more references in the same program:
//
//     Row("Find", "60")
//         .library([] { return [s = text(60)] { benchmark::DoNotOptimize(s.Find(L"x")); }; })
//         .reference("std::wstring", [] { ... });
//
// Each takes a function that prepares the work, untimed, and answers with the work itself, which
// the harness calls once an iteration. A benchmark is known as "work|size|who"; the goals name it
// so.
#ifndef KTQTBASE_BENCHMARKS_ROWS_H
#define KTQTBASE_BENCHMARKS_ROWS_H

#include <benchmark/benchmark.h>

#include <string>
#include <utility>

namespace bench {

class Row
{
public:
    Row(std::string work, std::string size) : m_name(std::move(work) + '|' + std::move(size) + '|')
    {}

    template<class Prepare>
    const Row& library(Prepare prepare) const
    {
        return reference("library", prepare);
    }

    template<class Prepare>
    const Row& reference(const char* who, Prepare prepare) const
    {
        benchmark::RegisterBenchmark((m_name + who).c_str(), [prepare](benchmark::State& state) {
            auto work = prepare();
            for (auto _ : state) {
                work();
                benchmark::ClobberMemory();
            }
        });
        return *this;
    }

private:
    std::string m_name;
};

// The families, one source each.
void addStringRows();
void addPathRows();
void addPathQueryRows();
void addVolumeRows();
void addModuleRows();
void addFileRows();
void addProfileRows();
void addRegistryRows();
void addDrawingRows();
void addMessageRows();
void addTraceRows();

} // namespace bench

#endif
