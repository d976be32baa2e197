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

void checkFamily(const Catalogue& catalogue, const std::string& family)
{
    if (!family.empty() && !catalogue.hasFamily(family))
        throw std::runtime_error("--family: there is no family \"" + family + "\"");
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

} // namespace

int run(const Arguments& arguments)
{
    Catalogue catalogue(readCatalogueFiles(catalogueFolder(arguments)));
    if (!arguments.explain.empty())
        return explain(catalogue, arguments);
    checkFamily(catalogue, arguments.family);
    Report report = audit(catalogue, arguments.paths);
    reduce(report, arguments);
    Output output(arguments);
    writeReport(report, arguments, output.stream());
    output.close();
    for (const Problem& problem : report.problems)
        std::cerr << "ktqt-audit: " << printable(problem.path + ": " + problem.reason) << "\n";
    return status(report, arguments.failOn);
}

} // namespace ktqtbase::audit
