// SPDX-License-Identifier: MIT
//
// Shows how the library parses file names of a Windows program.
#include "Arguments.h"
#include "ReportPrinter.h"

#include <KtQtBase/PathName.h>
#include <KtQtBase/VolumeDescriptor.h>

#include <clocale>
#include <iostream>

namespace {

const char* const kUsage =
    "Usage: nameinfo [OPTION...] [--] NAME...\n"
    "       nameinfo [OPTION...] --list FILE    a name a line; - is standard input\n"
    "\n"
    "  --json              print JSON instead of a table\n"
    "  --columns A,B,...   print these columns only\n"
    "Each of these adds a column:\n"
    "  --parent            the folder that holds the name\n"
    "  --extension LIST    the name with an extension of a list such as \"txt;docx\"\n"
    "  --width N           the name cut to N characters for display; -1 for all of it\n"
    "  --match OTHER       whether the name denotes the same path as OTHER\n"
    "  --unique            the name, or where it is taken a free one beside it\n"
    "  --status            the sum of 1 exists, 2 readable, 4 writable, 8 folder writable\n"
    "  --validate          whether an NTFS volume takes the name\n";

constexpr int kBadInput = 2;

// The library converts names with LC_CTYPE; plain UTF-8 has different names on macOS and Linux.
void useUtf8()
{
    if (!std::setlocale(LC_CTYPE, "UTF-8"))
        std::setlocale(LC_CTYPE, "C.UTF-8");
}

// What a ported application does before it parses names: it registers its drives, and sets the
// folder of relative names.
void setUpNames()
{
    // The library owns its list's descriptors and deletes them when it is unloaded.
    for (const wchar_t* drive : {L"C:", L"D:"})
        volumeList.append(new CRbUiNTFSVolumeDescriptor(CStdStr<wchar_t>(drive)));
    ktuiSetCurrentDirPrefix();
}

Row answersFor(const std::wstring& name, const Arguments& arguments)
{
    const Row row = describe(name, arguments.questions);
    if (arguments.columns.empty())
        return row;
    Row picked;
    for (const std::string& heading : arguments.columns)
        picked.push_back(*findCell(row, heading));
    return picked;
}

} // namespace

int main(int argc, char** argv)
{
    useUtf8();
    setUpNames();
    const std::optional<Arguments> arguments = readArguments(argc, argv);
    if (!arguments) {
        std::cerr << kUsage;
        return kBadInput;
    }

    std::vector<Row> rows;
    for (const std::wstring& name : arguments->source.names)
        rows.push_back(answersFor(name, *arguments));
    (arguments->json ? printJson : printTable)(std::cout, rows);

    for (const std::string& error : arguments->source.errors)
        std::cerr << "nameinfo: " << error << '\n';
    return arguments->source.errors.empty() ? 0 : kBadInput;
}
