// SPDX-License-Identifier: MIT
#include "Words.h"

namespace ktqtbase::audit {

namespace {

void addSentence(std::string& text, const char* start, const std::string& sentence)
{
    if (sentence.empty())
        return;
    text += (text.empty() ? "" : " ") + std::string(start) + sentence;
    if (text.back() != '.')
        text += '.';
}

} // namespace

std::string title(Group group)
{
    return group == Group::NotHere ? "not here" : std::string(wordOf(group));
}

std::string countedGroup(std::size_t count, Group group)
{
    const bool isVerb = group == Group::Works || group == Group::Differs;
    std::string word = title(group);
    if (isVerb && count != 1)
        word.pop_back();
    return std::to_string(count) + " " + word;
}

std::string counted(std::size_t count, const char* one, const char* several)
{
    return std::to_string(count) + " " + (count == 1 ? one : several);
}

std::string meaning(const Entry& entry)
{
    std::string text;
    addSentence(text, "Here: ", entry.here);
    addSentence(text, "On Windows: ", entry.windows);
    addSentence(text, "Instead: ", entry.instead);
    return text;
}

} // namespace ktqtbase::audit
