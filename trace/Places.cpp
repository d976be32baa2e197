// SPDX-License-Identifier: MIT
#include "Places.h"

#include "Program.h"

#include <cstdlib>
#include <map>
#include <memory>
#include <sstream>

#include <cxxabi.h>

namespace {

using Indices = std::vector<size_t>;
using Callers = std::vector<const trace::Caller*>;

std::string demangled(const char* symbol)
{
    const std::unique_ptr<char, void (*)(void*)> name(
        abi::__cxa_demangle(symbol, nullptr, nullptr, nullptr), std::free);
    return name ? name.get() : symbol;
}

std::map<std::string, Indices> byModule(const Callers& callers)
{
    std::map<std::string, Indices> modules;
    for (size_t i = 0; i < callers.size(); ++i)
        if (callers[i]->module[0] != '\0')
            modules[callers[i]->module].push_back(i);
    return modules;
}

// The byte before the return address belongs to the call; the address itself to what comes next.
std::string addressOf(const trace::Caller& caller)
{
    std::ostringstream text;
    text << "0x" << std::hex << caller.offset - 1;
    return text.str();
}

// Reads "FILE:LINE" or "FILE:LINE (discriminator N)"; what is not known is "??" and "?" or 0.
void readLine(const std::string& text, trace::Place& place)
{
    const size_t colon = text.rfind(':');
    const int line = colon == std::string::npos ? 0 : std::atoi(text.c_str() + colon + 1);
    if (line > 0) {
        place.file = text.substr(0, colon);
        place.line = line;
    }
}

void lookUp(const std::string& module, const Indices& indices, const Callers& callers,
            std::vector<trace::Place>& places)
{
    std::vector<std::string> command = {"addr2line", "-C", "-f", "-e", module};
    for (const size_t i : indices)
        command.push_back(addressOf(*callers[i]));
    std::istringstream lines(trace::outputOf(command));
    std::string function;
    std::string source;
    for (const size_t i : indices) {
        if (!std::getline(lines, function) || !std::getline(lines, source))
            return;
        if (function != "??")
            places[i].function = function;
        readLine(source, places[i]);
    }
}

} // namespace

std::vector<trace::Place> trace::placesOf(const Callers& callers)
{
    std::vector<Place> places;
    for (const Caller* const caller : callers)
        places.push_back({demangled(caller->function), std::string(), 0});
    for (const auto& [module, indices] : byModule(callers))
        lookUp(module, indices, callers, places);
    return places;
}
