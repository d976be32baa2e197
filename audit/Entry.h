// SPDX-License-Identifier: MIT
//
// What is known about one name of the Windows API or of MFC.
#ifndef KTQTBASE_AUDIT_ENTRY_H
#define KTQTBASE_AUDIT_ENTRY_H

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ktqtbase::audit {

// What a program that uses a name finds here. Reports list the groups in this order.
enum class Group
{
    NotHere,
    Inert,
    Differs,
    Works
};

constexpr std::array<Group, 4> kGroups = {Group::NotHere, Group::Inert, Group::Differs,
                                          Group::Works};

// "not-here", "inert", "differs", "works": the words of the options and of the reports for
// programs.
std::string_view wordOf(Group group);
std::optional<Group> groupOfWord(std::string_view word);

// The texts are those of the catalogue; what has no text there is empty. A name that is not in the
// catalogue has its name, its kind, its family and, if it is known, its DLL.
struct Entry
{
    std::string name;
    std::string kind;
    std::string scope;
    std::string family;
    std::string header;
    std::string result;
    std::string windows;
    std::string here;
    std::string instead;
    std::string test;
    std::string dll;
    Group group = Group::NotHere;
    bool porting = false;
};

bool isFunction(const Entry& entry);
bool isClass(const Entry& entry);

// The name behind its scope: "KtKernel32::CopyFile".
std::string fullName(const Entry& entry);

// What the catalogue says of the name's group: what is different, or what an inert one does.
const std::string& sentence(const Entry& entry);

} // namespace ktqtbase::audit

#endif
