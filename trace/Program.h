// SPDX-License-Identifier: MIT
//
// Programs that ktqt-trace starts.
#ifndef KTQTBASE_TRACE_PROGRAM_H
#define KTQTBASE_TRACE_PROGRAM_H

#include <string>
#include <vector>

namespace trace {

// Variables of an environment, "NAME=value".
using Variables = std::vector<std::string>;

// The variables of this program.
Variables ownEnvironment();

// The environment with variables added, or put in the places of others of the same names.
Variables withVariables(const Variables& environment, const Variables& variables);

// Runs a program with this one's own input and output, and waits for its end. Signals that ask to
// end are passed on, so that the table is printed after them, too.
// Result: its exit status; 128 + n after signal n. Below 0 if it did not start, which is told: -127
// if there is no such program, -126 if there is.
int runProgram(char* const* arguments, Variables environment);

// Result: what a program writes to its standard output; empty if it cannot be run.
std::string outputOf(const std::vector<std::string>& arguments);

} // namespace trace

#endif
