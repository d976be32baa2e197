// SPDX-License-Identifier: MIT
//
// Files and names to measure with, in a private folder that is removed at the end.
#ifndef KTQTBASE_BENCHMARKS_FIXTURE_H
#define KTQTBASE_BENCHMARKS_FIXTURE_H

#include <cstddef>
#include <string>

namespace bench {

// The private folder, without a final slash.
const std::string& folder();

// Folders and a file name of so many characters in all, without a root.
std::string plainName(std::size_t length, char letter);

// A rooted name of exactly so many characters below the private folder: folders of up to 49
// characters, then a file name with an extension. existingName makes the file with its folders.
std::string existingName(std::size_t length);
std::string missingName(std::size_t length);

// The same as a relative name below the private folder.
std::string relativeName(std::size_t length);

// A file of so many bytes in the private folder; made once.
std::string fileOfSize(std::size_t bytes);

// Text of ASCII letters, as wide text.
std::wstring wide(const std::string& text);

} // namespace bench

#endif
