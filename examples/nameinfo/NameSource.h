// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_NAMESOURCE_H
#define NAMEINFO_NAMESOURCE_H

#include <istream>
#include <string>
#include <vector>

// Decodes UTF-8. Result: false if the bytes are not UTF-8, or hold a NUL.
bool decodeUtf8(const std::string& bytes, std::wstring& text);

// The names given, and what was wrong with the others.
struct NameSource
{
    std::vector<std::wstring> names;
    std::vector<std::string> errors;

    // Takes one name of UTF-8 bytes; place says where it comes from.
    void add(const std::string& bytes, const std::string& place);

    // Takes every line of a stream as a name.
    void addLines(std::istream& lines, const std::string& title);

    // Takes every line of a file; "-" is standard input.
    void addFile(const std::string& fileName);
};

#endif
