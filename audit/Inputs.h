// SPDX-License-Identifier: MIT
//
// Which files there are to read.
#ifndef KTQTBASE_AUDIT_INPUTS_H
#define KTQTBASE_AUDIT_INPUTS_H

#include <string>
#include <vector>

namespace ktqtbase::audit {

enum class InputKind
{
    Binary,
    Source
};

struct Input
{
    std::string path;
    InputKind kind;
};

// A file that cannot be read, and why.
struct Problem
{
    std::string path;
    std::string reason;
};

struct Inputs
{
    std::vector<Input> files; // each once, those of a folder in the order of their names
    std::vector<Problem> problems;
};

// The files that are named, those in the folders that are named, and those that a
// compile_commands.json names. In folders all but programs, libraries, objects and sources is
// passed over, and so are hidden folders.
Inputs findInputs(const std::vector<std::string>& paths);

} // namespace ktqtbase::audit

#endif
