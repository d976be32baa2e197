// SPDX-License-Identifier: MIT
#include "CatalogueFiles.h"
#include "JsonFile.h"
#include "LowerCase.h"
#include "TextFile.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <sstream>

namespace json = llvm::json;

namespace ktqtbase::audit {

namespace {

std::string textOf(const json::Object& object, llvm::StringRef key)
{
    const auto text = object.getString(key);
    return text ? text->str() : std::string();
}

std::vector<std::string> listOf(const json::Array* array)
{
    std::vector<std::string> list;
    for (const json::Value& value : array ? *array : json::Array()) {
        if (const auto text = value.getAsString())
            list.push_back(text->str());
    }
    return list;
}

const json::Object& asObject(const json::Value& value)
{
    const json::Object* const object = value.getAsObject();
    if (!object)
        throw CatalogueError("an object is missing");
    return *object;
}

Group statusOf(const json::Object& object)
{
    const std::string status = textOf(object, "status");
    const std::optional<Group> group = groupOfWord(status);
    if (!group || *group == Group::NotHere)
        throw CatalogueError("\"" + status + "\" is no status");
    return *group;
}

bool flagOf(const json::Object& object, llvm::StringRef key)
{
    const auto flag = object.getBoolean(key);
    return flag && *flag;
}

Entry entryOf(const json::Object& object, const std::string& family)
{
    Entry entry;
    entry.name = textOf(object, "name");
    entry.kind = textOf(object, "kind");
    entry.scope = textOf(object, "scope");
    entry.family = family;
    entry.header = textOf(object, "header");
    entry.result = textOf(object, "result");
    entry.windows = textOf(object, "windows");
    entry.here = textOf(object, "here");
    entry.instead = textOf(object, "instead");
    entry.test = textOf(object, "test");
    entry.group = statusOf(object);
    entry.porting = flagOf(object, "porting");
    return entry;
}

Family familyOf(const json::Object& object)
{
    Family family;
    family.id = textOf(object, "family");
    family.title = textOf(object, "title");
    family.advice = textOf(object, "advice");
    for (const std::string& dll : listOf(object.getArray("dlls")))
        family.dlls.push_back(lowerCase(dll));
    for (const std::string& pattern : listOf(object.getArray("patterns")))
        family.patterns.emplace_back(QString::fromStdString(pattern));
    return family;
}

void readFamilyFile(CatalogueFiles& files, const json::Value& value)
{
    const json::Object& object = asObject(value);
    const json::Array* const entries = object.getArray("entries");
    if (!entries)
        throw CatalogueError("\"entries\" is missing");
    const Family family = familyOf(object);
    for (const json::Value& entry : *entries)
        files.entries.push_back(entryOf(asObject(entry), family.id));
    files.families.add(family);
}

void addMfcClasses(CatalogueFiles& files, const json::Object& classes)
{
    for (const auto& family : classes) {
        for (const std::string& name : listOf(family.second.getAsArray())) {
            Entry entry;
            entry.name = name;
            entry.kind = "class";
            entry.family = llvm::StringRef(family.first).str();
            files.mfcClasses.push_back(entry);
        }
    }
}

void readFamilies(CatalogueFiles& files, const json::Value& value)
{
    const json::Object* const object = value.getAsObject();
    const json::Array* const list = object ? object->getArray("families") : value.getAsArray();
    if (!list)
        throw CatalogueError("the list of families is missing");
    for (const json::Value& family : *list) {
        if (const json::Object* const classes = asObject(family).getObject("mfc"))
            addMfcClasses(files, *classes);
        else
            files.families.add(familyOf(asObject(family)));
    }
    if (const json::Object* const classes = object ? object->getObject("mfc") : nullptr)
        addMfcClasses(files, *classes);
}

void readNames(CatalogueFiles& files, const std::string& text)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t tab = line.find('\t');
        if (tab != std::string::npos && line.front() != '#')
            files.windowsNames.push_back({line.substr(0, tab), lowerCase(line.substr(tab + 1))});
    }
}

// Reads one file, and puts its name in front of what is wrong in it.
void readFile(const std::string& path, const std::function<void(const std::string&)>& read)
{
    try {
        read(readTextFile(path));
    } catch (const std::exception& error) {
        throw CatalogueError(path + ": " + error.what());
    }
}

std::vector<std::string> familyFiles(const std::string& folder)
{
    std::vector<std::string> paths;
    std::error_code error;
    std::filesystem::directory_iterator files(folder, error);
    if (error)
        throw CatalogueError(folder + ": " + error.message());
    for (const auto& file : files) {
        if (file.path().extension() == ".json" && file.path().filename() != "families.json")
            paths.push_back(file.path());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

} // namespace

CatalogueFiles readCatalogueFiles(const std::string& folder)
{
    CatalogueFiles files;
    const std::vector<std::string> paths = familyFiles(folder);
    readFile(folder + "/families.json",
             [&](const std::string& text) { readFamilies(files, parseJson(text)); });
    for (const std::string& path : paths)
        readFile(path, [&](const std::string& text) { readFamilyFile(files, parseJson(text)); });
    readFile(folder + "/windows-names.txt",
             [&](const std::string& text) { readNames(files, text); });
    return files;
}

} // namespace ktqtbase::audit
