// SPDX-License-Identifier: MIT
#include "Audit.h"
#include "GuardedReading.h"
#include "Progress.h"
#include "SourceReading.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>

namespace ktqtbase::audit {

namespace {

constexpr std::size_t kSourcesAtOnce = 64;

class Auditor
{
public:
    explicit Auditor(Catalogue& catalogue) : m_catalogue(catalogue) {}

    void read(Inputs&& inputs);
    Report report();

private:
    void read(const Input& input);
    void readBinaryInput(const std::string& path);
    void readWaitingSources();
    void addSource(const SourceNames& source);
    std::uint32_t file(const std::string& path, const std::string& member);
    void addUse(const Entry& entry, const std::vector<Place>& places);
    void sortUses();

    Catalogue& m_catalogue;
    Progress m_progress;
    Report m_report;
    std::vector<std::string> m_waiting; // sources that are to be read
    std::unordered_map<const Entry*, std::vector<Place>> m_places;
};

void Auditor::read(Inputs&& inputs)
{
    m_report.problems = std::move(inputs.problems);
    m_progress.setTotal(inputs.files.size());
    for (const Input& input : inputs.files)
        read(input);
    readWaitingSources();
}

void Auditor::read(const Input& input)
{
    if (input.kind == InputKind::Source) {
        m_waiting.push_back(input.path);
        if (m_waiting.size() == kSourcesAtOnce)
            readWaitingSources();
    } else {
        readWaitingSources();
        readBinaryInput(input.path);
    }
}

void Auditor::readBinaryInput(const std::string& path)
{
    ++m_report.binaryCount;
    const BinaryNames found = readGuarded(m_catalogue, path, [this] { m_progress.show(); });
    for (const BinaryNames::Name& name : found.names)
        m_places[name.entry].push_back({file(path, name.member), 0, 0});
    if (!found.problem.empty())
        m_report.problems.push_back({path, found.problem});
    m_progress.next();
}

void Auditor::readWaitingSources()
{
    if (m_waiting.empty())
        return;
    const auto show = [this] { m_progress.show(); };
    for (const SourceNames& source : readSources(m_catalogue, m_waiting, show))
        addSource(source);
    m_waiting.clear();
}

void Auditor::addSource(const SourceNames& source)
{
    ++m_report.sourceCount;
    for (const SourceNames::Name& name : source.names)
        m_places[name.entry].push_back(
            {file(source.path, std::string()), name.place.line, name.place.column});
    if (!source.problem.empty())
        m_report.problems.push_back({source.path, source.problem});
    m_progress.next();
}

// The number of a file in the report. The same one is asked for again and again.
std::uint32_t Auditor::file(const std::string& path, const std::string& member)
{
    std::vector<ReadFile>& files = m_report.files;
    if (files.empty() || files.back().path != path || files.back().member != member)
        files.push_back({path, member});
    return static_cast<std::uint32_t>(files.size() - 1);
}

void Auditor::addUse(const Entry& entry, const std::vector<Place>& places)
{
    m_report.uses.push_back({m_catalogue.withFamily(entry), places});
    const std::string& id = m_report.uses.back().entry.family;
    const Family& family = m_catalogue.family(id);
    m_report.families[id] = {family.title, family.advice};
}

void Auditor::sortUses()
{
    const auto order = [this](const Use& use) {
        return std::tie(use.entry.group, m_report.families[use.entry.family].title, use.entry.name,
                        use.entry.scope);
    };
    std::sort(m_report.uses.begin(), m_report.uses.end(),
              [&](const Use& one, const Use& other) { return order(one) < order(other); });
}

Report Auditor::report()
{
    for (const auto& [entry, places] : m_places)
        addUse(*entry, places);
    sortUses();
    return std::move(m_report);
}

} // namespace

Report audit(Catalogue& catalogue, Inputs&& inputs)
{
    Auditor auditor(catalogue);
    auditor.read(std::move(inputs));
    return auditor.report();
}

} // namespace ktqtbase::audit
