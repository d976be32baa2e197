// SPDX-License-Identifier: MIT
#include "ShownText.h"
#include "QtText.h"

#include <KtQtBase/PathName.h>

#include <QtCore/QString>

#include <algorithm>
#include <cwchar>
#include <limits>
#include <numeric>

namespace {

constexpr int kLeastDisplay = 12; // GetDisplayName takes no less

// What a terminal cannot show is shown as a number.
std::wstring numberOf(wchar_t ch)
{
    return QStringLiteral("\\x%1").arg(int(ch), 2, 16, QChar('0')).toStdWString();
}

int cellsOf(wchar_t ch)
{
    const int cells = wcwidth(ch);
    return cells >= 0 ? cells : static_cast<int>(numberOf(ch).size());
}

int cellsOf(const std::wstring& text)
{
    return std::accumulate(text.begin(), text.end(), 0,
                           [](int cells, wchar_t ch) { return cells + cellsOf(ch); });
}

// Makes a text visible, but for what is behind so many cells.
ShownText beginningOf(const std::wstring& text, int room)
{
    std::wstring shown;
    int cells = 0;
    for (const wchar_t ch : text) {
        if (cells + cellsOf(ch) > room)
            break;
        cells += cellsOf(ch);
        shown += wcwidth(ch) >= 0 ? std::wstring(1, ch) : numberOf(ch);
    }
    return {toQt(shown).toStdString(), cells};
}

// The library counts characters, of which a terminal may show one in two cells. So the largest
// width that does is looked for.
std::wstring displayName(const std::wstring& text, int room)
{
    CRnUiPathname name;
    CStdStr<wchar_t> shown;
    if (name.Parse(text.c_str(), false) != 0)
        return shown;
    for (int width = room; width >= kLeastDisplay; --width) {
        name.GetDisplayName(shown, width);
        if (cellsOf(shown) <= room)
            return shown;
    }
    return std::wstring();
}

bool endsInDots(const std::wstring& text)
{
    return text.size() >= 3 && text.compare(text.size() - 3, 3, L"...") == 0;
}

ShownText cut(const std::wstring& text, int room)
{
    const ShownText shown = beginningOf(text, std::max(room - 3, 0));
    return {shown.bytes + "...", shown.cells + 3};
}

} // namespace

int cellsOf(const std::optional<std::wstring>& text)
{
    if (!text)
        return 1;
    return text->empty() ? 2 : cellsOf(*text);
}

ShownText show(const std::optional<std::wstring>& text)
{
    if (!text || text->empty())
        return {text ? "\"\"" : "-", cellsOf(text)};
    return beginningOf(*text, std::numeric_limits<int>::max());
}

ShownText show(const std::optional<std::wstring>& text, int room)
{
    if (cellsOf(text) <= room)
        return show(text);
    const std::wstring shortened = displayName(*text, room);
    // Dots with nothing behind them would tell less than the beginning does.
    return shortened.empty() || endsInDots(shortened) ? cut(*text, room) : show(shortened);
}
