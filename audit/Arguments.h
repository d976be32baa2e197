// SPDX-License-Identifier: MIT
//
// The arguments of the command line.
#ifndef KTQTBASE_AUDIT_ARGUMENTS_H
#define KTQTBASE_AUDIT_ARGUMENTS_H

#include "Entry.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace ktqtbase::audit {

enum class Format
{
    Text,
    Json,
    Csv,
    Sarif,
    Html
};

struct Arguments
{
    std::vector<std::string> paths;
    Format format = Format::Text;
    std::string output; // empty for standard output
    std::string catalogue;
    std::string family;
    std::string explain;
    std::string baseline;
    std::vector<Group> only; // empty for all
    std::vector<Group> failOn;
    bool help = false;
    bool version = false;
};

// A command line that is not understood; the text says why.
class ArgumentError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

extern const char* const kUsage;

// Throws an ArgumentError.
Arguments readArguments(int count, char** values);

} // namespace ktqtbase::audit

#endif
