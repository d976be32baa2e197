// SPDX-License-Identifier: MIT
//
// File names as people, dialogs, scripts and the command line give them.
#ifndef SKETCHPAD_FILENAMES_H
#define SKETCHPAD_FILENAMES_H

#include <KtQtBase/PathName.h>

#include <string>

// Makes a name absolute against the working folder. Names from scripts and the command line need
// it: the library resolves relative ones against the executable's folder.
std::wstring AbsoluteName(const std::wstring& name);

// A folder or a file is a question for std::filesystem: a parsed name's type follows a permission
// bit.
bool IsFolder(const std::wstring& path);

// A name's folder with its slash.
std::wstring FolderOf(const std::wstring& path);

// The path of a file beside the executable.
std::wstring BesideExecutable(const wchar_t* name);

// Takes a name to save under: checks what was typed, parses it and adds the extension.
//   typed        in: an absolute name
//   extension    in: what the name is to end in, without the dot
//   name         out: the parsed name
//   added        out: whether the extension was added, so that nobody was asked about this name
//   reason       out: why the name cannot be used
bool TakeSaveName(const std::wstring& typed, const wchar_t* extension, CRnUiPathname& name,
                  bool& added, std::wstring& reason);

// What CRnUiPathname::Status says of a name.
int StatusOf(const std::wstring& path);

// A name in the same folder that is free, or an empty text.
std::wstring UniqueName(const std::wstring& path);

// A name as people read it, cut to a width in characters.
std::wstring DisplayName(const std::wstring& path, int width);

std::wstring FullPath(const CRnUiPathname& name);

#endif
