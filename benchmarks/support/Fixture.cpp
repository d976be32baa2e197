// SPDX-License-Identifier: MIT
#include "support/Fixture.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <stdlib.h>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kFolderLength = 49;
constexpr std::size_t kShortestFileName = 5;

// Short, so that even a name of 20 characters fits below it.
class PrivateFolder
{
public:
    PrivateFolder()
    {
        char name[] = "/tmp/kbXXXXXX";
        if (!mkdtemp(name))
            throw std::runtime_error("no private folder below /tmp");
        m_path = name;
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    ~PrivateFolder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }

    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

std::string rooted(std::size_t length, char letter)
{
    const std::string& root = bench::folder();
    return root + '/' + bench::plainName(length - root.size() - 1, letter);
}

void makeFile(const std::string& name)
{
    fs::create_directories(fs::path(name).parent_path());
    std::ofstream(name).put('\n');
}

} // namespace

const std::string& bench::folder()
{
    static const PrivateFolder folder;
    return folder.path();
}

std::string bench::plainName(std::size_t length, char letter)
{
    std::string name;
    while (length - name.size() > kFolderLength + kShortestFileName)
        name.append(kFolderLength - 1, letter).push_back('/');
    return name.append(length - name.size() - 4, letter).append(".txt");
}

std::string bench::existingName(std::size_t length)
{
    const std::string name = rooted(length, 'e');
    makeFile(name);
    return name;
}

std::string bench::missingName(std::size_t length)
{
    return rooted(length, 'm');
}

std::string bench::relativeName(std::size_t length)
{
    const std::string name = plainName(length, 'r');
    makeFile(folder() + '/' + name);
    return name;
}

std::string bench::fileOfSize(std::size_t bytes)
{
    const std::string name = folder() + "/size" + std::to_string(bytes);
    if (fs::exists(name))
        return name;
    std::ofstream file(name, std::ios::binary);
    const std::string block(std::min<std::size_t>(bytes, 1 << 20), 'x');
    for (std::size_t left = bytes; left > 0; left -= std::min(left, block.size()))
        file.write(block.data(), static_cast<std::streamsize>(std::min(left, block.size())));
    return name;
}

std::wstring bench::wide(const std::string& text)
{
    return std::wstring(text.begin(), text.end());
}
