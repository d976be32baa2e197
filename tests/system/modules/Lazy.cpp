// SPDX-License-Identifier: MIT
//
// A module that calls a function which is nowhere: it loads only with lazy binding.
extern "C" int ktnowhere();

extern "C" __attribute__((visibility("default"))) int ktcallsnowhere()
{
    return ktnowhere();
}
