// SPDX-License-Identifier: MIT
//
// Fonts from their Windows description.
#include <KtQtBase/drawing/Painter.h>

#include "platform/QtVersion.h"

#include <QtGui/QFont>
#include <QtGui/QPainter>

#include <algorithm>
#include <iterator>

namespace {

// A name of 32 characters leaves no room for a terminator.
QString familyOf(const LOGFONTW& lf)
{
    const wchar_t* end = std::find(std::begin(lf.lfFaceName), std::end(lf.lfFaceName), L'\0');
    return QString::fromWCharArray(lf.lfFaceName, static_cast<int>(end - lf.lfFaceName));
}

// Unsigned, because with very large numbers the product wraps at 32 bits.
int pixelSizeOf(const LOGFONTW& lf, int depth)
{
    const int height = lf.lfHeight > 0 ? lf.lfHeight : lf.lfWeight;
    const unsigned int product =
        static_cast<unsigned int>(depth) * static_cast<unsigned int>(height);
    return static_cast<int>(static_cast<int>(product) / 36.0);
}

} // namespace

void KtQtPainterWrapper::setFontIndirect(const LOGFONTW* lf)
{
    QFont font(familyOf(*lf), -1, -1, false);
    font.setStyle(lf->lfItalic ? QFont::StyleItalic : QFont::StyleNormal);
    if (lf->lfWeight != 0)
        ktqtbase::platform::setFontWeight(font, lf->lfWeight / 10);
    font.setPixelSize(pixelSizeOf(*lf, m_pWrappedDevice->depth()));
    font.setFixedPitch(lf->lfPitchAndFamily == FIXED_PITCH);
    m_pPainter->setFont(font);
}
