// SPDX-License-Identifier: MIT
#include "CsvReport.h"
#include "Words.h"

namespace ktqtbase::audit {

namespace {

std::string quoted(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char ch : text)
        quoted += ch == '"' ? "\"\"" : std::string(1, ch);
    return quoted + "\"";
}

// What the rows of one name begin and end with.
std::string start(const Report& report, const Use& use)
{
    const Entry& entry = use.entry;
    return quoted(fullName(entry)) + "," + quoted(entry.kind) + "," + title(entry.group) + "," +
           quoted(report.families.at(entry.family).title) + "," +
           std::to_string(use.places.size()) + ",";
}

std::string end(const Report& report, const Entry& entry)
{
    const bool isNotHere = entry.group == Group::NotHere;
    return quoted(isNotHere ? report.families.at(entry.family).advice : meaning(entry));
}

std::string lineText(const Place& place)
{
    return place.line == 0 ? std::string() : std::to_string(place.line);
}

void writeUse(const Report& report, const Use& use, llvm::raw_ostream& out)
{
    const std::string before = start(report, use);
    const std::string behind = end(report, use.entry);
    for (const Place& place : use.places) {
        const ReadFile& file = report.files[place.file];
        out << before << quoted(file.path) << "," << quoted(file.member) << "," << lineText(place)
            << "," << behind << "\r\n";
    }
}

} // namespace

void writeCsvReport(const Report& report, llvm::raw_ostream& out)
{
    out << "name,kind,group,family,uses,file,member,line,advice\r\n";
    for (const Use& use : report.uses) {
        if (shows(report, use.entry.group))
            writeUse(report, use, out);
    }
}

} // namespace ktqtbase::audit
