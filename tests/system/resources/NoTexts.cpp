// SPDX-License-Identifier: MIT
//
// A module without resource strings.
extern "C" __attribute__((visibility("default"))) int answer()
{
    return 42;
}
