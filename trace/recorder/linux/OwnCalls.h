// SPDX-License-Identifier: MIT
#ifndef KTQTBASE_TRACE_OWNCALLS_H
#define KTQTBASE_TRACE_OWNCALLS_H

#include "linux/LoadedFile.h"

namespace trace {

// Takes the library's calls of its own functions past the trampolines. The loader binds them to
// the trampolines as it does with a program's calls, and one that ends a function of the library
// has the program's return address, so that nothing tells it from a call of the program.
void bindOwnCalls(const LoadedFile& library);

} // namespace trace

#endif
