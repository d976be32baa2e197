// SPDX-License-Identifier: MIT
#include "system/profile/ProfileText.h"

#include <cerrno>
#include <new>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A file opened for update although nothing is written: one that may not be written counts as
// absent. Programs that the host starts do not inherit it.
class File
{
public:
    explicit File(const char* name) : m_descriptor(name ? open(name, O_RDWR | O_CLOEXEC) : -1) {}
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File()
    {
        if (isOpen())
            close(m_descriptor);
    }

    bool isOpen() const { return m_descriptor >= 0; }

    // 0 also where there is no length, as for a pipe.
    std::size_t length() const
    {
        struct stat status;
        const bool isKnown = fstat(m_descriptor, &status) == 0 && status.st_size > 0;
        return isKnown ? static_cast<std::size_t>(status.st_size) : 0;
    }

    // Reads from the start. Result: the bytes read, fewer where the file has become shorter or the
    // system gives no more.
    std::size_t readInto(char* area, std::size_t length) const
    {
        std::size_t done = 0;
        while (done < length) {
            const ssize_t count = ::read(m_descriptor, area + done, length - done);
            if (count == 0 || (count < 0 && errno != EINTR))
                break;
            done += count > 0 ? static_cast<std::size_t>(count) : 0;
        }
        return done;
    }

private:
    int m_descriptor;
};

} // namespace

namespace ktqtbase {

ProfileText::ProfileText(const char* fileName)
{
    const File file(fileName);
    if (!file.isOpen())
        return;
    const std::size_t length = file.length();
    m_state = length == 0 ? State::Empty : State::Unreadable;
    if (length == 0)
        return;
    m_bytes.reset(new (std::nothrow) char[length]);
    const std::size_t read = m_bytes ? file.readInto(m_bytes.get(), length) : 0;
    if (read == 0)
        return;
    m_state = State::Read;
    m_text = std::string_view(m_bytes.get(), read);
    m_text = m_text.substr(0, m_text.find('\0'));
}

} // namespace ktqtbase
