// SPDX-License-Identifier: MIT
#include "Arguments.h"

#include <charconv>
#include <map>
#include <sstream>

namespace {

const std::map<std::string, bool Questions::*> kFlags = {
    {"--parent", &Questions::parent},
    {"--unique", &Questions::unique},
    {"--status", &Questions::status},
    {"--validate", &Questions::validate},
};

bool readText(std::optional<std::wstring>& text, const std::string& value)
{
    text.emplace();
    return decodeUtf8(value, *text);
}

bool readList(Arguments& arguments, const std::string& value)
{
    arguments.hasNames = true;
    arguments.source.addFile(value);
    return true;
}

bool readExtension(Arguments& arguments, const std::string& value)
{
    return readText(arguments.questions.extensions, value);
}

bool readMatch(Arguments& arguments, const std::string& value)
{
    return readText(arguments.questions.match, value);
}

bool readWidth(Arguments& arguments, const std::string& value)
{
    int width = 0;
    const char* const end = value.data() + value.size();
    const std::from_chars_result result = std::from_chars(value.data(), end, width);
    arguments.questions.width = width;
    return result.ec == std::errc() && result.ptr == end;
}

bool readColumns(Arguments& arguments, const std::string& value)
{
    std::istringstream headings(value);
    for (std::string heading; std::getline(headings, heading, ',');)
        arguments.columns.push_back(heading);
    return !arguments.columns.empty();
}

const std::map<std::string, bool (*)(Arguments&, const std::string&)> kValues = {
    {"--list", readList},   {"--extension", readExtension}, {"--match", readMatch},
    {"--width", readWidth}, {"--columns", readColumns},
};

bool readFlag(Arguments& arguments, const std::string& option)
{
    const auto flag = kFlags.find(option);
    if (flag != kFlags.end())
        arguments.questions.*flag->second = true;
    else if (option == "--json")
        arguments.json = true;
    else
        return false;
    return true;
}

bool isOption(const std::string& value)
{
    return value.compare(0, 2, "--") == 0;
}

// Whether every heading to show is one of the columns.
bool haveColumns(const Arguments& arguments)
{
    const Row row = describe(std::wstring(), arguments.questions);
    for (const std::string& heading : arguments.columns) {
        if (!findCell(row, heading))
            return false;
    }
    return true;
}

} // namespace

std::optional<Arguments> readArguments(int count, char** values)
{
    Arguments arguments;
    bool onlyNames = false;
    for (int i = 1; i < count; ++i) {
        const std::string value = values[i];
        const auto option = kValues.find(value);
        if (onlyNames || !isOption(value)) {
            arguments.hasNames = true;
            arguments.source.add(value, "argument " + std::to_string(i));
        } else if (value == "--") {
            onlyNames = true;
        } else if (option != kValues.end()) {
            if (++i == count || !option->second(arguments, values[i]))
                return std::nullopt;
        } else if (!readFlag(arguments, value)) {
            return std::nullopt;
        }
    }
    if (!arguments.hasNames || !haveColumns(arguments))
        return std::nullopt;
    return arguments;
}
