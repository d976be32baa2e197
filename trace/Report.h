// SPDX-License-Identifier: MIT
//
// What ktqt-trace tells about a program that has ended.
#ifndef KTQTBASE_TRACE_REPORT_H
#define KTQTBASE_TRACE_REPORT_H

#include "recorder/Record.h"

#include <string>

namespace trace {

struct Run
{
    std::string program;
    int status = 0;
};

// Both list the functions that were called, the inert ones first, then by the number of calls.
// Those of another status than only are left out, unless it is empty.
std::string tableOf(const Record& record, const Run& run, const std::string& only);
std::string jsonOf(const Record& record, const Run& run, const std::string& only);

} // namespace trace

#endif
