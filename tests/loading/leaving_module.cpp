// SPDX-License-Identifier: MIT
//
// A module that ends the program when it is loaded.
#include <cstdlib>

namespace {

struct Leaving
{
    Leaving() { std::exit(7); }
};

const Leaving leaving;

} // namespace
