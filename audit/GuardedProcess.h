// SPDX-License-Identifier: MIT
//
// Runs what may crash, or never end, in a process of its own.
#ifndef KTQTBASE_AUDIT_GUARDEDPROCESS_H
#define KTQTBASE_AUDIT_GUARDEDPROCESS_H

#include <functional>
#include <string>

namespace ktqtbase::audit {

enum class Ending
{
    Done,
    Crashed,
    TooLong,
};

struct Outcome
{
    Ending ending;
    std::string bytes; // what the work gave; empty unless it is done
};

// Runs work in a process of its own, with limits to its time and its memory, which prints nothing.
// Throws std::system_error if there is no process to be had.
//   work       in: gives its result as bytes
//   waiting    in: called now and then
Outcome runGuarded(const std::function<std::string()>& work, const std::function<void()>& waiting);

} // namespace ktqtbase::audit

#endif
