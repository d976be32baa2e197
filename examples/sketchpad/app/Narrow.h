// SPDX-License-Identifier: MIT
//
// Text between the wide strings of the library and the bytes of files, streams and the loader.
#ifndef SKETCHPAD_NARROW_H
#define SKETCHPAD_NARROW_H

#include <optional>
#include <string>

// In UTF-8, the LC_CTYPE that LoadLibrary has set. Nothing if a character does not convert.
std::optional<std::string> Narrow(const std::wstring& text);
std::optional<std::wstring> Widen(const std::string& bytes);

// For messages, where a question mark is better than nothing.
std::string NarrowForDisplay(const std::wstring& text);
std::wstring WidenForDisplay(const std::string& bytes);

#endif
