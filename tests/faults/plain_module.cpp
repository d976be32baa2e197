// SPDX-License-Identifier: MIT
//
// A module that works, for copies of it that do not.
extern "C" __attribute__((visibility("default"))) int answer()
{
    return 42;
}
