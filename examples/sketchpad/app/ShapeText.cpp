// SPDX-License-Identifier: MIT
#include "ShapeText.h"

#include "Narrow.h"
#include "Texts.h"

#include <algorithm>
#include <iomanip>
#include <iterator>
#include <sstream>

namespace {

constexpr const char* kKinds[] = {"line", "polygon", "ellipse", "text"};
constexpr std::size_t kEllipsePoints = 2;
constexpr char kNoFill[] = "none";
constexpr wchar_t kLastCharacter = L'\U0010FFFF';

bool ReadKind(std::istream& stream, CShape& shape)
{
    std::string word;
    stream >> word;
    const auto* const found = std::find(std::begin(kKinds), std::end(kKinds), word);
    shape.kind = static_cast<ShapeKind>(found - std::begin(kKinds));
    return found != std::end(kKinds);
}

bool ReadPen(std::istream& stream, CPenInfo& pen)
{
    std::string color;
    std::string fill;
    if (!(stream >> pen.style >> pen.width >> color >> fill))
        return false;
    pen.filled = fill != kNoFill;
    return IsAllowed(pen) && ColorFromText(color, pen.color) &&
           (!pen.filled || ColorFromText(fill, pen.fill));
}

bool ReadPoints(std::istream& stream, CShape& shape)
{
    int count = 0;
    if (!(stream >> count) || count < 1 || count > kMostPoints)
        return false;
    for (int i = 0; i < count; ++i) {
        POINT point = {};
        char comma = 0;
        if (!(stream >> point.x >> comma >> point.y) || comma != ',' || IsTooFar(point))
            return false;
        shape.points.push_back(point);
    }
    return shape.kind != ShapeKind::Ellipse || shape.points.size() == kEllipsePoints;
}

// Some C libraries decode numbers that are no characters, too, and encode none of them again.
bool IsUnicode(const std::wstring& text)
{
    return std::all_of(text.begin(), text.end(), [](wchar_t ch) { return ch <= kLastCharacter; });
}

bool ReadText(std::istream& stream, CShape& shape)
{
    std::string rest;
    std::getline(stream, rest);
    if (shape.kind != ShapeKind::Text)
        return rest.empty();
    const auto text = Widen(rest);
    if (!text || text->size() < 2 || text->front() != L' ' || !IsUnicode(*text))
        return false;
    shape.text = text->substr(1); // behind the blank after the point
    return true;
}

void WriteColor(std::ostream& stream, COLORREF color)
{
    stream << std::hex << std::setw(6) << std::setfill('0') << color << std::dec;
}

void WritePen(std::ostream& stream, const CPenInfo& pen)
{
    stream << ' ' << pen.style << ' ' << pen.width << ' ';
    WriteColor(stream, pen.color);
    stream << ' ';
    if (pen.filled)
        WriteColor(stream, pen.fill);
    else
        stream << kNoFill;
}

} // namespace

bool ColorFromText(const std::string& text, COLORREF& color)
{
    if (text.size() != 6 || text.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
        return false;
    color = static_cast<COLORREF>(std::stoul(text, nullptr, 16));
    return true;
}

bool ShapeFromText(const std::string& line, CShape& shape, std::wstring& problem)
{
    std::istringstream stream(line);
    if (!ReadKind(stream, shape))
        problem = Text(IDS_BADKIND);
    else if (!ReadPen(stream, shape.pen))
        problem = Text(IDS_BADPEN);
    else if (!ReadPoints(stream, shape))
        problem = Text(IDS_BADPOINT);
    else if (!ReadText(stream, shape))
        problem = Text(IDS_BADTEXT);
    return problem.empty();
}

std::string TextFromShape(const CShape& shape)
{
    std::ostringstream stream;
    stream << kKinds[static_cast<int>(shape.kind)];
    WritePen(stream, shape.pen);
    stream << ' ' << shape.points.size();
    for (const POINT& point : shape.points)
        stream << ' ' << point.x << ',' << point.y;
    if (shape.kind == ShapeKind::Text)
        stream << ' ' << NarrowForDisplay(shape.text);
    return stream.str();
}
