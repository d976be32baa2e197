// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_QTTEXT_H
#define NAMEINFO_QTTEXT_H

#include <QtCore/QString>

#include <string>

// A text as Qt has it. The character in front keeps Qt from dropping a byte order mark, which is a
// letter of a name like others.
inline QString toQt(const std::wstring& text)
{
    return QString::fromStdWString(L'.' + text).mid(1);
}

#endif
