// SPDX-License-Identifier: MIT
#include "SourceReading.h"
#include "GuardedProcess.h"
#include "Records.h"
#include "SourceText.h"

#include <algorithm>

namespace ktqtbase::audit {

namespace {

// The kinds of records that the reading process sends: the next of the files, a name in it with its
// scope, line and column, and why it cannot be read.
constexpr const char* kFile = "file";
constexpr const char* kName = "name";
constexpr const char* kProblem = "problem";

bool hasCapital(std::string_view name)
{
    return std::any_of(name.begin(), name.end(), [](char ch) { return ch >= 'A' && ch <= 'Z'; });
}

// Functions without a capital, such as "lstrlen", have names that a program may give to anything.
const Entry* lookUp(const Catalogue& catalogue, const SourceName& name)
{
    if (name.isMember)
        return nullptr;
    const Entry* const entry = catalogue.find(name.scope, name.name);
    const bool isOther = entry && isFunction(*entry) && !name.isCalled && !hasCapital(name.name);
    return isOther ? nullptr : entry;
}

void addNames(const Catalogue& catalogue, const std::string& text, std::string& records)
{
    PlaceCounter placeOf(text);
    readSource(text, [&](const SourceName& name) {
        if (!lookUp(catalogue, name))
            return;
        const SourcePlace place = placeOf(name.place);
        addRecord(records, {kName, std::string(name.scope), std::string(name.name),
                            std::to_string(place.line), std::to_string(place.column)});
    });
}

void addFile(const Catalogue& catalogue, const std::string& path, std::string& records)
{
    addRecord(records, {kFile});
    try {
        const std::string text = readSourceText(path);
        addNames(catalogue, text, records);
        if (isNoText(text))
            addRecord(records, {kProblem, "not text, though it is taken for a source"});
    } catch (const std::exception& error) {
        addRecord(records, {kProblem, error.what()});
    }
}

SourcePlace placeIn(const Record& record)
{
    return {static_cast<std::uint32_t>(std::stoul(record.at(3))),
            static_cast<std::uint32_t>(std::stoul(record.at(4)))};
}

void readRecord(const Catalogue& catalogue, const Record& record, SourceNames& file)
{
    if (record.front() == kProblem)
        file.problem = record.at(1);
    else
        file.names.push_back({catalogue.find(record.at(1), record.at(2)), placeIn(record)});
}

std::vector<SourceNames> filesOf(const Catalogue& catalogue, const std::vector<std::string>& paths,
                                 const std::string& bytes)
{
    std::vector<SourceNames> files;
    for (const Record& record : readRecords(bytes)) {
        if (record.front() == kFile)
            files.push_back({paths.at(files.size()), {}, {}});
        else
            readRecord(catalogue, record, files.back());
    }
    return files;
}

const char* reason(Ending ending)
{
    return ending == Ending::TooLong ? "too large: reading it took more than 30 seconds"
                                     : "it makes its reader crash";
}

// Where several were read at once, each is read again, so that only one has the problem.
std::vector<SourceNames> readEach(const Catalogue& catalogue, const std::vector<std::string>& paths,
                                  const std::function<void()>& waiting, Ending ending)
{
    if (paths.size() == 1)
        return {{paths.front(), {}, reason(ending)}};
    std::vector<SourceNames> files;
    files.reserve(paths.size());
    for (const std::string& path : paths)
        files.push_back(readSources(catalogue, {path}, waiting).front());
    return files;
}

} // namespace

std::vector<SourceNames> readSources(const Catalogue& catalogue,
                                     const std::vector<std::string>& paths,
                                     const std::function<void()>& waiting)
{
    const auto read = [&] {
        std::string records;
        for (const std::string& path : paths)
            addFile(catalogue, path, records);
        return records;
    };
    const Outcome outcome = runGuarded(read, waiting);
    return outcome.ending == Ending::Done ? filesOf(catalogue, paths, outcome.bytes)
                                          : readEach(catalogue, paths, waiting, outcome.ending);
}

} // namespace ktqtbase::audit
