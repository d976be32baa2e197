// SPDX-License-Identifier: MIT
#include "NameSource.h"

#include <QtCore/QTextCodec>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

bool decodeUtf8(const std::string& bytes, std::wstring& text)
{
    if (bytes.find('\0') != bytes.npos)
        return false;
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QTextCodec* codec = QTextCodec::codecForName("UTF-8");
    const QString decoded = codec->toUnicode(bytes.data(), static_cast<int>(bytes.size()), &state);
    text = decoded.toStdWString();
    return state.invalidChars == 0 && state.remainingChars == 0;
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
