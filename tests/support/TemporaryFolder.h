// SPDX-License-Identifier: MIT
//
// Places on disk that a test has for itself, gone when it ends.
#ifndef KTQTBASE_TESTS_SUPPORT_TEMPORARYFOLDER_H
#define KTQTBASE_TESTS_SUPPORT_TEMPORARYFOLDER_H

#include <QtCore/QString>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ktqtbase::test {

// An empty folder with an absolute path.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string name = std::filesystem::temp_directory_path() / "ktqtbase-XXXXXX";
        if (!mkdtemp(name.data()))
            throw std::runtime_error("no temporary folder");
        m_path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(const std::filesystem::path& name) const
    {
        return m_path / name;
    }

private:
    std::filesystem::path m_path;
};

// Makes a folder the working one. The way back is a descriptor, since the folder that a test ends
// in may lie too deep to have a name.
class WorkingFolder
{
public:
    explicit WorkingFolder(const std::filesystem::path& folder)
        : m_before(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        std::filesystem::current_path(folder);
    }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder()
    {
        if (fchdir(m_before) != 0)
            std::abort();
        close(m_before);
    }

private:
    int m_before;
};

// A path as the library takes it, whatever the locale.
inline std::wstring wide(const std::filesystem::path& path)
{
    return QString::fromUtf8(path.c_str()).toStdWString();
}

inline void writeFile(const std::filesystem::path& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

inline std::string readFile(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

// Gives a file or a folder exactly this mode, whatever the umask says.
inline void setMode(const std::filesystem::path& path, mode_t mode)
{
    if (chmod(path.c_str(), mode) != 0)
        throw std::runtime_error("no mode set");
}

} // namespace ktqtbase::test

#endif
