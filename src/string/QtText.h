// SPDX-License-Identifier: MIT
//
// Wide text to Qt's strings and back.
#ifndef KTQTBASE_STRING_QTTEXT_H
#define KTQTBASE_STRING_QTTEXT_H

#include <KtQtBase/WideString.h>

#include <QtCore/QString>

namespace ktqtbase {

// A terminated text as a Qt string; null gives a null one.
QString toQt(const wchar_t* text);

// A Qt string as wide text, up to its first NUL.
inline CStdStr<wchar_t> toWide(const QString& text)
{
    return text.left(text.indexOf(QChar(u'\0'))).toStdWString();
}

} // namespace ktqtbase

#endif
