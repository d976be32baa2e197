// SPDX-License-Identifier: MIT
//
// The program's texts: from the resource module, or the built-in ones if that is missing.
#ifndef SKETCHPAD_TEXTS_H
#define SKETCHPAD_TEXTS_H

#include "TextIds.h"

#include <string>

// Loads the resource module from the executable's folder. Call it before everything else, since it
// also sets the locale in which names convert, but after the application object, which resets that.
// Result: an empty text, or why the built-in texts are used.
std::wstring LoadTexts();

// The number is a TextId or a command's.
std::wstring Text(unsigned int id);

// The text with its %ls replaced.
std::wstring Text(TextId id, const std::wstring& argument);
std::wstring Text(TextId id, const std::wstring& first, const std::wstring& second);

#endif
