// SPDX-License-Identifier: MIT
//
// Reads a binary in a process of its own, so that a file that crashes its reader, or keeps it busy
// for ever, ends that process and nothing else.
#ifndef KTQTBASE_AUDIT_GUARDEDREADING_H
#define KTQTBASE_AUDIT_GUARDEDREADING_H

#include "BinaryFile.h"
#include "Catalogue.h"

#include <functional>
#include <string>
#include <vector>

namespace ktqtbase::audit {

struct BinaryNames
{
    struct Name
    {
        std::string member;
        const Entry* entry;
    };

    std::vector<Name> names; // each once a member
    std::string problem;     // why the file, or a part of it, cannot be read; empty if all can
};

//   waiting    is called now and then
BinaryNames readGuarded(Catalogue& catalogue, const std::string& path,
                        const std::function<void()>& waiting);

} // namespace ktqtbase::audit

#endif
