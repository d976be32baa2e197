// SPDX-License-Identifier: MIT
#include "SymbolNames.h"

#include <llvm/Demangle/Demangle.h>

#include <string_view>

namespace ktqtbase::audit {

namespace {

bool dropStart(std::string& text, std::string_view start)
{
    if (text.compare(0, start.size(), start) != 0)
        return false;
    text.erase(0, start.size());
    return true;
}

bool isCpp(const std::string& symbol)
{
    return symbol.compare(0, 1, "?") == 0 || symbol.compare(0, 2, "_Z") == 0;
}

// Calls a function with each character outside template arguments, until it says to stop.
template<class Stop>
std::size_t findOutsideArguments(std::string_view text, Stop stop)
{
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (depth == 0 && stop(i))
            return i;
        depth += text[i] == '<' ? 1 : 0;
        depth -= text[i] == '>' && depth > 0 ? 1 : 0;
    }
    return text.size();
}

// Types, access and the like stand before the name, arguments behind it.
std::string_view nameIn(std::string_view text)
{
    std::size_t start = 0;
    const std::size_t end = findOutsideArguments(text, [&](std::size_t i) {
        if (text[i] == ' ')
            start = i + 1;
        return text[i] == '(';
    });
    return text.substr(start, end - start);
}

PlainName split(std::string_view name)
{
    std::size_t scopeEnd = 0;
    std::size_t start = 0;
    findOutsideArguments(name, [&](std::size_t i) {
        if (name.substr(i, 2) == "::") {
            scopeEnd = i;
            start = i + 2;
        }
        return false;
    });
    return {std::string(name.substr(0, scopeEnd)), std::string(name.substr(start))};
}

// The convention's sign before the name, and the size of its arguments or its version behind it.
std::string undecorated(std::string symbol)
{
    dropStart(symbol, "@");
    return symbol.substr(0, symbol.find('@'));
}

} // namespace

PlainName plainName(std::string symbol, bool hasUnderscore)
{
    dropStart(symbol, "__imp_");
    if (hasUnderscore)
        dropStart(symbol, "_");
    if (isCpp(symbol))
        return split(nameIn(llvm::demangle(symbol)));
    return {std::string(), undecorated(symbol)};
}

} // namespace ktqtbase::audit
