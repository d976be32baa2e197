// SPDX-License-Identifier: MIT
//
// Reads which sources a build compiles.
#ifndef KTQTBASE_AUDIT_COMPILECOMMANDS_H
#define KTQTBASE_AUDIT_COMPILECOMMANDS_H

#include <string>
#include <vector>

namespace ktqtbase::audit {

// The sources of a compile_commands.json. Throws a std::exception if it cannot be read or is none.
std::vector<std::string> readCompileCommands(const std::string& path);

} // namespace ktqtbase::audit

#endif
