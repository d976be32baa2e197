// SPDX-License-Identifier: MIT
//
// Where in the sources a call was written.
#ifndef KTQTBASE_TRACE_PLACES_H
#define KTQTBASE_TRACE_PLACES_H

#include "recorder/Record.h"

#include <string>
#include <vector>

namespace trace {

// Each is empty, or 0, where it is not known.
struct Place
{
    std::string function; // with its arguments
    std::string file;
    int line = 0;
};

// Asks addr2line once for each file. Without it, or without debug information, there is the name
// that the loader knows.
std::vector<Place> placesOf(const std::vector<const Caller*>& callers);

} // namespace trace

#endif
