// SPDX-License-Identifier: MIT
#include "JsonReport.h"
#include "JsonText.h"
#include "Version.h"
#include "Words.h"

#include <cctype>
#include <cstdint>

namespace json = llvm::json;

namespace ktqtbase::audit {

namespace {

struct Rule
{
    Group group;
    const char* id;
    const char* name;
    const char* level;
    const char* text;
};

constexpr Rule kRules[] = {
    {Group::NotHere, "not-here", "NotHere", "error", "The library does not have this name."},
    {Group::Inert, "inert", "Inert", "warning", "The library's function does nothing."},
    {Group::Differs, "differs", "Differs", "note", "The library's function differs from Windows'."},
};

void writeText(json::OStream& out, llvm::StringRef key, const std::string& text)
{
    out.attributeObject(key, [&] { out.attribute("text", jsonText(text)); });
}

void writeRule(json::OStream& out, const Rule& rule)
{
    out.attribute("id", rule.id);
    out.attribute("name", rule.name);
    writeText(out, "shortDescription", rule.text);
    out.attributeObject("defaultConfiguration", [&] { out.attribute("level", rule.level); });
}

void writeTool(json::OStream& out)
{
    out.attributeObject("driver", [&] {
        out.attribute("name", "ktqt-audit");
        out.attribute("version", kVersion);
        out.attributeArray("rules", [&] {
            for (const Rule& rule : kRules)
                out.object([&] { writeRule(out, rule); });
        });
    });
}

bool isPlain(char ch)
{
    const auto byte = static_cast<unsigned char>(ch);
    return byte < 0x80 &&
           (std::isalnum(byte) || std::string_view("-._~/").find(ch) != std::string_view::npos);
}

// A path as a URI, relative as it is, or absolute.
std::string uriOf(const std::string& path)
{
    static const char* const digits = "0123456789ABCDEF";
    std::string uri = path.compare(0, 1, "/") == 0 ? "file://" : "";
    for (const char ch : path) {
        const auto byte = static_cast<unsigned char>(ch);
        if (isPlain(ch))
            uri += ch;
        else
            uri += {'%', digits[byte >> 4], digits[byte & 15]};
    }
    return uri;
}

std::string message(const Report& report, const Entry& entry)
{
    const std::string& advice = report.families.at(entry.family).advice;
    const bool isNotHere = entry.group == Group::NotHere;
    const std::string more = isNotHere ? advice : meaning(entry);
    return fullName(entry) +
           (isNotHere ? " is not here."
                      : " " + std::string(entry.group == Group::Inert ? "does nothing here."
                                                                      : "differs here.")) +
           (more.empty() ? "" : " " + more);
}

void writeArtifact(json::OStream& out, const std::string& path)
{
    out.attributeObject("artifactLocation", [&] { out.attribute("uri", uriOf(path)); });
}

void writeLocation(json::OStream& out, const Report& report, const Place& place)
{
    const ReadFile& file = report.files[place.file];
    out.attributeObject("physicalLocation", [&] {
        writeArtifact(out, file.path);
        if (place.line == 0)
            return;
        out.attributeObject("region", [&] {
            out.attribute("startLine", std::int64_t(place.line));
            out.attribute("startColumn", std::int64_t(place.column));
        });
    });
    if (!file.member.empty())
        out.attributeArray("logicalLocations",
                           [&] { out.object([&] { jsonAttribute(out, "name", file.member); }); });
}

void writeResult(json::OStream& out, const Report& report, const Rule& rule, const Use& use,
                 const Place& place)
{
    out.attribute("ruleId", rule.id);
    out.attribute("level", rule.level);
    writeText(out, "message", message(report, use.entry));
    out.attributeArray("locations",
                       [&] { out.object([&] { writeLocation(out, report, place); }); });
}

void writeResults(json::OStream& out, const Report& report, const Rule& rule)
{
    for (const Use& use : report.uses) {
        if (use.entry.group != rule.group || !shows(report, rule.group))
            continue;
        for (const Place& place : use.places)
            out.object([&] { writeResult(out, report, rule, use, place); });
    }
}

void writeNotification(json::OStream& out, const Problem& problem)
{
    out.attribute("level", "error");
    writeText(out, "message", problem.path + ": " + problem.reason);
    out.attributeArray("locations", [&] {
        out.object([&] {
            out.attributeObject("physicalLocation", [&] { writeArtifact(out, problem.path); });
        });
    });
}

void writeInvocation(json::OStream& out, const Report& report)
{
    out.attribute("executionSuccessful", report.problems.empty());
    out.attributeArray("toolExecutionNotifications", [&] {
        for (const Problem& problem : report.problems)
            out.object([&] { writeNotification(out, problem); });
    });
}

void writeRun(json::OStream& out, const Report& report)
{
    out.attributeObject("tool", [&] { writeTool(out); });
    out.attributeArray("invocations", [&] { out.object([&] { writeInvocation(out, report); }); });
    out.attribute("columnKind", "unicodeCodePoints");
    out.attributeArray("results", [&] {
        for (const Rule& rule : kRules)
            writeResults(out, report, rule);
    });
}

} // namespace

void writeSarifReport(const Report& report, llvm::raw_ostream& out)
{
    json::OStream stream(out);
    stream.object([&] {
        stream.attribute("$schema", "https://json.schemastore.org/sarif-2.1.0.json");
        stream.attribute("version", "2.1.0");
        stream.attributeArray("runs", [&] { stream.object([&] { writeRun(stream, report); }); });
    });
    out << "\n";
}

} // namespace ktqtbase::audit
