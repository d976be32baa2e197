// SPDX-License-Identifier: MIT
#include "JsonReport.h"
#include "JsonText.h"
#include "Version.h"

#include <cstdint>

namespace json = llvm::json;

namespace ktqtbase::audit {

namespace {

llvm::StringRef reference(std::string_view text)
{
    return {text.data(), text.size()};
}

std::int64_t integer(std::size_t value)
{
    return static_cast<std::int64_t>(value);
}

void writeCount(json::OStream& out, llvm::StringRef key, const Count& count)
{
    out.attributeObject(key, [&] {
        out.attribute("used", integer(count.total()));
        for (const Group group : kGroups)
            out.attribute(reference(wordOf(group)), integer(count.of(group)));
    });
}

void writeFamilies(json::OStream& out, const Report& report, const Summary& summary)
{
    for (const auto& [id, count] : summary.families) {
        out.object([&, &id = id, &count = count] {
            const FamilyText& text = report.families.at(id);
            out.attribute("family", jsonText(id));
            jsonAttribute(out, "title", text.title);
            jsonAttribute(out, "advice", text.advice);
            writeCount(out, "names", count);
        });
    }
}

using PlaceIterator = std::vector<Place>::const_iterator;

// The places in one file, whose name is written once.
void writeFile(json::OStream& out, const Report& report, PlaceIterator& place, PlaceIterator end)
{
    const std::uint32_t number = place->file;
    out.attribute("file", jsonText(report.files[number].path));
    jsonAttribute(out, "member", report.files[number].member);
    if (place->line == 0) {
        ++place;
        return;
    }
    out.attributeArray("lines", [&] {
        for (; place != end && place->file == number; ++place)
            out.value(integer(place->line));
    });
}

void writePlaces(json::OStream& out, const Report& report, const Use& use)
{
    auto place = use.places.begin();
    while (place != use.places.end())
        out.object([&] { writeFile(out, report, place, use.places.end()); });
}

void writeTexts(json::OStream& out, const Entry& entry)
{
    jsonAttribute(out, "scope", entry.scope);
    out.attribute("kind", jsonText(entry.kind));
    out.attribute("group", reference(wordOf(entry.group)));
    out.attribute("family", jsonText(entry.family));
    jsonAttribute(out, "header", entry.header);
    jsonAttribute(out, "dll", entry.dll);
    jsonAttribute(out, "result", entry.result);
    jsonAttribute(out, "here", entry.here);
    jsonAttribute(out, "windows", entry.windows);
    jsonAttribute(out, "instead", entry.instead);
}

void writeUse(json::OStream& out, const Report& report, const Use& use)
{
    out.attribute("name", jsonText(use.entry.name));
    writeTexts(out, use.entry);
    out.attribute("uses", integer(use.places.size()));
    out.attributeArray("places", [&] { writePlaces(out, report, use); });
}

void writeUses(json::OStream& out, const Report& report)
{
    for (const Use& use : report.uses) {
        if (shows(report, use.entry.group))
            out.object([&] { writeUse(out, report, use); });
    }
}

void writeProblem(json::OStream& out, const Problem& problem)
{
    out.attribute("file", jsonText(problem.path));
    out.attribute("reason", jsonText(problem.reason));
}

void writeSummary(json::OStream& out, const Report& report)
{
    const Summary summary = summaryOf(report);
    out.attributeObject("summary", [&] {
        out.attribute("binaries", integer(report.binaryCount));
        out.attribute("sources", integer(report.sourceCount));
        writeCount(out, "functions", summary.functions);
        writeCount(out, "others", summary.others);
    });
    out.attributeArray("families", [&] { writeFamilies(out, report, summary); });
}

void writeInputs(json::OStream& out, const Report& report)
{
    out.attribute("tool", "ktqt-audit");
    out.attribute("version", kVersion);
    out.attributeArray("inputs", [&] {
        for (const std::string& input : report.inputs)
            out.value(jsonText(input));
    });
}

} // namespace

void writeJsonReport(const Report& report, llvm::raw_ostream& out, unsigned indentation)
{
    json::OStream stream(out, indentation);
    stream.object([&] {
        writeInputs(stream, report);
        writeSummary(stream, report);
        stream.attributeArray("names", [&] { writeUses(stream, report); });
        stream.attributeArray("problems", [&] {
            for (const Problem& problem : report.problems)
                stream.object([&] { writeProblem(stream, problem); });
        });
    });
    if (indentation > 0)
        out << "\n";
}

} // namespace ktqtbase::audit
