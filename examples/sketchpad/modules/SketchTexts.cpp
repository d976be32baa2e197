// SPDX-License-Identifier: MIT
//
// The resource module: the program's texts by their numbers. A translation is a module of the same
// name with other texts; those that it lacks are shown in English.
#include "../app/TextTable.h"

extern "C" __attribute__((visibility("default"))) const wchar_t* loadstring(unsigned int id)
{
    return EnglishText(id);
}
