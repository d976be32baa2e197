// SPDX-License-Identifier: MIT
#include "string/QtText.h"

#include "string/TextConversion.h"

#include <cwchar>
#include <limits>

namespace {

// Fills in ASCII text, at a fraction of what Qt's own conversion costs. All other text, byte order
// marks included, is left to that.
bool fromAscii(const wchar_t* text, QString& result)
{
    const std::size_t length = std::wcslen(text);
    if (length > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return false;
    result = QString(static_cast<int>(length), Qt::Uninitialized);
    return ktqtbase::narrowAscii(text, length, reinterpret_cast<char16_t*>(result.data()));
}

} // namespace

QString ktqtbase::toQt(const wchar_t* text)
{
    QString result;
    if (text && !fromAscii(text, result))
        result = QString::fromUcs4(reinterpret_cast<const char32_t*>(text), -1);
    return result;
}
