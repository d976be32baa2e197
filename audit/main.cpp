// SPDX-License-Identifier: MIT
#include "Program.h"
#include "Style.h"
#include "Version.h"

#include <exception>
#include <iostream>

using namespace ktqtbase::audit;

namespace {

constexpr int kUnreadable = 2;

int runFor(const Arguments& arguments)
{
    if (!arguments.help && !arguments.version)
        return run(arguments);
    std::cout << (arguments.help ? std::string(kUsage)
                                 : std::string("ktqt-audit ") + kVersion + "\n");
    return std::cout.flush() ? 0 : kUnreadable;
}

} // namespace

int main(int count, char** values)
{
    try {
        return runFor(readArguments(count, values));
    } catch (const ArgumentError& error) {
        std::cerr << "ktqt-audit: " << printable(error.what()) << "; see --help\n";
    } catch (const std::exception& error) {
        std::cerr << "ktqt-audit: " << printable(error.what()) << "\n";
    }
    return kUnreadable;
}
