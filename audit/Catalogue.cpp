// SPDX-License-Identifier: MIT
#include "Catalogue.h"

#include <algorithm>
#include <utility>

namespace ktqtbase::audit {

namespace {

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

// Windows' names for parts of its DLLs, behind which any of them may stand.
bool isApiSet(const std::string& dll)
{
    return (startsWith(dll, "api-ms-win-") && !startsWith(dll, "api-ms-win-crt-")) ||
           startsWith(dll, "ext-ms-win-");
}

// The name has the version in it.
bool isMfc(const std::string& dll)
{
    return startsWith(dll, "mfc");
}

bool hasLetter(std::string_view name)
{
    return name.size() > 1 && (name.back() == 'A' || name.back() == 'W');
}

std::string otherLetter(std::string name)
{
    name.back() = name.back() == 'A' ? 'W' : 'A';
    return name;
}

// Records and some functions are declared with the letter of wide characters, and used without it.
std::string withoutLetter(const Entry& entry)
{
    const bool hasW = entry.kind != "type" && entry.name.size() > 1 && entry.name.back() == 'W';
    return entry.name.substr(0, entry.name.size() - (hasW ? 1 : 0));
}

bool mayHaveLetter(const Entry& entry)
{
    return entry.kind == "function" || entry.kind == "record" || entry.kind == "type";
}

// Template arguments are of no interest: "CArray<int>" is CArray.
std::string_view withoutArguments(std::string_view scope)
{
    return scope.substr(0, scope.find('<'));
}

// Not "~CString", "operator=" or "`vftable'".
bool isMethodName(std::string_view name)
{
    return name.find_first_of("~`$ =") == std::string_view::npos && !startsWith(name, "operator");
}

} // namespace

Catalogue::Catalogue(CatalogueFiles&& files)
    : m_entries(std::make_move_iterator(files.entries.begin()),
                std::make_move_iterator(files.entries.end())),
      m_families(std::move(files.families))
{
    indexEntries();
    addMfcClasses(std::move(files.mfcClasses));
    addWindowsNames(files.windowsNames);
    for (const Family& family : m_families.all())
        m_dlls.insert(family.dlls.begin(), family.dlls.end());
}

const Entry* Catalogue::find(std::string_view name) const
{
    const auto found = m_names.find(name);
    return found == m_names.end() ? nullptr : found->second;
}

const Entry* Catalogue::find(std::string_view scope, std::string_view name) const
{
    if (scope.empty())
        return find(name);
    const std::string text = std::string(withoutArguments(scope)).append("::").append(name);
    const auto found = m_scopedNames.find(text);
    return found == m_scopedNames.end() ? nullptr : found->second;
}

const Entry* Catalogue::findClass(std::string_view scope) const
{
    const std::string_view outer = withoutArguments(scope.substr(0, scope.find("::")));
    const Entry* const entry = find(outer);
    return entry && isClass(*entry) ? entry : nullptr;
}

bool Catalogue::countsDll(const std::string& dll) const
{
    return m_dlls.count(dll) > 0 || isApiSet(dll) || isMfc(dll);
}

const Entry* Catalogue::member(std::string_view scope, std::string_view name)
{
    const std::string fullName = std::string(scope).append("::").append(name);
    if (const Entry* const type = findClass(scope))
        return lacks(*type, scope, name) ? &addUnknown(fullName, std::string(), type->family)
                                         : type;
    const Entry* const type = find(withoutArguments(scope));
    const bool isOther = type && type->kind == "type";
    return isOther ? &addUnknown(fullName, std::string()) : nullptr;
}

// What a compiler makes itself has no entry. A class of which no method is listed may have any.
bool Catalogue::lacks(const Entry& type, std::string_view scope, std::string_view name) const
{
    const bool isOwn = type.group != Group::NotHere && scope == type.name;
    return isOwn && m_listedClasses.count(type.name) > 0 && name != type.name && isMethodName(name);
}

const Entry& Catalogue::imported(const std::string& dll, const std::string& name)
{
    const Entry* const entry = find(name);
    return entry ? *entry : addUnknown(name.front() == '#' ? dll + name : name, dll);
}

std::vector<const Entry*> Catalogue::explain(const std::string& name) const
{
    std::vector<const Entry*> entries;
    const Entry* const known = find(name);
    if (known)
        entries.push_back(known);
    for (const Entry& entry : m_entries) {
        const bool isOther = entry.name == name || (known && entry.name == known->name);
        if (&entry != known && (isOther || fullName(entry) == name))
            entries.push_back(&entry);
    }
    return entries;
}

Entry Catalogue::withFamily(const Entry& entry) const
{
    Entry complete = entry;
    if (complete.family.empty())
        complete.family = m_families.familyOf(entry.name, entry.dll);
    return complete;
}

std::set<std::string> Catalogue::familyIds() const
{
    std::set<std::string> ids = {"other"};
    for (const Family& family : m_families.all())
        ids.insert(family.id);
    for (const Entry& entry : m_entries) {
        if (!entry.family.empty())
            ids.insert(entry.family);
    }
    return ids;
}

std::optional<std::string> Catalogue::familyId(const std::string& text) const
{
    const std::set<std::string> ids = familyIds();
    if (ids.count(text) > 0)
        return text;
    for (const Family& family : m_families.all()) {
        if (family.title == text)
            return family.id;
    }
    return std::nullopt;
}

// The porting headers give again, under the other form of their names, what the library has.
void Catalogue::indexEntries()
{
    indexOwnNames();
    for (const Entry& entry : m_entries) {
        if (entry.porting && entry.scope.empty()) {
            indexUnscoped(entry);
            indexLetters(entry);
        }
        if (!entry.scope.empty())
            indexScoped(entry);
    }
}

// A name that stands by itself comes before the same one in a namespace, which a program of Windows
// does not know.
void Catalogue::indexOwnNames()
{
    for (const Entry& entry : m_entries) {
        if (!entry.porting && entry.scope.empty())
            indexUnscoped(entry);
    }
    for (const Entry& entry : m_entries) {
        if (!entry.porting && entry.kind != "method" && !findClass(entry.scope))
            indexUnscoped(entry);
    }
    for (const Entry& entry : m_entries) {
        if (!entry.porting)
            indexLetters(entry);
    }
}

void Catalogue::indexUnscoped(const Entry& entry)
{
    m_names.emplace(entry.name, &entry);
}

// Of several entries only the one that its name stands for has the name's other forms.
void Catalogue::indexLetters(const Entry& entry)
{
    if (find(entry.name) != &entry || !mayHaveLetter(entry))
        return;
    const std::string name = withoutLetter(entry);
    m_names.emplace(keep(name), &entry);
    m_names.emplace(keep(name + "A"), &entry);
    m_names.emplace(keep(name + "W"), &entry);
}

void Catalogue::indexScoped(const Entry& entry)
{
    m_scopedNames.emplace(keep(fullName(entry)), &entry);
    if (entry.kind == "method")
        m_listedClasses.insert(entry.scope);
    if (mayHaveLetter(entry)) {
        m_scopedNames.emplace(keep(fullName(entry) + "A"), &entry);
        m_scopedNames.emplace(keep(fullName(entry) + "W"), &entry);
    }
}

void Catalogue::addMfcClasses(std::vector<Entry>&& classes)
{
    for (Entry& entry : classes) {
        if (find(entry.name))
            continue;
        m_entries.push_back(std::move(entry));
        indexUnscoped(m_entries.back());
    }
}

void Catalogue::addWindowsNames(const std::vector<WindowsName>& names)
{
    std::set<std::string_view> all;
    for (const WindowsName& name : names)
        all.insert(name.name);
    for (const WindowsName& name : names) {
        m_dlls.insert(name.dll);
        addWindowsName(name, hasLetter(name.name) && all.count(otherLetter(name.name)) > 0);
    }
}

void Catalogue::addWindowsName(const WindowsName& name, bool hasBothLetters)
{
    if (find(name.name))
        return;
    const std::string folded = name.name.substr(0, name.name.size() - (hasBothLetters ? 1 : 0));
    const Entry* entry = find(folded);
    if (!entry && hasBothLetters)
        entry = find(otherLetter(name.name));
    if (!entry)
        entry = &addUnknown(folded, name.dll);
    m_names.emplace(keep(folded), entry);
    m_names.emplace(keep(name.name), entry);
}

const Entry& Catalogue::addUnknown(const std::string& name, const std::string& dll,
                                   const std::string& family)
{
    const Entry*& entry = m_unknown[name];
    if (!entry) {
        Entry unknown;
        unknown.name = name;
        unknown.kind = "function";
        unknown.dll = dll;
        unknown.family = family;
        m_entries.push_back(unknown);
        entry = &m_entries.back();
    }
    return *entry;
}

std::string_view Catalogue::keep(std::string text)
{
    m_texts.push_back(std::move(text));
    return m_texts.back();
}

} // namespace ktqtbase::audit
