// SPDX-License-Identifier: MIT
#include "support/PlainSketch.h"

#include "support/PlainUtf8.h"

#include <cstring>
#include <map>
#include <string_view>

using namespace ktqtbase::fuzz;

namespace {

constexpr char kBlanks[] = " \t\v\f\r";
constexpr char kDigits[] = "0123456789";
constexpr long long kNoInt = 1LL << 31;

std::vector<std::string> linesOf(const std::string& content)
{
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < content.size();) {
        const std::size_t end = std::min(content.find('\n', at), content.size());
        lines.push_back(content.substr(at, end - at));
        while (!lines.back().empty() && lines.back().back() == '\r')
            lines.back().pop_back();
        at = end + 1;
    }
    return lines;
}

// What is left of a line. A part that is not there leaves nothing to go on with.
class Rest
{
public:
    explicit Rest(std::string_view text) : m_text(text) {}

    bool isGood() const { return m_isGood; }
    std::string_view text() const { return m_text; }

    std::string word()
    {
        skipBlanks();
        return std::string(take(std::min(m_text.find_first_of(kBlanks), m_text.size())));
    }

    int number()
    {
        skipBlanks();
        const bool hasSign = !m_text.empty() && std::strchr("+-", m_text[0]);
        const bool isNegative = hasSign && m_text[0] == '-';
        take(hasSign ? 1 : 0);
        const std::string_view digits =
            take(std::min(m_text.find_first_not_of(kDigits), m_text.size()));
        long long value = 0;
        for (const char digit : digits)
            value = std::min(value * 10 + (digit - '0'), kNoInt + 1);
        m_isGood = m_isGood && !digits.empty() && value < kNoInt + (isNegative ? 1 : 0);
        return m_isGood ? static_cast<int>(isNegative ? -value : value) : 0;
    }

    void comma()
    {
        skipBlanks();
        m_isGood = m_isGood && take(std::min<std::size_t>(m_text.size(), 1)) == ",";
    }

    void require(bool condition) { m_isGood = m_isGood && condition; }

private:
    void skipBlanks() { take(std::min(m_text.find_first_not_of(kBlanks), m_text.size())); }

    std::string_view take(std::size_t count)
    {
        const std::string_view taken = m_text.substr(0, count);
        m_text.remove_prefix(count);
        return taken;
    }

    std::string_view m_text;
    bool m_isGood = true;
};

COLORREF readColor(Rest& rest, const std::string& digits)
{
    rest.require(digits.size() == 6 &&
                 digits.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos);
    COLORREF color = 0;
    for (std::size_t i = 0; i < digits.size() && rest.isGood(); ++i) {
        const auto digit = static_cast<unsigned>(digits[i]);
        color = color * 16 + (digit <= '9' ? digit - '0' : (digit | 0x20) - 'a' + 10);
    }
    return color;
}

void readPen(Rest& rest, CPenInfo& pen)
{
    pen.style = rest.number();
    pen.width = rest.number();
    rest.require(pen.style >= 0 && pen.style <= 5 && pen.width >= 0 && pen.width <= 100);
    pen.color = readColor(rest, rest.word());
    const std::string fill = rest.word();
    pen.filled = fill != "none";
    if (pen.filled)
        pen.fill = readColor(rest, fill);
}

int readPlace(Rest& rest)
{
    const int place = rest.number();
    rest.require(place >= -30000 && place <= 30000);
    return place;
}

void readPoints(Rest& rest, CShape& shape)
{
    const int count = rest.number();
    rest.require(count >= 1 && count <= 100000);
    for (int i = 0; i < count && rest.isGood(); ++i) {
        const int x = readPlace(rest);
        rest.comma();
        shape.points.push_back({x, readPlace(rest)});
    }
    rest.require(shape.kind != ShapeKind::Ellipse || count == 2);
}

// Exactly one blank stands in front of the text.
void readText(Rest& rest, CShape& shape)
{
    const auto text = plain::decode(std::string(rest.text()));
    rest.require(text && text->size() >= 2 && text->front() == L' ');
    if (rest.isGood())
        shape.text = text->substr(1);
}

std::optional<CShape> readShape(const std::string& line)
{
    static const std::map<std::string, ShapeKind> kinds = {{"line", ShapeKind::Line},
                                                           {"polygon", ShapeKind::Polygon},
                                                           {"ellipse", ShapeKind::Ellipse},
                                                           {"text", ShapeKind::Text}};
    Rest rest(line);
    const auto kind = kinds.find(rest.word());
    if (kind == kinds.end() || line.find('\0') != line.npos)
        return std::nullopt;
    CShape shape;
    shape.kind = kind->second;
    readPen(rest, shape.pen);
    readPoints(rest, shape);
    if (shape.kind == ShapeKind::Text)
        readText(rest, shape);
    else
        rest.require(rest.text().empty());
    return rest.isGood() ? std::optional(shape) : std::nullopt;
}

} // namespace

std::optional<std::vector<CShape>> plain::readSketch(const std::string& content)
{
    const std::vector<std::string> lines = linesOf(content);
    if (lines.empty() || (lines[0] != "SKETCHPAD 1" && lines[0] != "\xEF\xBB\xBFSKETCHPAD 1"))
        return std::nullopt;
    std::vector<CShape> shapes;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto shape = readShape(lines[i]);
        if (!shape)
            return std::nullopt;
        shapes.push_back(*shape);
    }
    return shapes;
}
