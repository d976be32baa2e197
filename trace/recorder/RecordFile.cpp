// SPDX-License-Identifier: MIT
#include "Recorder.h"

#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// For a program that is not run by ktqt-trace, or cannot open its file.
trace::Record unread;
std::atomic<trace::Record*> mapped;

// A file of another size was made for another release.
bool isRecord(int file)
{
    struct stat status;
    return fstat(file, &status) == 0 && status.st_size == sizeof(trace::Record);
}

trace::Record* mapFile(int file)
{
    if (!isRecord(file))
        return &unread;
    void* const memory =
        mmap(nullptr, sizeof(trace::Record), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    return memory == MAP_FAILED ? &unread : static_cast<trace::Record*>(memory);
}

const char* fileIn(char** environment)
{
    const size_t length = std::strlen(trace::kFileVariable);
    for (; *environment != nullptr; ++environment)
        if (std::strncmp(*environment, trace::kFileVariable, length) == 0 &&
            (*environment)[length] == '=')
            return *environment + length + 1;
    return nullptr;
}

trace::Record* openRecord(char** environment)
{
    const char* const name =
        environment == nullptr ? std::getenv(trace::kFileVariable) : fileIn(environment);
    const int file = name == nullptr ? -1 : open(name, O_RDWR | O_CLOEXEC);
    if (file < 0)
        return &unread;
    trace::Record* const record = mapFile(file);
    close(file);
    return record;
}

// Keeps the first mapping where two threads came at once.
trace::Record& keep(trace::Record* record)
{
    trace::Record* first = nullptr;
    if (mapped.compare_exchange_strong(first, record)) {
        ++record->processes;
        return *record;
    }
    if (record != &unread)
        munmap(record, sizeof(*record));
    return *first;
}

} // namespace

trace::Record& trace::record(char** environment)
{
    Record* const known = mapped;
    return known != nullptr ? *known : keep(openRecord(environment));
}
