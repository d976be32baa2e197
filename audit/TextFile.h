// SPDX-License-Identifier: MIT
//
// Reads files as a whole.
#ifndef KTQTBASE_AUDIT_TEXTFILE_H
#define KTQTBASE_AUDIT_TEXTFILE_H

#include <string>

namespace ktqtbase::audit {

// The bytes of a file. Throws std::system_error if it cannot be read.
std::string readTextFile(const std::string& path);

} // namespace ktqtbase::audit

#endif
