// SPDX-License-Identifier: MIT
#include "GuardedReading.h"
#include "Records.h"
#include "SymbolLookup.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <set>
#include <tuple>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ktqtbase::audit {

namespace {

constexpr rlim_t kSeconds = 30;
constexpr unsigned kSecondsOfWaiting = 120; // also for a slow disk
constexpr rlim_t kBytes = rlim_t(4) << 30;
constexpr std::size_t kBytesOfNames = 64 << 20;

// Sanitizers reserve more addresses than any limit has.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kLimitsMemory = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) ||                         \
    __has_feature(memory_sanitizer)
constexpr bool kLimitsMemory = false;
#else
constexpr bool kLimitsMemory = true;
#endif
#else
constexpr bool kLimitsMemory = true;
#endif
constexpr int kPatience = 200; // milliseconds

// The kinds of records that the reading process sends: a name with the scope, the DLL and the
// member that it is in; what is wrong; and, at the end, that all was sent.
constexpr const char* kName = "name";
constexpr const char* kProblem = "problem";
constexpr const char* kEnd = "end";

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
    addRecord(records, {kEnd});
    return records;
}

void setLimit(int resource, rlim_t value)
{
    const rlimit limit = {value, value};
    setrlimit(static_cast<decltype(RLIMIT_CPU)>(resource), &limit);
}

// What a library says while it crashes is no help to anybody, nor is its memory on disk.
void prepareToCrash()
{
    setLimit(RLIMIT_CORE, 0);
    setLimit(RLIMIT_CPU, kSeconds);
    if (kLimitsMemory)
        setLimit(RLIMIT_AS, kBytes);
    std::signal(SIGALRM, SIG_DFL);
    alarm(kSecondsOfWaiting);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDERR_FILENO);
}

bool writeAll(int file, const std::string& bytes)
{
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = write(file, bytes.data() + done, bytes.size() - done);
        if (count < 0 && errno != EINTR)
            return false;
        done += static_cast<std::size_t>(count < 0 ? 0 : count);
    }
    return true;
}

[[noreturn]] void readInChild(Catalogue& catalogue, const std::string& path, int pipe) noexcept
{
    prepareToCrash();
    Collector collector(catalogue);
    readBinaryFile(path, collector.visitor());
    _exit(writeAll(pipe, collector.records()) ? 0 : 1);
}

void wait(int pipe, const std::function<void()>& waiting)
{
    pollfd file = {pipe, POLLIN, 0};
    while (poll(&file, 1, kPatience) == 0)
        waiting();
}

std::string readAll(int pipe, const std::function<void()>& waiting)
{
    std::string bytes;
    char buffer[65536];
    for (;;) {
        wait(pipe, waiting);
        const ssize_t count = read(pipe, buffer, sizeof buffer);
        if (count > 0)
            bytes.append(buffer, static_cast<std::size_t>(count));
        else if (count == 0 || errno != EINTR)
            return bytes;
    }
}

int waitForChild(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR)
        ;
    return status;
}

std::string whyItEnded(int status)
{
    if (WIFSIGNALED(status) &&
        (WTERMSIG(status) == SIGXCPU || WTERMSIG(status) == SIGALRM || WTERMSIG(status) == SIGKILL))
        return "damaged, or too large: reading it took more than " + std::to_string(kSeconds) +
               " seconds";
    return "damaged: what it says of itself cannot be true";
}

class Message
{
public:
    Message(Catalogue& catalogue, BinaryNames& names) : m_catalogue(catalogue), m_names(names) {}

    // Result: whether the message is complete.
    bool read(const std::string& bytes);

private:
    void readRecord(const std::vector<std::string>& record);

    Catalogue& m_catalogue;
    BinaryNames& m_names;
    std::set<std::pair<std::string, const Entry*>> m_seen; // the members of a class count as one
    bool m_isComplete = false;
};

bool Message::read(const std::string& bytes)
{
    for (const std::vector<std::string>& record : readRecords(bytes))
        readRecord(record);
    return m_isComplete;
}

void Message::readRecord(const std::vector<std::string>& record)
{
    m_isComplete = record.front() == kEnd;
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

BinaryNames failed(const char* what)
{
    return {{}, std::string(what) + ": " + std::strerror(errno)};
}

BinaryNames readFromChild(Catalogue& catalogue, pid_t child, int pipe,
                          const std::function<void()>& waiting)
{
    BinaryNames names;
    const std::string bytes = readAll(pipe, waiting);
    close(pipe);
    const int status = waitForChild(child);
    if (!Message(catalogue, names).read(bytes) || status != 0)
        return {{}, whyItEnded(status)};
    return names;
}

} // namespace

BinaryNames readGuarded(Catalogue& catalogue, const std::string& path,
                        const std::function<void()>& waiting)
{
    int pipes[2] = {-1, -1};
    if (pipe(pipes) != 0)
        return failed("no pipe");
    const pid_t child = fork();
    if (child == 0)
        readInChild(catalogue, path, pipes[1]);
    close(pipes[1]);
    if (child > 0)
        return readFromChild(catalogue, child, pipes[0], waiting);
    close(pipes[0]);
    return failed("no process");
}

} // namespace ktqtbase::audit
