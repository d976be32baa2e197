// SPDX-License-Identifier: MIT
//
// A resource module to load and to search.

extern "C" __attribute__((visibility("default"))) const wchar_t* loadstring(unsigned int)
{
    return L"text";
}
