// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"

#include <algorithm>
#include <cwchar>

namespace {

using WideText = CStdStr<wchar_t>;

constexpr int kLeastWidth = 12;
constexpr int kWholeName = -1;

// A base name that does not fit: its beginning, a tilde, and the extension where there is room.
void shortenBase(const CRbUiPathname& path, std::size_t start, std::size_t width, WideText& out)
{
    WideText extension;
    path.GetExtension(extension);
    if (width < extension.size() + 3)
        extension.clear();
    out.assign(*path.m_pWork, start, width - 2 - extension.size());
    out.push_back(L'~');
    if (!extension.empty())
        out.append(1, kPeriod).append(extension);
}

// Appends the whole components at the end of a work string that fit into a width after a volume's
// name and dots; nothing where the last one does not begin with a separator.
void appendTail(const CRbUiPathname& path, std::size_t volumeLength, std::size_t width,
                WideText& out)
{
    const WideText& work = *path.m_pWork;
    std::size_t start = volumeLength;
    while (start < work.size() && work.size() - start + volumeLength + 4 > width)
        start = std::min(work.find(path.m_separator, start + 1), work.size());
    out.append(work, start, work.npos);
}

// A name whose base fits into a width: what is before the base is cut in the middle.
void shortenFolders(const CRbUiPathname& path, std::size_t start, std::size_t width, WideText& out)
{
    const std::size_t baseLength = path.m_pWork->size() - start;
    const bool isOnVolume = path.m_category == PC_DRIVE || path.m_category == PC_UNC;
    const std::size_t volumeLength = isOnVolume ? ktqtbase::volumeNameLength(path) : 0;
    const wchar_t* const dots = isOnVolume ? L"\\..." : L"...";
    if (width < baseLength + volumeLength + std::wcslen(dots) + 1) {
        out.assign(*path.m_pWork, start, baseLength);
        return;
    }
    out.assign(*path.m_pWork, 0, volumeLength).append(dots);
    appendTail(path, volumeLength, width, out);
}

} // namespace

void CRbUiPathname::GetDisplayName(CStdStr<wchar_t>& out, int width) const
{
    if (ktqtbase::isOwn(*this, out)) {
        WideText shown;
        GetDisplayName(shown, width);
        out.swap(shown);
        return;
    }
    out.clear();
    if (!ktqtbase::isParsed(*this))
        return;
    const auto room = static_cast<std::size_t>(std::max(width, kLeastWidth));
    if (width == kWholeName || room >= m_pWork->size()) {
        out = *m_pWork;
        return;
    }
    const std::size_t start = ktqtbase::lastComponent(*m_pWork, m_separator);
    if (room < m_pWork->size() - start)
        shortenBase(*this, start, room, out);
    else if (ktqtbase::isKnown(m_category))
        shortenFolders(*this, start, room, out);
}
