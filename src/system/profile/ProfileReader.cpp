// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Profiles.h>

#include "system/profile/ProfileNames.h"
#include "system/profile/ProfileResult.h"
#include "system/profile/ProfileSearch.h"
#include "system/profile/ProfileText.h"

#include <optional>
#include <string_view>

using ktqtbase::ProfileResult;
using ktqtbase::ProfileText;

namespace {

// The least area that holds a byte and a terminator.
constexpr int kLeastSize = 2;

// What is asked for. Without a section the answer is the list of sections, without a key the list
// of the section's keys.
struct Query
{
    std::optional<std::string_view> section;
    std::optional<std::string_view> key;
};

std::optional<std::string_view> trimmedArgument(const char* text)
{
    return text ? std::make_optional(ktqtbase::trimmed(text)) : std::nullopt;
}

// Spaces alone are taken off, not tabs; a text of spaces keeps one.
std::string_view trimmedDefault(const char* text)
{
    std::string_view kept = text ? text : "";
    while (kept.size() > 1 && kept.back() == ' ')
        kept.remove_suffix(1);
    return kept;
}

// Finds a key's value, or adds the names of a list. Result: whether there is an answer.
bool findAnswer(std::string_view text, const Query& query, ProfileResult& result)
{
    if (!query.section) {
        ktqtbase::listSections(text, result);
        return true;
    }
    if (!query.key)
        return ktqtbase::listKeys(text, *query.section, result);
    const auto value = ktqtbase::searchProfile(text, *query.section, *query.key);
    if (value)
        result.assign(*value);
    return value.has_value();
}

} // namespace

int read_profile_string(const char* section, char* key, char* defaultText, char* out, int size,
                        char* fileName)
{
    if (out && size == 1)
        out[0] = '\0';
    if (!out || size < kLeastSize)
        return 0;
    ProfileResult result(out, static_cast<std::size_t>(size));
    const std::string_view fallback = trimmedDefault(defaultText);
    const Query query{trimmedArgument(section), trimmedArgument(key)};

    const ProfileText file(fileName);
    if (file.state() == ProfileText::State::Read) {
        if (!findAnswer(file.text(), query, result))
            result.assign(fallback);
        result.stripQuotes();
    } else if (file.state() == ProfileText::State::Empty ||
               (file.state() == ProfileText::State::Absent && section)) {
        result.assign(fallback);
    }
    return result.count();
}
