// SPDX-License-Identifier: MIT
//
// Reads sources in processes of their own, many in one.
#ifndef KTQTBASE_AUDIT_SOURCEREADING_H
#define KTQTBASE_AUDIT_SOURCEREADING_H

#include "Catalogue.h"
#include "SourceFile.h"

#include <functional>
#include <string>
#include <vector>

namespace ktqtbase::audit {

struct SourceNames
{
    struct Name
    {
        const Entry* entry;
        SourcePlace place;
    };

    std::string path;
    std::vector<Name> names; // in the order of their places
    std::string problem;     // why the file cannot be read; empty if it can
};

// Reads a few sources. One that crashes its reader, or keeps it busy for ever, is named by its
// problem, and the others are read. Throws std::system_error if there is no process to be had.
//   waiting    in: called now and then
//   Result: what is found, in the order of the paths
std::vector<SourceNames> readSources(const Catalogue& catalogue,
                                     const std::vector<std::string>& paths,
                                     const std::function<void()>& waiting);

} // namespace ktqtbase::audit

#endif
