// SPDX-License-Identifier: MIT
//
// What a careful programmer writes on std::wstring for the work of the path name's queries and
// edits. The functions are compiled apart, as a host's own helpers are, and keep their results'
// storage. Separators are slashes.
#ifndef KTQTBASE_BENCHMARKS_HANDWRITTEN_H
#define KTQTBASE_BENCHMARKS_HANDWRITTEN_H

#include <string>

namespace hand {

void baseName(const std::wstring& path, std::wstring& out);
void extension(const std::wstring& path, std::wstring& out);
void fullPath(const std::wstring& prefix, const std::wstring& path, std::wstring& out);
void appendComponent(std::wstring& path, const wchar_t* text);
bool trimComponent(std::wstring& path);
void replaceExtension(std::wstring& path, const wchar_t* extension);
// The folder of a name and its prefix; of a name without a folder, the prefix.
void parent(const std::wstring& prefix, const std::wstring& path, std::wstring& outPrefix,
            std::wstring& out);
// The name shortened to whole components behind "..." that fit the width, or its last component,
// shortened before its extension where it does not fit either.
void displayName(const std::wstring& path, int width, std::wstring& out);
// Whether prefix and path are the other path, but for ASCII case and a final separator.
bool pathMatch(const std::wstring& prefix, const std::wstring& path, const wchar_t* other);

} // namespace hand

#endif
