// SPDX-License-Identifier: MIT
#include <KtQtBase/VolumeDescriptor.h>

const wchar_t kBackslash = L'\\';
const wchar_t kColon = L':';
const wchar_t kDoubleQuote = L'"';
const wchar_t kEOS = L'\0';
const wchar_t kPeriod = L'.';
const wchar_t kSlash = L'/';
const wchar_t kSpace = L' ';
const wchar_t kAsterisk = L'*';
const wchar_t kQuestionmark = L'?';
const wchar_t kZero = L'0';
