// SPDX-License-Identifier: MIT
//
// Shows what the library makes of file names as a Windows program writes them.
#include "HostVolume.h"
#include "NameReport.h"
#include "NameSource.h"
#include "ReportPrinter.h"

#include <algorithm>
#include <clocale>
#include <iostream>

namespace {

const char* const kUsage =
    "Usage: nameinfo [--json] NAME...\n"
    "       nameinfo [--json] --list FILE    a name a line; - is standard input\n";

constexpr int kBadInput = 2;

// The library converts names with LC_CTYPE; macOS and Linux know plain UTF-8 under two names.
void useUtf8()
{
    if (!std::setlocale(LC_CTYPE, "UTF-8"))
        std::setlocale(LC_CTYPE, "C.UTF-8");
}

struct Arguments
{
    NameSource source;
    bool json = false;
    bool understood = false;
};

Arguments readArguments(int count, char** values)
{
    Arguments arguments;
    for (int i = 1; i < count; ++i) {
        const std::string value = values[i];
        if (value == "--json") {
            arguments.json = true;
            continue;
        }
        arguments.understood = true;
        if (value == "--list" && i + 1 < count)
            arguments.source.addFile(values[++i]);
        else if (value == "--list")
            return {};
        else
            arguments.source.add(value, "argument " + std::to_string(i));
    }
    return arguments;
}

} // namespace

int main(int argc, char** argv)
{
    useUtf8();
    const Arguments arguments = readArguments(argc, argv);
    if (!arguments.understood) {
        std::cerr << kUsage;
        return kBadInput;
    }

    addHostVolumes();
    std::vector<Row> rows;
    const std::vector<std::wstring>& names = arguments.source.names;
    std::transform(names.begin(), names.end(), std::back_inserter(rows), describe);
    (arguments.json ? printJson : printTable)(std::cout, rows);

    for (const std::string& error : arguments.source.errors)
        std::cerr << "nameinfo: " << error << '\n';
    return arguments.source.errors.empty() ? 0 : kBadInput;
}
