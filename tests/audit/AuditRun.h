// SPDX-License-Identifier: MIT
//
// Runs ktqt-audit with the tests' own catalogue, and looks at what it reports.
#ifndef KTQTBASE_TESTS_AUDIT_AUDITRUN_H
#define KTQTBASE_TESTS_AUDIT_AUDITRUN_H

#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

#include <filesystem>
#include <string>
#include <vector>

namespace ktqtbase::test {

ProgramResult runAudit(const QStringList& arguments);

// A report of --json.
class AuditRun
{
public:
    explicit AuditRun(const QStringList& arguments);

    int status() const { return m_result.status; }
    const std::string& errors() const { return m_result.err; }
    const QJsonObject& report() const { return m_report; }

    // Each name with its group: "CopyFile differs". Sorted.
    std::vector<std::string> names() const;

    // The group of a name behind its scope; empty if it is not in the report.
    std::string group(const std::string& name) const;

    // Where a name is used: "main.cpp:3", "old.lib(main.obj)"; without folders.
    std::vector<std::string> places(const std::string& name) const;

private:
    QJsonObject find(const std::string& name) const;

    ProgramResult m_result;
    QJsonObject m_report;
};

inline QString text(const std::filesystem::path& path)
{
    return QString::fromUtf8(path.c_str());
}

// Writes one source and audits it.
AuditRun auditSource(const std::string& content, const std::string& name = "main.cpp");

} // namespace ktqtbase::test

#endif
