// SPDX-License-Identifier: MIT
//
// Finds what is known about the names that a program uses.
//
// The A and W forms of a function, a record or a type count as one name, that without the letter.
// Names that are not in the library's catalogue are those of Windows' import libraries and the
// classes of MFC; all others are nobody's business here.
#ifndef KTQTBASE_AUDIT_CATALOGUE_H
#define KTQTBASE_AUDIT_CATALOGUE_H

#include "CatalogueFiles.h"
#include "Entry.h"
#include "Families.h"

#include <deque>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace ktqtbase::audit {

// Entries and families stay where they are as long as the catalogue lives.
class Catalogue
{
public:
    explicit Catalogue(CatalogueFiles&& files);
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;

    // A name without a scope. Result: null if it is not known.
    const Entry* find(std::string_view name) const;

    // A name in a namespace or class of the library. Result: null if it is not known.
    const Entry* find(std::string_view scope, std::string_view name) const;

    // What a symbol in a scope counts as: the class that it belongs to, or a member that is not here
    // where the library's class lacks it, or the library has that name for something else than MFC's
    // class. Result: null if the
    // scope is not known.
    const Entry* member(std::string_view scope, std::string_view name);

    // Whether what is imported from a DLL counts.
    bool countsDll(const std::string& dll) const;

    // What is imported from a DLL that counts, by its name or as "#<ordinal>". A name that nobody
    // knows is not here.
    const Entry& imported(const std::string& dll, const std::string& name);

    // Every entry of that name, in any scope, and first the one that a program means by it.
    std::vector<const Entry*> explain(const std::string& name) const;

    // The entry with its family, which is looked for only in names that somebody uses.
    Entry withFamily(const Entry& entry) const;

    const Family& family(const std::string& id) { return m_families.named(id); }
    std::set<std::string> familyIds() const;

    // The id of the family that has a text for its id or its title.
    std::optional<std::string> familyId(const std::string& text) const;

private:
    using Index = std::unordered_map<std::string_view, const Entry*>;

    bool lacks(const Entry& type, std::string_view scope, std::string_view name) const;
    const Entry* findClass(std::string_view scope) const;
    void indexEntries();
    void indexOwnNames();
    void indexUnscoped(const Entry& entry);
    void indexLetters(const Entry& entry);
    void indexScoped(const Entry& entry);
    void addMfcClasses(std::vector<Entry>&& classes);
    void addWindowsNames(const std::vector<WindowsName>& names);
    void addWindowsName(const WindowsName& name, bool hasBothLetters);
    const Entry& addUnknown(const std::string& name, const std::string& dll,
                            const std::string& family = std::string());
    std::string_view keep(std::string text);

    std::deque<std::string> m_texts;
    std::deque<Entry> m_entries;
    Families m_families;
    Index m_names;
    Index m_scopedNames;
    std::unordered_set<std::string> m_dlls;
    std::unordered_set<std::string> m_listedClasses; // those with methods in the catalogue
    std::unordered_map<std::string, const Entry*> m_unknown;
};

} // namespace ktqtbase::audit

#endif
