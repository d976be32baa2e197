// SPDX-License-Identifier: MIT
#include "Audit.h"
#include "GuardedReading.h"
#include "Progress.h"
#include "SourceFile.h"
#include "SourceText.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>

namespace ktqtbase::audit {

namespace {

bool hasCapital(std::string_view name)
{
    return std::any_of(name.begin(), name.end(), [](char ch) { return ch >= 'A' && ch <= 'Z'; });
}

// Functions without a capital, such as "lstrlen", have names that a program may give to anything.
const Entry* lookUp(const Catalogue& catalogue, const SourceName& name)
{
    if (name.isMember)
        return nullptr;
    const Entry* const entry = catalogue.find(name.scope, name.name);
    const bool isOther = entry && isFunction(*entry) && !name.isCalled && !hasCapital(name.name);
    return isOther ? nullptr : entry;
}

class Auditor
{
public:
    explicit Auditor(Catalogue& catalogue) : m_catalogue(catalogue) {}

    void read(Inputs&& inputs);
    Report report();

private:
    void read(const Input& input);
    void readBinaryInput(const std::string& path);
    void readSourceInput(const std::string& path);
    void findNames(const std::string& path, std::string_view text);
    std::uint32_t file(const std::string& path, const std::string& member);
    void addUse(const Entry& entry, const std::vector<Place>& places);
    void sortUses();

    Catalogue& m_catalogue;
    Progress m_progress;
    Report m_report;
    std::unordered_map<const Entry*, std::vector<Place>> m_places;
};

void Auditor::read(Inputs&& inputs)
{
    m_report.problems = std::move(inputs.problems);
    m_progress.setTotal(inputs.files.size());
    for (const Input& input : inputs.files) {
        read(input);
        m_progress.next();
    }
}

void Auditor::read(const Input& input)
{
    if (input.kind == InputKind::Binary) {
        ++m_report.binaryCount;
        readBinaryInput(input.path);
    } else {
        ++m_report.sourceCount;
        readSourceInput(input.path);
    }
}

void Auditor::readBinaryInput(const std::string& path)
{
    const BinaryNames found = readGuarded(m_catalogue, path, [this] { m_progress.show(); });
    for (const BinaryNames::Name& name : found.names)
        m_places[name.entry].push_back({file(path, name.member), 0, 0});
    if (!found.problem.empty())
        m_report.problems.push_back({path, found.problem});
}

void Auditor::readSourceInput(const std::string& path)
{
    try {
        const std::string text = readSourceText(path);
        findNames(path, text);
        if (isNoText(text))
            m_report.problems.push_back({path, "not text, though it is taken for a source"});
    } catch (const std::exception& error) {
        m_report.problems.push_back({path, error.what()});
    }
}

void Auditor::findNames(const std::string& path, std::string_view text)
{
    PlaceCounter placeOf(text);
    readSource(text, [&](const SourceName& name) {
        if (const Entry* const entry = lookUp(m_catalogue, name)) {
            const SourcePlace place = placeOf(name.place);
            m_places[entry].push_back({file(path, std::string()), place.line, place.column});
        }
    });
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
