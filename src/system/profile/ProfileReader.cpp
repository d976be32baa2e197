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

// Fills the result from a file that is read, empty or absent.
void answer(const ProfileText& file, const Query& query, std::string_view fallback,
            ProfileResult& result)
{
    const bool isRead = file.state() == ProfileText::State::Read;
    const bool hasFallback = file.state() == ProfileText::State::Empty ||
                             (file.state() == ProfileText::State::Absent && query.section);
    if (isRead ? !findAnswer(file.text(), query, result) : hasFallback)
        result.assign(fallback);
    // Kept: quotes stay in the default of a file that is absent or empty; a host would lose them
    // otherwise.
    if (isRead)
        result.stripQuotes();
}

} // namespace

int read_profile_string(const char* section, char* key, char* defaultText, char* out, int size,
                        char* fileName)
{
    if (!out || size < 1)
        return 0;
    ProfileResult result(out, static_cast<std::size_t>(size));
    if (size == 1)
        return 0;
    const Query query{trimmedArgument(section), trimmedArgument(key)};
    answer(ProfileText(fileName), query, trimmedDefault(defaultText), result);
    return result.count();
}
