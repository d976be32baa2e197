// SPDX-License-Identifier: MIT
#include "AuditRun.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>

namespace ktqtbase::test {

namespace {

std::string fullName(const QJsonObject& name)
{
    const QString scope = name["scope"].toString();
    return (scope.isEmpty() ? scope : scope + "::").toStdString() +
           name["name"].toString().toStdString();
}

void addPlaces(std::vector<std::string>& places, const QJsonObject& file)
{
    std::string path = QFileInfo(file["file"].toString()).fileName().toStdString();
    if (file.contains("member"))
        path += "(" + file["member"].toString().toStdString() + ")";
    if (!file.contains("lines"))
        places.push_back(path);
    for (const QJsonValue& line : file["lines"].toArray())
        places.push_back(path + ":" + std::to_string(line.toInt()));
}

} // namespace

ProgramResult runAudit(const QStringList& arguments)
{
    return runProgram(AUDIT, QStringList{"--catalogue", AUDIT_CATALOGUE} + arguments);
}

AuditRun::AuditRun(const QStringList& arguments)
    : m_result(runAudit(QStringList{"--json"} + arguments)),
      m_report(QJsonDocument::fromJson(QByteArray::fromStdString(m_result.out)).object())
{}

std::vector<std::string> AuditRun::names() const
{
    std::vector<std::string> names;
    for (const QJsonValue& name : m_report["names"].toArray())
        names.push_back(fullName(name.toObject()) + " " +
                        name.toObject()["group"].toString().toStdString());
    std::sort(names.begin(), names.end());
    return names;
}

std::string AuditRun::group(const std::string& name) const
{
    return find(name)["group"].toString().toStdString();
}

std::vector<std::string> AuditRun::places(const std::string& name) const
{
    std::vector<std::string> places;
    for (const QJsonValue& file : find(name)["places"].toArray())
        addPlaces(places, file.toObject());
    return places;
}

QJsonObject AuditRun::find(const std::string& name) const
{
    for (const QJsonValue& value : m_report["names"].toArray()) {
        if (fullName(value.toObject()) == name)
            return value.toObject();
    }
    return QJsonObject();
}

AuditRun auditSource(const std::string& content, const std::string& name)
{
    const TemporaryFolder folder;
    writeFile(folder / name, content);
    return AuditRun({text(folder / name)});
}

} // namespace ktqtbase::test
