// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_NAMESOURCE_H
#define NAMEINFO_NAMESOURCE_H

#include <functional>
#include <string>
#include <vector>

// Decodes UTF-8. Result: false if the bytes are not UTF-8, or hold a NUL.
bool decodeUtf8(const std::string& bytes, std::wstring& text);

// The names given and those of the lists, one at a time.
class NameSource
{
public:
    using TakeName = std::function<void(const std::wstring& name)>;
    using TakeError = std::function<void(const std::string& text)>;

    // A list is the name of a file, or "-" for standard input.
    NameSource(std::vector<std::string> names, std::vector<std::string> lists);

    // Whether every list is still there when it has been read.
    bool canBeReadTwice() const;

    // Takes every name, and leaves the lists where they were.
    void readAhead(const TakeName& takeName) const;

    // Takes every name, and what is wrong with the others.
    void read(const TakeName& takeName, const TakeError& takeError) const;

private:
    std::vector<std::string> m_names;
    std::vector<std::string> m_lists;
};

#endif
