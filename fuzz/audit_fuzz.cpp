// SPDX-License-Identifier: MIT
//
// Reads the input as a binary, and what it says its names are. LLVM's own readers are not
// instrumented and not all of their crashes are of interest: ktqt-audit reads in a process of its own.
#include "BinaryFile.h"
#include "SymbolNames.h"

#include <cstddef>
#include <cstdint>

using namespace ktqtbase::audit;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    if (!isBinary(content))
        return -1;
    const auto name = [](const Symbol& symbol) { plainName(symbol.name, symbol.hasUnderscore); };
    const auto problem = [](const std::string&, const std::string&) {};
    readBinary(content, std::string(), {name, problem});
    return 0;
}
