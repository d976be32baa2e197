// SPDX-License-Identifier: MIT
//
// A module without strings.
extern "C" __attribute__((visibility("default"))) int ktanswer()
{
    return 42;
}
