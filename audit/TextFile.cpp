// SPDX-License-Identifier: MIT
#include "TextFile.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <system_error>

#include <sys/stat.h>

namespace ktqtbase::audit {

namespace {

struct Closer
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// std::system_error's own text has the reason behind the text that it is given.
[[noreturn]] void fail(int error)
{
    throw std::system_error(error, std::generic_category());
}

} // namespace

void checkIsFile(const std::string& path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        fail(errno);
    if (S_ISDIR(status.st_mode))
        fail(EISDIR);
    if (!S_ISREG(status.st_mode))
        throw std::runtime_error("neither a file nor a folder");
}

std::string readTextFile(const std::string& path)
{
    checkIsFile(path);
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rbe"));
    if (!file)
        fail(errno);
    std::string text;
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(path, unknown);
    if (!unknown)
        text.reserve(size + 1);
    char buffer[65536];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get()))
        text.append(buffer, count);
    if (std::ferror(file.get()))
        fail(errno);
    return text;
}

} // namespace ktqtbase::audit
