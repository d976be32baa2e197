// SPDX-License-Identifier: MIT
#include "support/ScratchProfile.h"

#include <KtQtBase/windows/Profiles.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

constexpr char kPoison = '\x5A';
constexpr std::size_t kCanaries = 32;

char* dataOf(std::optional<std::string>& text)
{
    return text ? text->data() : nullptr;
}

// What the area holds before its first zero, with all else as it must be.
std::string textOf(const std::vector<char>& area, std::size_t size)
{
    const auto end = area.begin() + static_cast<std::ptrdiff_t>(size);
    const auto terminator = std::find(area.begin(), end, '\0');
    const std::string text(area.begin(), terminator);
    if (std::count(terminator, end, '\0') != end - terminator)
        ADD_FAILURE() << "bytes behind the text are not zero: " << text;
    if (std::count(end, area.end(), kPoison) != area.end() - end)
        ADD_FAILURE() << "bytes behind the area were written: " << text;
    return text;
}

} // namespace

ScratchProfile::ScratchProfile(const std::string& bytes)
    : m_folderName(m_folder.path().toStdString()), m_name(m_folderName + "/app.ini")
{
    rewrite(bytes);
}

std::wstring ScratchProfile::wideName() const
{
    return std::wstring(m_name.begin(), m_name.end());
}

void ScratchProfile::rewrite(const std::string& bytes) const
{
    // Some file systems write a file to the disk at once if it is cut and filled again. A new file
    // is faster.
    remove();
    std::ofstream(m_name, std::ios::binary) << bytes;
}

std::string ScratchProfile::bytes() const
{
    std::ifstream file(m_name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void ScratchProfile::remove() const
{
    std::remove(m_name.c_str());
}

ProfileAnswer ScratchProfile::read(const ProfileQuestion& question)
{
    return readProfile(m_name.data(), question);
}

ProfileAnswer readProfile(char* fileName, const ProfileQuestion& question)
{
    ProfileQuestion asked = question;
    const auto size = static_cast<std::size_t>(std::max(question.size, 0));
    std::vector<char> area(size + kCanaries, kPoison);
    const int count =
        read_profile_string(dataOf(asked.section), dataOf(asked.key), dataOf(asked.defaultText),
                            area.data(), question.size, fileName);
    return {count, textOf(area, size)};
}
