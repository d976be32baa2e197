// SPDX-License-Identifier: MIT
//
// A resource module with a few strings.
#include <string>

namespace {

constexpr unsigned int kReady = 101;
constexpr unsigned int kEmpty = 102;
constexpr unsigned int kLong = 103;
constexpr unsigned int kExact = 104;
constexpr unsigned int kForeign = 105;

} // namespace

extern "C" __attribute__((visibility("default"))) const wchar_t* loadstring(unsigned int id)
{
    static const std::wstring longText(1500, L'x');
    static const std::wstring exactText(1023, L'y');
    switch (id) {
    case kReady:
        return L"Ready";
    case kEmpty:
        return L"";
    case kLong:
        return longText.c_str();
    case kExact:
        return exactText.c_str();
    case kForeign:
        return L"\u00e4\u4e2d\U0001F600";
    default:
        return nullptr;
    }
}
