// SPDX-License-Identifier: MIT
#include "support/PlainFormats.h"

#include "support/PlainUtf8.h"

#include <cstring>
#include <string_view>

using namespace ktqtbase::fuzz;

namespace {

// Takes a text apart from its beginning. What is not there leaves the cursor bad.
class Cursor
{
public:
    explicit Cursor(std::string_view text) : m_text(text) {}

    bool isGood() const { return m_isGood; }
    bool isAtEnd() const { return m_text.empty(); }
    void fail() { m_isGood = false; }

    bool skip(std::string_view word)
    {
        const bool found = m_isGood && m_text.substr(0, word.size()) == word;
        m_text.remove_prefix(found ? word.size() : 0);
        return found;
    }

    void expect(std::string_view word) { m_isGood = skip(word) && m_isGood; }

    char next()
    {
        m_isGood = m_isGood && !m_text.empty();
        const char ch = m_isGood ? m_text.front() : '\0';
        m_text.remove_prefix(m_isGood ? 1 : 0);
        return ch;
    }

    // What comes before the first of some characters, one of which has to follow.
    std::string upTo(const char* stops)
    {
        const std::size_t end = m_text.find_first_of(stops);
        m_isGood = m_isGood && end != m_text.npos;
        const std::string found(m_isGood ? m_text.substr(0, end) : std::string_view());
        m_text.remove_prefix(found.size());
        return found;
    }

private:
    std::string_view m_text;
    bool m_isGood = true;
};

unsigned readHexadecimal(Cursor& cursor)
{
    constexpr char kDigits[] = "0123456789abcdef";
    unsigned value = 0;
    for (int i = 0; i < 4; ++i) {
        const char digit = cursor.next();
        const char* const found = digit ? std::strchr(kDigits, digit) : nullptr;
        if (!found)
            cursor.fail();
        value = value * 16 + static_cast<unsigned>(found ? found - kDigits : 0);
    }
    return value;
}

// Characters beyond those of one unit are never written so.
char readEscape(Cursor& cursor)
{
    constexpr char kNames[] = "\"\\/bfnrt";
    constexpr char kMeanings[] = "\"\\/\b\f\n\r\t";
    const char name = cursor.next();
    if (name == 'u') {
        const unsigned value = readHexadecimal(cursor);
        if (value >= 0x80)
            cursor.fail();
        return static_cast<char>(value);
    }
    const char* const found = name ? std::strchr(kNames, name) : nullptr;
    if (!found)
        cursor.fail();
    return found ? kMeanings[found - kNames] : '\0';
}

bool isControl(char ch)
{
    return static_cast<unsigned char>(ch) < 0x20;
}

std::string readString(Cursor& cursor)
{
    std::string bytes;
    cursor.expect("\"");
    while (cursor.isGood() && !cursor.skip("\"")) {
        const char ch = cursor.next();
        if (isControl(ch))
            cursor.fail();
        bytes += ch == '\\' ? readEscape(cursor) : ch;
    }
    return bytes;
}

std::optional<std::wstring> readValue(Cursor& cursor)
{
    if (cursor.skip("null"))
        return std::nullopt;
    const auto text = plain::decode(readString(cursor));
    if (!text)
        cursor.fail();
    return text;
}

plain::JsonObject readObject(Cursor& cursor)
{
    plain::JsonObject object;
    cursor.expect("{");
    do {
        const std::string key = readString(cursor);
        cursor.expect(":");
        if (!object.emplace(key, readValue(cursor)).second)
            cursor.fail();
    } while (cursor.skip(","));
    cursor.expect("}");
    return object;
}

std::string readQuoted(Cursor& cursor)
{
    std::string cell = cursor.upTo("\"");
    cursor.expect("\"");
    while (cursor.skip("\"")) {
        cell += '"' + cursor.upTo("\"");
        cursor.expect("\"");
    }
    return cell;
}

plain::CsvLine readLine(Cursor& cursor)
{
    plain::CsvLine line;
    do
        line.push_back(cursor.skip("\"") ? readQuoted(cursor) : cursor.upTo(",\"\r\n"));
    while (cursor.skip(","));
    cursor.expect("\r\n");
    return line;
}

} // namespace

std::optional<std::vector<plain::JsonObject>> plain::readJson(const std::string& text)
{
    Cursor cursor(text);
    std::vector<JsonObject> objects;
    cursor.expect("[");
    while (cursor.isGood() && !cursor.skip("\n]\n")) {
        cursor.expect(objects.empty() ? "\n" : ",\n");
        objects.push_back(readObject(cursor));
    }
    return cursor.isGood() && cursor.isAtEnd() ? std::optional(objects) : std::nullopt;
}

std::optional<std::vector<plain::CsvLine>> plain::readCsv(const std::string& text)
{
    Cursor cursor(text);
    std::vector<CsvLine> lines;
    while (cursor.isGood() && !cursor.isAtEnd())
        lines.push_back(readLine(cursor));
    return cursor.isGood() ? std::optional(lines) : std::nullopt;
}
