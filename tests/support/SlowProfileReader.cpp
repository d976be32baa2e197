// SPDX-License-Identifier: MIT
#include "support/SlowProfileReader.h"

#include <vector>

namespace {

const char* const kWhiteSpace = " \t\n\v\f\r";

std::string withoutWhiteSpaceBefore(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    return first == std::string::npos ? std::string() : text.substr(first);
}

std::string withoutWhiteSpaceBehind(const std::string& text)
{
    const std::size_t last = text.find_last_not_of(kWhiteSpace);
    return last == std::string::npos ? std::string() : text.substr(0, last + 1);
}

std::string withoutWhiteSpace(const std::string& text)
{
    return withoutWhiteSpaceBehind(withoutWhiteSpaceBefore(text));
}

std::string withoutSpacesBehind(std::string text)
{
    while (text.size() > 1 && text.back() == ' ')
        text.pop_back();
    return text;
}

std::string withoutQuotes(std::string text)
{
    while (!text.empty() && text.front() == '"')
        text.erase(0, 1);
    while (!text.empty() && text.back() == '"')
        text.pop_back();
    return text;
}

// How many bytes the first line has, with its end.
std::size_t firstLineLength(const std::string& text)
{
    std::size_t end = text.find('\n');
    if (end == std::string::npos)
        end = text.find('\r');
    return end == std::string::npos ? text.size() : end + 1;
}

std::vector<std::string> linesOf(std::string text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t length = firstLineLength(text);
        lines.push_back(withoutWhiteSpace(text.substr(0, length)));
        text.erase(0, length);
    }
    return lines;
}

std::string listOf(const std::vector<std::string>& names, int size)
{
    std::string list;
    int room = size - 1;
    for (const std::string& name : names) {
        const int length = static_cast<int>(name.size());
        if (room <= length + 1) {
            list += name.substr(0, static_cast<std::size_t>(room - 1));
            break;
        }
        list += name + "\t";
        room -= length + 1;
    }
    return list;
}

// Everything that a walk through the lines finds out.
struct Findings
{
    std::vector<std::string> sections;
    std::vector<std::string> keys;
    std::optional<std::string> value;
    bool inSection = false;
    bool keyListStopped = false;
};

void readHeader(const std::string& name, const ProfileQuestion& question, Findings& findings)
{
    findings.sections.push_back(name);
    if (question.section && name == withoutWhiteSpace(*question.section))
        findings.inSection = true;
}

void readKeyLine(const std::string& line, const ProfileQuestion& question, Findings& findings)
{
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos || !findings.inSection)
        return;
    const std::string name = withoutWhiteSpaceBehind(line.substr(0, equals));
    if (name.empty())
        return;
    if (!findings.keyListStopped)
        findings.keys.push_back(name);
    if (question.key && name == withoutWhiteSpace(*question.key))
        findings.value = withoutWhiteSpaceBefore(line.substr(equals + 1));
}

void readLine(const std::string& line, const ProfileQuestion& question, Findings& findings)
{
    const bool bracket = !line.empty() && line[0] == '[';
    if (bracket && findings.inSection)
        findings.keyListStopped = true;
    const std::size_t close = line.find(']');
    if (bracket && close != std::string::npos)
        readHeader(line.substr(1, close - 1), question, findings);
    else
        readKeyLine(line, question, findings);
}

Findings readLines(const std::string& bytes, const ProfileQuestion& question)
{
    Findings findings;
    const std::string text = bytes.substr(0, bytes.find('\0'));
    for (const std::string& line : linesOf(text)) {
        readLine(line, question, findings);
        if (findings.value)
            break;
    }
    return findings;
}

std::string cut(const std::string& text, int size)
{
    return text.substr(0, static_cast<std::size_t>(size - 1));
}

std::string answerText(const Findings& findings, const ProfileQuestion& question)
{
    if (findings.value)
        return cut(*findings.value, question.size);
    if (findings.inSection && !question.key)
        return listOf(findings.keys, question.size);
    if (!question.section)
        return listOf(findings.sections, question.size);
    return cut(withoutSpacesBehind(question.defaultText.value_or("")), question.size);
}

} // namespace

ProfileAnswer readSlowly(const std::string& bytes, const ProfileQuestion& question)
{
    if (question.size < 2)
        return {0, ""};
    if (bytes.empty()) {
        const std::string text = withoutSpacesBehind(question.defaultText.value_or(""));
        return {static_cast<int>(cut(text, question.size).size()), cut(text, question.size)};
    }
    const std::string text = answerText(readLines(bytes, question), question);
    return {static_cast<int>(text.size()), withoutQuotes(text)};
}
