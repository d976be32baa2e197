// SPDX-License-Identifier: MIT
//
// A module that needs a variable which nobody has. Unlike a function it is looked for at once.
extern "C" int ktnowhere_value;

extern "C" __attribute__((visibility("default"))) int* lackingValue()
{
    return &ktnowhere_value;
}
