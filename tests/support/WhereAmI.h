// SPDX-License-Identifier: MIT
//
// What the library says about its executable's place. A small program is copied to places where a
// test program itself cannot be, and run there.
#ifndef KTQTBASE_TESTS_SUPPORT_WHEREAMI_H
#define KTQTBASE_TESTS_SUPPORT_WHEREAMI_H

#include "support/TemporaryFolder.h"

#include <algorithm>
#include <map>
#include <sstream>

#include <cstdio>

namespace ktqtbase::test {

using Answers = std::map<std::string, std::string>;

// What one run of the copy in the working directory prints, by its "name=value" lines.
inline Answers answersFromWorkingFolder()
{
    std::filesystem::copy_file(KTQTBASE_WHERE_AM_I, "where_am_i");
    FILE* const pipe = popen("./where_am_i", "r");
    if (!pipe)
        throw std::runtime_error("no shell");
    std::string output;
    char part[4096];
    while (const std::size_t length = std::fread(part, 1, sizeof part, pipe))
        output.append(part, length);
    if (pclose(pipe) != 0)
        throw std::runtime_error("where_am_i failed");

    Answers answers;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
        answers[line.substr(0, line.find('='))] = line.substr(line.find('=') + 1);
    return answers;
}

// The same for a copy in a folder, which is made where it is missing.
inline Answers answersFrom(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    const WorkingFolder working(folder);
    return answersFromWorkingFolder();
}

// A folder below another one in which the copy's own path has so many bytes.
inline std::filesystem::path folderForPathOf(std::size_t length, const TemporaryFolder& above)
{
    constexpr std::size_t kLongestComponent = 200;
    std::string path = above.path();
    const std::size_t wanted = length - std::string("/where_am_i").size();
    while (path.size() < wanted) {
        // No component may be left with no room but its slash.
        std::size_t room = std::min(wanted - path.size(), kLongestComponent);
        if (wanted - path.size() == room + 1)
            --room;
        path += '/' + std::string(room - 1, 'a');
    }
    return path;
}

} // namespace ktqtbase::test

#endif
