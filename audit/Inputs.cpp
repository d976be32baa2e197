// SPDX-License-Identifier: MIT
#include "Inputs.h"
#include "BinaryFile.h"
#include "CompileCommands.h"
#include "LowerCase.h"
#include "TextFile.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <set>
#include <system_error>

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace ktqtbase::audit {

namespace {

constexpr std::size_t kBeginning = 4096;

bool isSourceName(const fs::path& path)
{
    static const std::set<std::string> extensions = {".c",  ".cc",  ".cpp", ".cxx", ".h",
                                                     ".hh", ".hpp", ".hxx", ".inl", ".ipp",
                                                     ".rc", ".rc2", ".m",   ".mm"};
    return extensions.count(lowerCase(path.extension())) > 0;
}

// Files with these names are programs, or damaged.
bool isProgramName(const fs::path& path)
{
    static const std::set<std::string> extensions = {".exe", ".dll", ".ocx"};
    return extensions.count(lowerCase(path.extension())) > 0;
}

bool isBinaryName(const fs::path& path)
{
    static const std::set<std::string> extensions = {".obj", ".lib", ".o", ".a", ".so", ".dylib"};
    return isProgramName(path) || extensions.count(lowerCase(path.extension())) > 0;
}

std::string reason(int error)
{
    return std::generic_category().message(error);
}

// Text has no zeros, unless it is UTF-16 with its mark.
bool isText(const std::string& beginning)
{
    const std::string mark = beginning.substr(0, 2);
    return mark == "\xFF\xFE" || mark == "\xFE\xFF" || beginning.find('\0') == std::string::npos;
}

class Search
{
public:
    void addNamed(const std::string& path);
    Inputs take() { return std::move(m_inputs); }

private:
    void addNamedFile(const std::string& path);
    void addCompileCommands(const std::string& path);
    void addSources(const std::vector<std::string>& paths);
    void addFolder(const fs::path& path);
    void addFound(const fs::directory_entry& entry);
    void addFoundFile(const std::string& path);
    void addUnknown(const std::string& path, const std::string& beginning);
    bool isFile(const std::string& path);
    bool readBeginning(const std::string& path, std::string& beginning);
    void add(const std::string& path, InputKind kind);
    void addProblem(const std::string& path, const std::string& reason);

    Inputs m_inputs;
    std::set<std::pair<dev_t, ino_t>> m_seen;
};

void Search::addNamed(const std::string& path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        addProblem(path, reason(errno));
    else if (S_ISDIR(status.st_mode))
        addFolder(path);
    else if (S_ISREG(status.st_mode))
        addNamedFile(path);
    else
        addProblem(path, "neither a file nor a folder");
}

void Search::addNamedFile(const std::string& path)
{
    std::string beginning;
    if (!readBeginning(path, beginning))
        return;
    if (isBinary(beginning))
        add(path, InputKind::Binary);
    else if (fs::path(path).extension() == ".json")
        addCompileCommands(path);
    else if (isSourceName(path) || (isText(beginning) && !isBinaryName(path)))
        add(path, InputKind::Source);
    else
        addUnknown(path, beginning);
}

void Search::addUnknown(const std::string& path, const std::string& beginning)
{
    addProblem(path, beginning.empty() ? "empty"
                                       : "neither a program, a library, an object nor a source");
}

void Search::addCompileCommands(const std::string& path)
{
    try {
        addSources(readCompileCommands(path));
    } catch (const std::exception& error) {
        addProblem(path, error.what());
    }
}

void Search::addSources(const std::vector<std::string>& paths)
{
    std::string beginning;
    for (const std::string& path : paths) {
        if (readBeginning(path, beginning))
            add(path, InputKind::Source);
    }
}

void Search::addFolder(const fs::path& path)
{
    std::error_code error;
    std::vector<fs::directory_entry> entries;
    for (fs::directory_iterator it(path, error), end; !error && it != end; it.increment(error))
        entries.push_back(*it);
    if (error)
        addProblem(path, error.message());
    std::sort(entries.begin(), entries.end());
    for (const fs::directory_entry& entry : entries)
        addFound(entry);
}

// Links to folders are not followed, as they may lead round in a circle.
void Search::addFound(const fs::directory_entry& entry)
{
    std::error_code error;
    const bool isHidden = entry.path().filename().string().front() == '.';
    if (entry.is_directory(error) && !entry.is_symlink(error)) {
        if (!isHidden)
            addFolder(entry.path());
    } else if (entry.is_regular_file(error)) {
        addFoundFile(entry.path());
    }
}

void Search::addFoundFile(const std::string& path)
{
    std::string beginning;
    if (!readBeginning(path, beginning))
        return;
    if (isBinary(beginning))
        add(path, InputKind::Binary);
    else if (isSourceName(path))
        add(path, InputKind::Source);
    else if (isProgramName(path))
        addUnknown(path, beginning);
}

bool Search::isFile(const std::string& path)
{
    try {
        checkIsFile(path);
        return true;
    } catch (const std::exception& error) {
        addProblem(path, error.what());
        return false;
    }
}

bool Search::readBeginning(const std::string& path, std::string& beginning)
{
    if (!isFile(path))
        return false;
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        addProblem(path, reason(errno));
        return false;
    }
    beginning.resize(kBeginning);
    file.read(beginning.data(), kBeginning);
    beginning.resize(static_cast<std::size_t>(file.gcount()));
    return true;
}

// A file may be named twice, or have two names.
void Search::add(const std::string& path, InputKind kind)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) == 0 && m_seen.emplace(status.st_dev, status.st_ino).second)
        m_inputs.files.push_back({path, kind});
}

void Search::addProblem(const std::string& path, const std::string& reason)
{
    m_inputs.problems.push_back({path, reason});
}

} // namespace

Inputs findInputs(const std::vector<std::string>& paths)
{
    Search search;
    for (const std::string& path : paths)
        search.addNamed(path);
    return search.take();
}

} // namespace ktqtbase::audit
