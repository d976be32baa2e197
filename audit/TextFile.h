// SPDX-License-Identifier: MIT
//
// Reads files as a whole.
#ifndef KTQTBASE_AUDIT_TEXTFILE_H
#define KTQTBASE_AUDIT_TEXTFILE_H

#include <string>

namespace ktqtbase::audit {

// Throws a std::exception if the path is not that of a file. Others, such as pipes, may keep their
// reader waiting for ever.
void checkIsFile(const std::string& path);

// The bytes of a file. Throws a std::exception if it cannot be read.
std::string readTextFile(const std::string& path);

} // namespace ktqtbase::audit

#endif
