// SPDX-License-Identifier: MIT
//
// Copying a file beside the same stream insertion written by hand with narrow names.
#include "support/Fixture.h"
#include "support/Rows.h"

#include <KtQtBase/windows/Files.h>

#include <fstream>

namespace {

using bench::Row;

constexpr std::size_t kKilobyte = 1024;
constexpr std::size_t kMegabyte = 1024 * kKilobyte;

std::string targetName()
{
    return bench::folder() + "/copy";
}

void copyByHand(const std::string& from, const std::string& to)
{
    std::ifstream source(from, std::ios::binary);
    std::ofstream destination(to, std::ios::binary);
    destination << source.rdbuf();
}

void addCopy(const char* size, std::size_t bytes)
{
    Row("CopyFile", size)
        .library([=] {
            return [from = bench::wide(bench::fileOfSize(bytes)), to = bench::wide(targetName())] {
                CopyFile(from.c_str(), to.c_str(), false);
            };
        })
        .reference("std::fstream", [=] {
            return [from = bench::fileOfSize(bytes), to = targetName()] { copyByHand(from, to); };
        });
}

} // namespace

void bench::addFileRows()
{
    addCopy("1 KB", kKilobyte);
    addCopy("1 MB", kMegabyte);
    addCopy("256 MB", 256 * kMegabyte);
}
