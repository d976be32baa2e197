// SPDX-License-Identifier: MIT
//
// A module whose constructor throws.
#include <stdexcept>

namespace {

struct Throwing
{
    Throwing() { throw std::runtime_error("no module"); }
};

const Throwing throwing;

} // namespace
