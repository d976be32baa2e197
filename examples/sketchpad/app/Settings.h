// SPDX-License-Identifier: MIT
//
// What the program remembers from one run to the next.
#ifndef SKETCHPAD_SETTINGS_H
#define SKETCHPAD_SETTINGS_H

#include <KtQtBase/WindowsTypes.h>

#include <optional>
#include <string>
#include <vector>

// The window's place, in pixels; nothing if none was stored.
std::optional<CRect> ReadWindowPlace();
void WriteWindowPlace(const CRect& place);

// The files used last, the newest first.
std::vector<std::wstring> ReadRecentFiles();

// Puts a file first in the list and stores it.
void AddRecentFile(const std::wstring& path);

// Stores the list without a file.
void RemoveRecentFile(const std::wstring& path);

#endif
