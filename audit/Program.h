// SPDX-License-Identifier: MIT
//
// What the program does for a command line.
#ifndef KTQTBASE_AUDIT_PROGRAM_H
#define KTQTBASE_AUDIT_PROGRAM_H

#include "Arguments.h"

namespace ktqtbase::audit {

// Result: the exit status. Throws a std::exception if the catalogue, an argument or the output is
// not usable.
int run(const Arguments& arguments);

} // namespace ktqtbase::audit

#endif
