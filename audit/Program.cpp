// SPDX-License-Identifier: MIT
#include "Program.h"
#include "Audit.h"
#include "Baseline.h"
#include "CsvReport.h"
#include "HtmlReport.h"
#include "JsonReport.h"
#include "Style.h"
#include "TextReport.h"
#include "Version.h"

#include <llvm/Support/FileSystem.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>

namespace ktqtbase::audit {

namespace {

constexpr int kFailed = 1;
constexpr int kUnreadable = 2;

// The catalogue that is installed with the program, or made with it.
std::string catalogueFolder(const Arguments& arguments)
{
    if (!arguments.catalogue.empty())
        return arguments.catalogue;
    // Where the system cannot name a program's file, LLVM looks at a function's.
    const std::string program =
        llvm::sys::fs::getMainExecutable(nullptr, reinterpret_cast<void*>(&catalogueFolder));
    return program.substr(0, program.rfind('/') + 1) + KTQTBASE_AUDIT_CATALOGUE;
}

// Where a report goes.
class Output
{
public:
    explicit Output(const Arguments& arguments)
        : m_name(arguments.output.empty() ? "standard output" : arguments.output)
    {
        std::error_code error;
        m_stream = std::make_unique<llvm::raw_fd_ostream>(
            arguments.output.empty() ? "-" : arguments.output, error);
        check(error);
    }

    llvm::raw_fd_ostream& stream() { return *m_stream; }

    void close()
    {
        m_stream->flush();
        const std::error_code error = m_stream->error();
        m_stream->clear_error();
        check(error);
    }

private:
    void check(const std::error_code& error) const
    {
        if (error)
            throw std::runtime_error(m_name + ": " + error.message());
    }

    std::string m_name;
    std::unique_ptr<llvm::raw_fd_ostream> m_stream;
};

Style styleFor(const Arguments& arguments)
{
    return arguments.output.empty() ? styleOfOutput() : styleOfFile();
}

void writeReport(const Report& report, const Arguments& arguments, llvm::raw_ostream& out)
{
    switch (arguments.format) {
    case Format::Json:
        return writeJsonReport(report, out);
    case Format::Csv:
        return writeCsvReport(report, out);
    case Format::Sarif:
        return writeSarifReport(report, out);
    case Format::Html:
        return writeHtmlReport(report, out);
    case Format::Text:
        return writeTextReport(report, styleFor(arguments), out);
    }
}

int explain(Catalogue& catalogue, const Arguments& arguments)
{
    const std::vector<const Entry*> entries = catalogue.explain(arguments.explain);
    if (entries.empty())
        throw std::runtime_error(arguments.explain + ": no name that is known");
    Output output(arguments);
    for (const Entry* const entry : entries) {
        const Entry complete = catalogue.withFamily(*entry);
        const Family& family = catalogue.family(complete.family);
        writeEntry(complete, {family.title, family.advice}, styleFor(arguments), output.stream());
    }
    output.close();
    return 0;
}

void keepFamily(Report& report, const std::string& family)
{
    const auto isOther = [&](const Use& use) { return use.entry.family != family; };
    report.uses.erase(std::remove_if(report.uses.begin(), report.uses.end(), isOther),
                      report.uses.end());
}

void keepNewNames(Report& report, const std::string& baseline)
{
    try {
        keepNew(report, baseline);
    } catch (const std::exception& error) {
        throw std::runtime_error("--baseline: " + baseline + ": " + error.what());
    }
}

void reduce(Report& report, const Arguments& arguments)
{
    if (!arguments.family.empty())
        keepFamily(report, arguments.family);
    if (!arguments.baseline.empty())
        keepNewNames(report, arguments.baseline);
    report.shown = arguments.only;
    if (report.shown.empty())
        report.shown.assign(kGroups.begin(), kGroups.end());
}

std::string familyList(const Catalogue& catalogue)
{
    std::string list;
    for (const std::string& id : catalogue.familyIds())
        list += (list.empty() ? "" : ", ") + id;
    return list;
}

// A family is chosen by its id, or by its title, which is what reports show.
Arguments withFamilyId(const Catalogue& catalogue, Arguments arguments)
{
    if (arguments.family.empty())
        return arguments;
    const std::optional<std::string> id = catalogue.familyId(arguments.family);
    if (!id)
        throw std::runtime_error("--family: there is no family \"" + arguments.family +
                                 "\"; there are " + familyList(catalogue));
    arguments.family = *id;
    return arguments;
}

// An unreadable file comes first: what it needs is not known.
int status(const Report& report, const std::vector<Group>& failOn)
{
    if (!report.problems.empty())
        return kUnreadable;
    const bool fails = std::any_of(report.uses.begin(), report.uses.end(), [&](const Use& use) {
        return std::find(failOn.begin(), failOn.end(), use.entry.group) != failOn.end();
    });
    return fails ? kFailed : 0;
}

bool isSameFile(const std::string& one, const std::string& other)
{
    std::error_code isMissing;
    return std::filesystem::equivalent(one, other, isMissing);
}

void checkOutput(const Arguments& arguments, const Inputs& inputs)
{
    std::vector<std::string> paths = arguments.paths;
    paths.push_back(arguments.baseline);
    for (const Input& input : inputs.files)
        paths.push_back(input.path);
    const bool isRead = std::any_of(paths.begin(), paths.end(), [&](const std::string& path) {
        return isSameFile(arguments.output, path);
    });
    if (isRead)
        throw std::runtime_error("--output: " + arguments.output +
                                 ": would overwrite what is read");
}

void report(Report& report, const Arguments& arguments)
{
    reduce(report, arguments);
    Output output(arguments);
    writeReport(report, arguments, output.stream());
    output.close();
}

void tellProblems(const Report& report)
{
    for (const Problem& problem : report.problems)
        std::cerr << "ktqt-audit: " << printable(problem.path + ": " + problem.reason) << "\n";
}

// What cannot be read is told of even if the report cannot be written.
int auditInputs(Catalogue& catalogue, const Arguments& arguments)
{
    Inputs inputs = findInputs(arguments.paths);
    checkOutput(arguments, inputs);
    Report found = audit(catalogue, std::move(inputs));
    found.inputs = arguments.paths;
    try {
        report(found, arguments);
    } catch (const std::exception&) {
        tellProblems(found);
        throw;
    }
    tellProblems(found);
    return status(found, arguments.failOn);
}

} // namespace

int run(const Arguments& arguments)
{
    Catalogue catalogue(readCatalogueFiles(catalogueFolder(arguments)));
    if (!arguments.explain.empty())
        return explain(catalogue, arguments);
    return auditInputs(catalogue, withFamilyId(catalogue, arguments));
}

} // namespace ktqtbase::audit
