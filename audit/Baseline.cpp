// SPDX-License-Identifier: MIT
#include "Baseline.h"
#include "JsonFile.h"
#include "TextFile.h"

#include <algorithm>
#include <stdexcept>

namespace json = llvm::json;

namespace ktqtbase::audit {

namespace {

struct EarlierUse
{
    std::size_t count = 0;
    std::map<std::string, std::size_t> files; // by path and member
};

using EarlierUses = std::map<std::string, EarlierUse>; // by group, scope and name

std::string textOf(const json::Object& object, llvm::StringRef key)
{
    const auto text = object.getString(key);
    return text ? text->str() : std::string();
}

std::string fileKey(const std::string& path, const std::string& member)
{
    return json::fixUTF8(path) + '\n' + json::fixUTF8(member);
}

std::string useKey(const std::string& group, const std::string& scope, const std::string& name)
{
    return group + '\n' + scope + '\n' + json::fixUTF8(name);
}

void addPlaces(EarlierUse& use, const json::Object& file)
{
    const json::Array* const lines = file.getArray("lines");
    const std::size_t count = lines ? lines->size() : 1;
    use.count += count;
    use.files[fileKey(textOf(file, "file"), textOf(file, "member"))] += count;
}

EarlierUse earlierUse(const json::Object& name)
{
    EarlierUse use;
    if (const json::Array* const places = name.getArray("places")) {
        for (const json::Value& place : *places) {
            if (const json::Object* const file = place.getAsObject())
                addPlaces(use, *file);
        }
    }
    return use;
}

EarlierUses earlierUses(const json::Array& names)
{
    EarlierUses uses;
    for (const json::Value& value : names) {
        if (const json::Object* const name = value.getAsObject())
            uses[useKey(textOf(*name, "group"), textOf(*name, "scope"), textOf(*name, "name"))] =
                earlierUse(*name);
    }
    return uses;
}

EarlierUses readEarlierUses(const std::string& path)
{
    const json::Value value = parseJson(readTextFile(path));
    const json::Object* const report = value.getAsObject();
    const json::Array* const names = report ? report->getArray("names") : nullptr;
    if (!names || textOf(*report, "tool") != "ktqt-audit")
        throw std::runtime_error("no report that --json wrote");
    return earlierUses(*names);
}

// Leaves the places in files that have more of them than before.
void keepNewPlaces(Use& use, const EarlierUse& earlier, const std::vector<ReadFile>& files)
{
    std::map<std::string, std::size_t> counts;
    const auto key = [&](const Place& place) {
        return fileKey(files[place.file].path, files[place.file].member);
    };
    for (const Place& place : use.places)
        ++counts[key(place)];
    const auto isOld = [&](const Place& place) {
        const auto before = earlier.files.find(key(place));
        return before != earlier.files.end() && before->second >= counts[before->first];
    };
    use.places.erase(std::remove_if(use.places.begin(), use.places.end(), isOld), use.places.end());
}

// Result: whether the use is not new.
bool isOld(Use& use, const EarlierUses& earlier, const std::vector<ReadFile>& files)
{
    const Entry& entry = use.entry;
    const auto before =
        earlier.find(useKey(std::string(wordOf(entry.group)), entry.scope, entry.name));
    if (before == earlier.end())
        return false;
    if (before->second.count >= use.places.size())
        return true;
    keepNewPlaces(use, before->second, files);
    return false;
}

} // namespace

void keepNew(Report& report, const std::string& earlierReport)
{
    const EarlierUses earlier = readEarlierUses(earlierReport);
    const auto old = [&](Use& use) { return isOld(use, earlier, report.files); };
    report.uses.erase(std::remove_if(report.uses.begin(), report.uses.end(), old),
                      report.uses.end());
}

} // namespace ktqtbase::audit
