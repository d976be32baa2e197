// SPDX-License-Identifier: MIT
//
// Texts that say why something did not work.
#ifndef SKETCHPAD_REASONS_H
#define SKETCHPAD_REASONS_H

#include <string>
#include <system_error>

constexpr wchar_t kUnusableName[] = L"the name is too long, or not valid in this locale";

std::wstring ReasonOf(const std::error_code& error);

// Why the last module could not be loaded.
std::wstring LoaderReason();

// The reason of the last call of the standard library that failed.
std::wstring LastErrorReason();

#endif
