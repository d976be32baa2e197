// SPDX-License-Identifier: MIT
//
// A second, simple implementation of the path objects, for tests to compare with: plain values, one
// character at a time, nothing shared with the library. Drive letters are those of the process's
// LC_CTYPE, white space is that of the global std::locale.
#ifndef KTQTBASE_TESTS_SUPPORT_SLOWPATHNAME_H
#define KTQTBASE_TESTS_SUPPORT_SLOWPATHNAME_H

#include <optional>
#include <string>

namespace slow {

// The values of the library's categories and types.
enum Category
{
    Drive,
    Unc,
    Rooted,
    Relative
};
enum Type
{
    None,
    NotFound,
    Wildcard,
    File,
    Directory
};

// A parsed name.
struct Name
{
    int category = Relative;
    std::wstring work;
    std::optional<std::wstring> prefix;
    int type = File;
    wchar_t separator = L'/';
    int volumeLength = 0; // of its volume's local name
    bool raised = false;  // in place of std::out_of_range
};

// What a parse makes of a text, as though no file existed anywhere.
struct Parse
{
    bool good = false;
    std::optional<int> category; // none where the parse leaves the former one
    Name name;
    bool qualified = false; // by this name alone
};

// Parses a text; a relative one needs a base, which is given by its full path.
Parse parse(const std::wstring& text, const std::optional<std::wstring>& base,
            wchar_t separator = L'/');

// Whether the last component holds a wildcard.
bool isPattern(const Name& name);

// The last component, and what stands behind its last dot, if it has one.
std::wstring baseOf(const Name& name);
std::optional<std::wstring> extensionOf(const Name& name);

// A text without white space at its ends.
std::wstring withoutBlanks(const std::wstring& text);

// The edits. Result: the result code.
int trimSlash(Name& name);
int trim(Name& name);
int trimComponent(Name& name);

Name parentOf(const Name& name);

bool hasExtensionOf(const Name& name, const std::wstring& list);

std::wstring displayName(const Name& name, int width);

std::wstring fullPath(const Name& name);

// Whether a full path and a text name the same place.
bool matches(std::wstring path, std::wstring text, wchar_t separator = L'/');

// The rules for whole names of a volume with backslashes and the limit 1023.
bool isValidFilename(const std::wstring& name, bool allowWildcards);

} // namespace slow

#endif
