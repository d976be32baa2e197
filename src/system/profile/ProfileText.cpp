// SPDX-License-Identifier: MIT
#include "system/profile/ProfileText.h"

#include <cstdio>
#include <new>

namespace {

struct FileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileCloser>;

// Opened for update although nothing is written: a file that may not be written counts as absent.
File openForUpdate(const char* fileName)
{
    return File(fileName ? std::fopen(fileName, "r+") : nullptr);
}

// 0 also where the length cannot be told, as for a pipe.
std::size_t lengthOf(std::FILE* file)
{
    std::fseek(file, 0, SEEK_END);
    const long length = std::ftell(file);
    std::rewind(file);
    return length > 0 ? static_cast<std::size_t>(length) : 0;
}

} // namespace

namespace ktqtbase {

ProfileText::ProfileText(const char* fileName)
{
    const File file = openForUpdate(fileName);
    if (!file)
        return;
    const std::size_t length = lengthOf(file.get());
    m_state = length == 0 ? State::Empty : State::Unreadable;
    if (length == 0)
        return;
    m_bytes.reset(new (std::nothrow) char[length]);
    const std::size_t read = m_bytes ? std::fread(m_bytes.get(), 1, length, file.get()) : 0;
    if (read == 0)
        return;
    m_state = State::Read;
    m_text = std::string_view(m_bytes.get(), read);
    m_text = m_text.substr(0, m_text.find('\0'));
}

std::string_view trimmedStart(std::string_view text)
{
    while (!text.empty() && isWhiteSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

std::string_view trimmedEnd(std::string_view text)
{
    while (!text.empty() && isWhiteSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string_view trimmed(std::string_view text)
{
    return trimmedStart(trimmedEnd(text));
}

} // namespace ktqtbase
