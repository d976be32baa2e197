// SPDX-License-Identifier: MIT
//
// Parsing a name beside what other libraries do to answer the same questions: is it rooted, is its
// last component a pattern, does it exist and as what. They get the narrow text that they work with
// inside and keep their object's storage between the calls; the library gets wide text, as its
// hosts have it. The other measure is one system call on a narrow path that is ready.
#include "support/Fixture.h"
#include "support/Name.h"
#include "support/Rows.h"

#include <boost/filesystem.hpp>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <cstddef>
#include <filesystem>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using bench::Row;
namespace bfs = boost::filesystem;
namespace sfs = std::filesystem;

const std::size_t kLengths[] = {20, 60, 250};
// Names that may be too long for what a parse keeps on the stack.
const std::size_t kLongLengths[] = {512, 1000};
const std::size_t kGrowingLengths[] = {32, 64, 128, 256, 512};

bool holdsWildcard(const std::string& text)
{
    return text.find_first_of("*?") != text.npos;
}

// One name to be parsed, below a base where it is relative.
struct Question
{
    std::string base;
    std::string name;

    std::string joined() const { return base.empty() ? name : base + '/' + name; }
};

void askStat(const std::string& path)
{
    struct stat status;
    benchmark::DoNotOptimize(stat(path.c_str(), &status));
}

template<class Path, class Error>
void ask(Path& path)
{
    Error error;
    benchmark::DoNotOptimize(path.is_absolute());
    benchmark::DoNotOptimize(holdsWildcard(path.filename().native()));
    benchmark::DoNotOptimize(status(path, error).type());
}

template<class Path, class Error>
auto askPath(const Question& question)
{
    return [base = Path(question.base), name = question.name, path = Path()]() mutable {
        if (base.empty())
            path = name;
        else
            (path = base) /= name;
        ask<Path, Error>(path);
    };
}

auto askQt(const Question& question)
{
    return [base = QDir(QString::fromStdString(question.base)), relative = !question.base.empty(),
            name = QString::fromStdString(question.name), info = QFileInfo()]() mutable {
        if (relative)
            info.setFile(base, name);
        else
            info.setFile(name);
        const QString last = info.fileName();
        benchmark::DoNotOptimize(info.isRelative());
        benchmark::DoNotOptimize(last.contains(u'*') || last.contains(u'?'));
        benchmark::DoNotOptimize(info.exists() && info.isDir());
    };
}

auto askLibrary(const Question& question)
{
    auto base = std::make_shared<bench::Name>();
    if (!question.base.empty())
        base->ParseRelative(bench::wide(question.base).c_str(), nullptr, false);
    return [base, name = bench::wide(question.name), path = std::make_shared<bench::Name>()] {
        benchmark::DoNotOptimize(path->ParseRelative(name.c_str(), base.get(), false));
    };
}

// The question is made when the row is measured, since it may make a file.
template<class MakeQuestion>
void addParse(const std::string& kind, std::size_t length, MakeQuestion make)
{
    Row("ParseRelative, " + kind, std::to_string(length))
        .library([make] { return askLibrary(make()); })
        .reference("stat", [make] { return [path = make().joined()] { askStat(path); }; })
        .reference("Boost.Filesystem",
                   [make] { return askPath<bfs::path, boost::system::error_code>(make()); })
        .reference("std::filesystem",
                   [make] { return askPath<sfs::path, std::error_code>(make()); })
        .reference("QFileInfo", [make] { return askQt(make()); });
}

void addExistingParse(std::size_t length)
{
    addParse("existing", length, [=] { return Question{"", bench::existingName(length)}; });
}

void addParses(std::size_t length)
{
    addExistingParse(length);
    addParse("missing", length, [=] { return Question{"", bench::missingName(length)}; });
    addParse("relative", length, [=] {
        return Question{bench::folder(), bench::relativeName(length)};
    });
    addParse("drive", length, [=] {
        return Question{"", "C:/" + bench::plainName(length - 3, 'm')};
    });
}

std::string programFolder()
{
    return sfs::read_symlink("/proc/self/exe").parent_path().string();
}

void addOwnFolderParse(const std::string& kind, std::size_t length, bool relative)
{
    const auto make = [=] {
        return relative ? Question{programFolder(), bench::plainName(length, 'p')}
                        : Question{"", bench::existingName(length)};
    };
    Row("Parse, " + kind, std::to_string(length))
        .library([make] {
            return [name = bench::wide(make().name), path = std::make_shared<bench::Name>()] {
                benchmark::DoNotOptimize(path->Parse(name.c_str(), false));
            };
        })
        .reference("stat", [make] { return [path = make().joined()] { askStat(path); }; });
}

void addGrowth(std::size_t length)
{
    const auto make = [=] { return Question{"", bench::existingName(length)}; };
    Row("ParseRelative by length", std::to_string(length))
        .library([make] { return askLibrary(make()); })
        .reference("stat", [make] { return [path = make().joined()] { askStat(path); }; });
}

} // namespace

void bench::addPathRows()
{
    for (const std::size_t length : kLengths) {
        addParses(length);
        addOwnFolderParse("existing", length, false);
        addOwnFolderParse("relative", length, true);
    }
    for (const std::size_t length : kLongLengths)
        addExistingParse(length);
    for (const std::size_t length : kGrowingLengths)
        addGrowth(length);
}
