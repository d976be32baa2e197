// SPDX-License-Identifier: MIT
//
// Texts that say why something did not work.
#ifndef SKETCHPAD_REASONS_H
#define SKETCHPAD_REASONS_H

#include <string>
#include <system_error>

std::wstring ReasonOf(const std::error_code& error);

// Why the last module could not be loaded.
std::wstring LoaderReason();

// The reason of the last call of the standard library that failed.
std::wstring LastErrorReason();

#endif
