// SPDX-License-Identifier: MIT
#include "NameSource.h"

#include <QtCore/QString>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

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

void NameSource::add(const std::string& bytes, const std::string& place)
{
    std::wstring text;
    if (decodeUtf8(bytes, text))
        names.push_back(text);
    else
        errors.push_back(place + ": not UTF-8 text");
}

void NameSource::addLines(std::istream& lines, const std::string& title)
{
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number)
        add(line, title + ":" + std::to_string(number));
    if (lines.bad())
        errors.push_back(title + ": cannot be read");
}

void NameSource::addFile(const std::string& fileName)
{
    if (fileName == "-") {
        addLines(std::cin, "standard input");
        return;
    }
    std::ifstream file(fileName);
    if (file)
        addLines(file, fileName);
    else
        errors.push_back(fileName + ": " + std::strerror(errno));
}
