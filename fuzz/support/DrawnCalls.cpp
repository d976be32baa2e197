// SPDX-License-Identifier: MIT
#include "support/DrawnCalls.h"

#include "support/Expect.h"

#include <QtGui/QImage>

#include <algorithm>
#include <climits>

namespace {

using namespace drawing;
using namespace ktqtbase::fuzz;

// An image is 40 rows or columns at most, and a clip lies within some thousands, as a host is told.
constexpr int kLargestImage = 40;
constexpr int kFarthestClip = 3000;
constexpr int kFarthestEdge = 1 << 29;

template<class Calls>
DrawnCall drawnCall(const char* name, When when, Calls calls)
{
    return {name, when, calls, calls};
}

// Mostly near the image; now and then where numbers end.
int place(Input& input)
{
    static const int far[] = {INT_MIN, INT_MAX, 32767, -32768, 65536, -65537, 1 << 24, -(1 << 26)};
    const unsigned int drawn = input.byte();
    return drawn < 0xF8 ? static_cast<int>(drawn) / 2 - 30 : far[drawn - 0xF8];
}

int clipPlace(Input& input)
{
    return std::clamp(place(input), -kFarthestClip, kFarthestClip);
}

template<class Place>
std::vector<POINT> points(Input& input, unsigned int count, Place draw)
{
    std::vector<POINT> result(count);
    for (POINT& point : result) {
        point.x = draw(input);
        point.y = draw(input);
    }
    return result;
}

// Two corners, in any order, whose distance Qt can say.
QRect rect(Input& input)
{
    const auto near = [&input] { return std::clamp(place(input), -kFarthestEdge, kFarthestEdge); };
    const int left = near();
    const int top = near();
    const int right = near();
    return QRect(QPoint(left, top), QPoint(right, near()));
}

// The letters of a font that every machine has differ from those that another one must bring.
std::wstring text(Input& input)
{
    static const wchar_t letters[] = L"aQ\u00E9g .\t\n\u0301\u05D0\u0627\u4E2D\uFEFF\u200D"
                                     L"\U0001F600\U0010FFFF";
    std::wstring result;
    for (unsigned int left = input.below(9); left > 0; --left)
        result += letters[input.below(17)]; // also the NUL
    return result;
}

LOGFONTW font(Input& input)
{
    static const wchar_t* const faces[] = {L"DejaVu Sans", L"", L"no such face"};
    static const int heights[] = {0, 1, 12, 20, -16, INT_MIN, INT_MAX, 1 << 27};
    static const int weights[] = {0, 9, 10, 100, 400, 700, 900, 999};
    LOGFONTW lf = {};
    const unsigned int drawn = input.byte();
    lf.lfHeight = heights[drawn & 7];
    lf.lfWeight = weights[drawn >> 3 & 7];
    lf.lfItalic = drawn & 64 ? 0xFF : 0;
    lf.lfPitchAndFamily = drawn & 128 ? FIXED_PITCH : 0;
    std::wcscpy(lf.lfFaceName, faces[input.below(3)]);
    return lf;
}

// The pixels of a format of 32 bits; none where a side is not above 0.
std::vector<unsigned char> pixels(int width, int height)
{
    const int count = std::max(width, 0) * std::max(height, 0) * 4;
    std::vector<unsigned char> bits(static_cast<std::size_t>(count) + 1);
    for (std::size_t i = 0; i < bits.size(); ++i)
        bits[i] = static_cast<unsigned char>(i * 7 | 0xC0);
    return bits;
}

void addStates(std::vector<DrawnCall>& all)
{
    all.push_back(drawnCall("setPen", When::InSession, [](auto& p, Input& input) {
        const int style = static_cast<int>(input.number());
        const auto width = static_cast<int>(input.byte());
        p.setPen(style, width, input.number());
    }));
    all.push_back(drawnCall("setFontIndirect", When::InSession, [](auto& p, Input& input) {
        const LOGFONTW lf = font(input);
        p.setFontIndirect(&lf);
    }));
    all.push_back(drawnCall("Rotate", When::InSession, [](auto& p, Input& input) {
        static const double angles[] = {0, 90, -90, 180, 45.5, 1e-9, 720.25, -1e6};
        const double angle = angles[input.below(8)];
        const int x = clipPlace(input);
        p.Rotate(angle, x, clipPlace(input));
    }));
    all.push_back(drawnCall("setClipRect", When::InSession, [](auto& p, Input& input) {
        const QRect area = rect(input);
        const auto operation = static_cast<Qt::ClipOperation>(input.below(3));
        p.setClipRect(operation == Qt::NoClip ? QRect() : area, operation);
    }));
    all.push_back(drawnCall("setClipRegion", When::Always, [](auto& p, Input& input) {
        unsigned int counts[3];
        unsigned int sum = 0;
        for (unsigned int& count : counts)
            sum += count = input.below(6);
        std::vector<POINT> corners = points(input, sum, clipPlace);
        p.setClipRegion(corners.data(), counts, input.below(4));
    }));
}

void addFigures(std::vector<DrawnCall>& all)
{
    const When when = When::InSession;
    all.push_back(drawnCall("drawPoint", when, [](auto& p, Input& input) {
        const int x = place(input);
        p.drawPoint(x, place(input));
    }));
    all.push_back(drawnCall("drawPolyline", when, [](auto& p, Input& input) {
        const unsigned int count = input.below(7) + (p.getPainterPath() ? 1 : 0);
        p.drawPolyline(points(input, count, place).data(), static_cast<int>(count));
    }));
    all.push_back(drawnCall("drawPolygon", when, [](auto& p, Input& input) {
        const unsigned int count = input.below(8);
        p.drawPolygon(points(input, count, place).data(), static_cast<int>(count));
    }));
    all.push_back(drawnCall("drawAlphaRect", when, [](auto& p, Input& input) {
        const std::vector<POINT> corners = points(input, 2, place);
        const CRect area(corners[0].x, corners[0].y, corners[1].x, corners[1].y);
        const std::uint32_t color = input.number();
        p.drawAlphaRect(area, color, static_cast<int>(input.byte()));
    }));
    all.push_back(drawnCall("fillRect", when, [](auto& p, Input& input) {
        const QRect area = rect(input);
        p.fillRect(area, static_cast<Qt::GlobalColor>(input.below(20)));
    }));
}

void addTextAndImages(std::vector<DrawnCall>& all)
{
    const When when = When::InSession;
    all.push_back(drawnCall("drawText", when, [](auto& p, Input& input) {
        const std::wstring shown = text(input);
        const int x = place(input);
        const int y = place(input);
        p.drawText(x, y, shown.c_str(), static_cast<int>(input.below(10) % (shown.size() + 2)) - 1);
    }));
    all.push_back(drawnCall("drawImage(raw)", when, [](auto& p, Input& input) {
        const int x = std::min(place(input), kLargestImage);
        const int y = std::min(place(input), kLargestImage);
        std::vector<unsigned char> bits = pixels(x, y);
        p.drawImage(x, y, bits.data(), 0, 0, static_cast<int>(input.below(3)) + 4);
    }));
    all.push_back(drawnCall("drawImage(scaled)", when, [](auto& p, Input& input) {
        const auto width = static_cast<int>(input.below(20));
        QImage image(width, static_cast<int>(input.below(20)), QImage::Format_ARGB32_Premultiplied);
        image.fill(input.number());
        const QImage former = image;
        QRect target = rect(input);
        p.drawImage(target, image);
        expect("an image that is drawn stays", image == former);
    }));
}

} // namespace

const std::vector<DrawnCall>& ktqtbase::fuzz::drawnCalls()
{
    static const std::vector<DrawnCall> all = [] {
        std::vector<DrawnCall> list;
        addStates(list);
        addFigures(list);
        addTextAndImages(list);
        return list;
    }();
    return all;
}
