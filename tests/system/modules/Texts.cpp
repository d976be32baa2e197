// SPDX-License-Identifier: MIT
//
// A resource module.
extern "C" __attribute__((visibility("default"))) const wchar_t* loadstring(unsigned int id)
{
    switch (id) {
    case 1:
        return L"abcdef";
    case 2:
        return L"";
    case 3:
        return L"h\u00e9\U0001F600";
    case 0xFFFFFFFF:
        return L"top";
    default:
        return nullptr;
    }
}
