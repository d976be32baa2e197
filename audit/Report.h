// SPDX-License-Identifier: MIT
//
// What an audit found.
#ifndef KTQTBASE_AUDIT_REPORT_H
#define KTQTBASE_AUDIT_REPORT_H

#include "Entry.h"
#include "Inputs.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace ktqtbase::audit {

// A file that has names, or a member of it.
struct ReadFile
{
    std::string path;
    std::string member;
};

// Where a name is used; in binaries there is neither line nor column.
struct Place
{
    std::uint32_t file; // in Report::files
    std::uint32_t line;
    std::uint32_t column;
};

struct Use
{
    Entry entry;
    std::vector<Place> places;
};

struct FamilyText
{
    std::string title;
    std::string advice;
};

struct Report
{
    std::vector<std::string> inputs;
    std::size_t binaryCount = 0;
    std::size_t sourceCount = 0;
    std::vector<ReadFile> files;
    std::vector<Use> uses; // by group, title of the family and name
    std::vector<Problem> problems;
    std::map<std::string, FamilyText> families; // of the uses, by their ids
    std::vector<Group> shown;                   // the groups to list, in their order
};

// How many names there are, and of each group.
class Count
{
public:
    void add(Group group);
    std::size_t total() const { return m_total; }
    std::size_t of(Group group) const { return m_groups[static_cast<std::size_t>(group)]; }

private:
    std::size_t m_total = 0;
    std::array<std::size_t, kGroups.size()> m_groups{};
};

struct Summary
{
    Count functions;
    Count others; // classes, types, records, constants
    std::map<std::string, Count> families;
};

Summary summaryOf(const Report& report);

// Whether the report lists what is in a group.
bool shows(const Report& report, Group group);

// "src/main.cpp:12", "old.lib(file.obj)"
std::string placeText(const Report& report, const Place& place);

} // namespace ktqtbase::audit

#endif
