// SPDX-License-Identifier: MIT
#include "TextFile.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace ktqtbase::audit {

namespace {

struct Closer
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// std::system_error's own text has the reason behind the text that it is given.
[[noreturn]] void fail()
{
    throw std::system_error(errno, std::generic_category());
}

} // namespace

std::string readTextFile(const std::string& path)
{
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rbe"));
    if (!file)
        fail();
    std::string text;
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(path, unknown);
    if (!unknown)
        text.reserve(size + 1);
    char buffer[65536];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get()))
        text.append(buffer, count);
    if (std::ferror(file.get()))
        fail();
    return text;
}

} // namespace ktqtbase::audit
