// SPDX-License-Identifier: MIT
#include "NameSource.h"
#include "LineReader.h"

#include <QtCore/QString>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF"; // which editors on Windows write

bool isStandardInput(const std::string& list)
{
    return list == "-";
}

// A list that is not there is none that would be gone.
bool stays(const std::string& list)
{
    struct stat status = {};
    if (isStandardInput(list))
        return fstat(STDIN_FILENO, &status) == 0 && S_ISREG(status.st_mode);
    return stat(list.c_str(), &status) != 0 || S_ISREG(status.st_mode);
}

class OpenList
{
public:
    explicit OpenList(const std::string& list)
        : m_isOwn(!isStandardInput(list)),
          m_file(m_isOwn ? open(list.c_str(), O_RDONLY | O_CLOEXEC) : STDIN_FILENO)
    {}
    OpenList(const OpenList&) = delete;
    OpenList& operator=(const OpenList&) = delete;
    ~OpenList()
    {
        if (m_isOwn && m_file >= 0)
            close(m_file);
    }

    int file() const { return m_file; }

private:
    bool m_isOwn;
    int m_file;
};

struct Takers
{
    const NameSource::TakeName& takeName;
    const NameSource::TakeError& takeError;
};

void takeBytes(const std::string& bytes, const std::string& place, const Takers& takers)
{
    std::wstring text;
    if (decodeUtf8(bytes, text))
        takers.takeName(text);
    else
        takers.takeError(place + ": not UTF-8 text");
}

void takeNames(const std::vector<std::string>& names, const Takers& takers)
{
    int number = 0;
    for (const std::string& name : names)
        takeBytes(name, "name " + std::to_string(++number) + " of the command line", takers);
}

void takeLines(int file, const std::string& title, const Takers& takers)
{
    static const std::string tooLong =
        ": longer than " + std::to_string(LineReader::kLongestLine) + " bytes";
    LineReader reader(file);
    std::string line;
    LineReader::Found found = reader.next(line);
    for (int number = 1; found != LineReader::Found::End; ++number) {
        const std::string place = title + ":" + std::to_string(number);
        if (number == 1 && line.rfind(kByteOrderMark, 0) == 0)
            line.erase(0, std::strlen(kByteOrderMark));
        if (found == LineReader::Found::LongLine)
            takers.takeError(place + tooLong);
        else
            takeBytes(line, place, takers);
        found = reader.next(line);
    }
    if (reader.error() != 0)
        takers.takeError(title + ": " + std::strerror(reader.error()));
}

void takeList(const std::string& list, const Takers& takers)
{
    const OpenList open(list);
    if (open.file() < 0)
        takers.takeError(list + ": " + std::strerror(errno));
    else
        takeLines(open.file(), isStandardInput(list) ? "standard input" : list, takers);
}

// Standard input, also under a name such as /dev/stdin, goes on where the last reader left it.
void takeListAhead(const std::string& list, const Takers& takers)
{
    const OpenList open(list);
    const off_t start = lseek(open.file(), 0, SEEK_CUR);
    if (start < 0)
        return;
    takeLines(open.file(), list, takers);
    lseek(open.file(), start, SEEK_SET);
}

} // namespace

bool decodeUtf8(const std::string& bytes, std::wstring& text)
{
    if (bytes.find('\0') != bytes.npos)
        return false;
    // What is not UTF-8 is decoded to other characters. The one in front keeps Qt from dropping a
    // byte order mark.
    const std::string guarded = '.' + bytes;
    const QString decoded = QString::fromStdString(guarded);
    text = decoded.mid(1).toStdWString();
    return decoded.toStdString() == guarded;
}

NameSource::NameSource(std::vector<std::string> names, std::vector<std::string> lists)
    : m_names(std::move(names)), m_lists(std::move(lists))
{}

bool NameSource::canBeReadTwice() const
{
    return std::all_of(m_lists.begin(), m_lists.end(), stays);
}

void NameSource::readAhead(const TakeName& takeName) const
{
    const TakeError ignoreError = [](const std::string&) {};
    const Takers takers = {takeName, ignoreError};
    takeNames(m_names, takers);
    for (const std::string& list : m_lists)
        takeListAhead(list, takers);
}

void NameSource::read(const TakeName& takeName, const TakeError& takeError) const
{
    const Takers takers = {takeName, takeError};
    takeNames(m_names, takers);
    for (const std::string& list : m_lists)
        takeList(list, takers);
}
