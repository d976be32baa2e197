// SPDX-License-Identifier: MIT
//
// File names that come from people, dialogs, scripts and the command line.
#ifndef SKETCHPAD_FILENAMES_H
#define SKETCHPAD_FILENAMES_H

#include <KtQtBase/PathName.h>

#include <optional>
#include <string>

// Makes a name absolute by the working directory. Names from scripts and the command line need it,
// since the library takes relative names as lying in the executable's folder.
std::wstring AbsoluteName(const std::wstring& name);

// When a file was changed last, in a unit of its own; nothing for one that is not there.
std::optional<long long> TimeOf(const std::wstring& path);

// Asks std::filesystem, since the type of a parsed name depends on a permission bit.
bool IsFolder(const std::wstring& path);

// A name's folder with its slash, and what comes after that.
std::wstring FolderOf(const std::wstring& path);
std::wstring FileNameOf(const std::wstring& path);

// The path of a file in the executable's folder.
std::wstring BesideExecutable(const wchar_t* name);

// Takes a name to save under: checks what was typed, parses it and adds the extension.
//   typed        in: an absolute name
//   extension    in: the extension that the name must have, without the dot
//   name         out: the parsed name
//   added        out: whether the extension was added, so that nobody was asked about this name
//   reason       out: why the name cannot be used
bool TakeSaveName(const std::wstring& typed, const wchar_t* extension, CRnUiPathname& name,
                  bool& added, std::wstring& reason);

// A free name in the same folder, or an empty text.
std::wstring UniqueName(const std::wstring& path);

// A name for people to read, cut to a width in characters.
std::wstring DisplayName(const std::wstring& path, int width);

// The same as a menu takes it, where an & would mark a key.
std::wstring MenuName(const std::wstring& path);

std::wstring FullPath(const CRnUiPathname& name);

#endif
