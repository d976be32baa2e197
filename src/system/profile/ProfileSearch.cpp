// SPDX-License-Identifier: MIT
#include "system/profile/ProfileSearch.h"

#include <algorithm>

namespace {

// Whether a byte may follow a key: an equals sign, or white space before it. The test is cheap and
// lets other bytes pass, too; entryOf judges exactly.
bool mayFollowKey(char c)
{
    return (c == '=') | (c <= ' ');
}

// Whether a key may begin at one of a few places. All of them are looked at, in bytes and with no
// branch in between, so that compilers look at many at once.
bool mayBeginAmong(const char* places, std::size_t count, std::string_view key)
{
    const char* const lasts = places + key.size() - 1;
    const char first = key.front();
    const char last = key.back();
    char found = 0;
    for (std::size_t i = 0; i < count; ++i)
        found = static_cast<char>(
            found | ((places[i] == first) & (lasts[i] == last) & mayFollowKey(lasts[i + 1])));
    return found;
}

// The next place at which a key stands with a byte after it that may follow it, or npos.
std::size_t findKey(std::string_view text, std::string_view key, std::size_t from)
{
    constexpr std::size_t kPlacesAtOnce = 512;
    const std::size_t end = text.size() > key.size() ? text.size() - key.size() : 0;
    for (std::size_t count = 0; from < end; from += count) {
        count = std::min(kPlacesAtOnce, end - from);
        if (!mayBeginAmong(text.data() + from, count, key))
            continue;
        for (std::size_t place = from; place < from + count; ++place) {
            if (text.compare(place, key.size(), key) == 0 && mayFollowKey(text[place + key.size()]))
                return place;
        }
    }
    return text.npos;
}

} // namespace

bool ktqtbase::findSection(ProfileLines& lines, std::string_view section)
{
    const std::string_view text = lines.text();
    std::size_t from = lines.position();
    for (;;) {
        const std::size_t bracket = text.find('[', from);
        if (bracket == text.npos)
            return false;
        from = bracket + 1;
        // Most brackets open another section, whose line need not be taken.
        if (text.compare(from, section.size(), section) != 0)
            continue;
        if (sectionOf(lines.takeAt(bracket)) == section)
            return true;
        from = lines.position();
    }
}

std::optional<std::string_view>
ktqtbase::searchProfile(std::string_view text, std::string_view section, std::string_view key)
{
    ProfileLines lines(text);
    if (key.empty() || !findSection(lines, section))
        return std::nullopt;
    for (;;) {
        const std::size_t place = findKey(text, key, lines.position());
        if (place == text.npos)
            return std::nullopt;
        const auto entry = entryOf(lines.takeAt(place));
        if (entry && entry->key == key)
            return entry->value;
    }
}
