// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_LINEREADER_H
#define NAMEINFO_LINEREADER_H

#include <array>
#include <cstddef>
#include <string>

// Reads a file line by line, and keeps no more of a line than a name may have.
class LineReader
{
public:
    static constexpr std::size_t kLongestLine = 65535;

    enum class Found
    {
        Line,
        LongLine,
        End
    };

    explicit LineReader(int file) : m_file(file) {}

    // Takes the next line without its end, LF or CRLF.
    Found next(std::string& line);

    // The errno of a read that failed, which is an end, too; or 0.
    int error() const { return m_error; }

private:
    bool fill();
    bool take(std::string& line, std::size_t& length);

    int m_file;
    int m_error = 0;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::array<char, 65536> m_buffer{};
};

#endif
