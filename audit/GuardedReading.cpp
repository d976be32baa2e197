// SPDX-License-Identifier: MIT
#include "GuardedReading.h"
#include "GuardedProcess.h"
#include "Records.h"
#include "SymbolLookup.h"

#include <set>
#include <tuple>

namespace ktqtbase::audit {

namespace {

constexpr std::size_t kBytesOfNames = 64 << 20;

// The kinds of records that the reading process sends: a name with the scope, the DLL and the
// member that it is in; and what is wrong.
constexpr const char* kName = "name";
constexpr const char* kProblem = "problem";

// What is found in a file, each name once, and those that an archive has itself.
class Collector
{
public:
    explicit Collector(Catalogue& catalogue) : m_catalogue(catalogue) {}

    BinaryVisitor visitor()
    {
        return {[this](const Symbol& symbol) { add(symbol); },
                [this](const std::string& member, const std::string& reason) {
                    addProblem(member, reason);
                }};
    }

    std::string records() const;

private:
    void add(const Symbol& symbol);
    void addProblem(const std::string& member, const std::string& reason);

    Catalogue& m_catalogue;
    std::set<std::tuple<std::string, std::string, std::string, std::string>> m_names;
    std::set<std::pair<std::string, std::string>> m_defined;
    std::string m_problem;
    std::size_t m_size = 0;
};

void Collector::add(const Symbol& symbol)
{
    const PlainName plain = plainName(symbol.name, symbol.hasUnderscore);
    if (!lookUp(m_catalogue, symbol, plain))
        return;
    m_size += symbol.member.size() + symbol.dll.size() + symbol.name.size();
    if (m_size > kBytesOfNames)
        addProblem(std::string(), "damaged, or too large: it has more than 64 MB of names");
    else if (symbol.isDefined)
        m_defined.emplace(plain.scope, plain.name);
    else
        m_names.emplace(symbol.member, symbol.dll, plain.scope, plain.name);
}

// One is enough: a damaged archive may have thousands.
void Collector::addProblem(const std::string& member, const std::string& reason)
{
    if (m_problem.empty())
        m_problem = member.empty() ? reason : member + ": " + reason;
}

std::string Collector::records() const
{
    std::string records;
    for (const auto& [member, dll, scope, name] : m_names) {
        if (m_defined.count({scope, name}) == 0)
            addRecord(records, {kName, member, dll, scope, name});
    }
    if (!m_problem.empty())
        addRecord(records, {kProblem, m_problem});
    return records;
}

class Message
{
public:
    Message(Catalogue& catalogue, BinaryNames& names) : m_catalogue(catalogue), m_names(names) {}

    void read(const std::string& bytes);

private:
    void readRecord(const Record& record);

    Catalogue& m_catalogue;
    BinaryNames& m_names;
    std::set<std::pair<std::string, const Entry*>> m_seen; // the members of a class count as one
};

void Message::read(const std::string& bytes)
{
    for (const Record& record : readRecords(bytes))
        readRecord(record);
}

void Message::readRecord(const Record& record)
{
    if (record.front() == kProblem)
        m_names.problem = record.at(1);
    if (record.front() != kName)
        return;
    Symbol symbol;
    symbol.dll = record.at(2);
    const Entry* const entry = lookUp(m_catalogue, symbol, {record.at(3), record.at(4)});
    if (entry && m_seen.emplace(record.at(1), entry).second)
        m_names.names.push_back({record.at(1), entry});
}

// Why the reading ended before its time.
const char* reason(Ending ending)
{
    return ending == Ending::TooLong ? "damaged, or too large: reading it took more than 30 seconds"
                                     : "damaged: what it says of itself cannot be true";
}

} // namespace

BinaryNames readGuarded(Catalogue& catalogue, const std::string& path,
                        const std::function<void()>& waiting)
{
    const auto read = [&] {
        Collector collector(catalogue);
        readBinaryFile(path, collector.visitor());
        return collector.records();
    };
    BinaryNames names;
    const Outcome outcome = runGuarded(read, waiting);
    if (outcome.ending != Ending::Done)
        return {{}, reason(outcome.ending)};
    Message(catalogue, names).read(outcome.bytes);
    return names;
}

} // namespace ktqtbase::audit
