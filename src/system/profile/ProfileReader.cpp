// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Profiles.h>

#include "system/profile/ProfileNames.h"
#include "system/profile/ProfileResult.h"
#include "system/profile/ProfileSearch.h"
#include "system/profile/ProfileText.h"

using ktqtbase::ProfileNames;
using ktqtbase::ProfileQuery;
using ktqtbase::ProfileResult;
using ktqtbase::ProfileText;

namespace {

// The least area that holds a byte and a terminator.
constexpr int kLeastSize = 2;

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

void answer(std::string_view text, const ProfileQuery& query, std::string_view fallback,
            ProfileResult& result)
{
    if (query.section && query.key) {
        const auto value = ktqtbase::searchProfile(text, *query.section, *query.key);
        result.assign(value.value_or(fallback));
    } else {
        ProfileNames scanner(text, query, result);
        if (!scanner.list())
            result.assign(fallback);
    }
    result.stripQuotes();
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
    const ProfileQuery query{trimmedArgument(section), trimmedArgument(key)};

    const ProfileText file(fileName);
    if (file.state() == ProfileText::State::Read)
        answer(file.text(), query, fallback, result);
    else if (file.state() == ProfileText::State::Empty ||
             (file.state() == ProfileText::State::Absent && section))
        result.assign(fallback);
    return result.count();
}
