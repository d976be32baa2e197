// SPDX-License-Identifier: MIT
#include "system/profile/ProfileSearch.h"

#include "system/profile/ProfileText.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

// The C library's search, which passes over text several times faster than the string's own.
std::size_t findText(std::string_view text, std::string_view wanted, std::size_t from)
{
    const void* const hit =
        memmem(text.data() + from, text.size() - from, wanted.data(), wanted.size());
    return hit ? static_cast<std::size_t>(static_cast<const char*>(hit) - text.data()) : kNowhere;
}

bool isHeader(std::string_view line)
{
    return !line.empty() && line.front() == '[' && line.find(']') != kNowhere;
}

class ProfileSearch
{
public:
    ProfileSearch(std::string_view section, std::string_view key) : m_section(section), m_key(key)
    {}

    // Searches a part of the text whose lines all end with one and the same byte.
    std::optional<std::string_view> in(std::string_view part, char lineEnd)
    {
        for (std::size_t from = 0; from < part.size();) {
            const std::size_t hit =
                m_inSection ? findText(part, m_key, from) : part.find('[', from);
            if (hit == kNowhere)
                break;
            const std::size_t start = lineStart(part, from, hit, lineEnd);
            from = std::min(part.find(lineEnd, hit), part.size() - 1) + 1;
            const auto line = ktqtbase::trimmed(part.substr(start, from - start));
            if (!m_inSection)
                m_inSection = isHeader(line) && line.substr(1, line.find(']') - 1) == m_section;
            else if (const auto value = valueIn(line))
                return value;
        }
        return std::nullopt;
    }

private:
    static std::size_t lineStart(std::string_view part, std::size_t from, std::size_t hit,
                                 char lineEnd)
    {
        while (hit > from && part[hit - 1] != lineEnd)
            --hit;
        return hit;
    }

    std::optional<std::string_view> valueIn(std::string_view line) const
    {
        const std::size_t equals = line.find('=');
        if (equals == kNowhere || isHeader(line) ||
            ktqtbase::trimmedEnd(line.substr(0, equals)) != m_key)
            return std::nullopt;
        return ktqtbase::trimmedStart(line.substr(equals + 1));
    }

    std::string_view m_section;
    std::string_view m_key;
    bool m_inSection = false;
};

} // namespace

std::optional<std::string_view>
ktqtbase::searchProfile(std::string_view text, std::string_view section, std::string_view key)
{
    if (key.empty())
        return std::nullopt;
    // Lines end with a line feed as long as one follows, and with a carriage return from there on.
    const std::size_t lastLineFeed = text.rfind('\n');
    const std::size_t split = lastLineFeed == kNowhere ? 0 : lastLineFeed + 1;
    ProfileSearch search(section, key);
    const auto value = search.in(text.substr(0, split), '\n');
    return value ? value : search.in(text.substr(split), '\r');
}
