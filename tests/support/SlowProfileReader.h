// SPDX-License-Identifier: MIT
//
// A second reader of profile files, simple and slow: it copies every line and keeps every name. The
// library's reader must give the same results.
#ifndef KTQTBASE_TESTS_SUPPORT_SLOWPROFILEREADER_H
#define KTQTBASE_TESTS_SUPPORT_SLOWPROFILEREADER_H

#include <optional>
#include <string>

struct ProfileQuestion
{
    std::optional<std::string> section;
    std::optional<std::string> key;
    std::optional<std::string> defaultText;
    int size;
};

// The count that is returned and the text that is left, without its terminator.
struct ProfileAnswer
{
    int count;
    std::string text;
};

// The answer from a file of the given bytes.
ProfileAnswer readSlowly(const std::string& bytes, const ProfileQuestion& question);

#endif
