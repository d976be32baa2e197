// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

namespace {

// Makes the library export the constants, although compilers put their values where they are used:
// hosts may ask for their addresses.
__attribute__((used)) const wchar_t* const kExported[] = {
    &kBackslash, &kColon, &kDoubleQuote, &kEOS,          &kPeriod,
    &kSlash,     &kSpace, &kAsterisk,    &kQuestionmark, &kZero,
};

} // namespace
