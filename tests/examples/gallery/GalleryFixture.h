// SPDX-License-Identifier: MIT
//
// Runs the gallery in a folder of its own and looks at what it wrote.
#ifndef KTQTBASE_TESTS_EXAMPLES_GALLERYFIXTURE_H
#define KTQTBASE_TESTS_EXAMPLES_GALLERYFIXTURE_H

#include "Gallery.h"
#include "support/RunProgram.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>

class Gallery : public ::testing::Test
{
protected:
    QString file(const char* name) { return folder.filePath(QString::fromLatin1(name)); }

    // Qt complains of a runtime folder that is somebody else's.
    ProgramResult run(const QStringList& arguments)
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
        return runProgram(GALLERY, arguments);
    }

    // The sheet as the program draws it; null if it does not.
    QImage sheet(const QString& ratio)
    {
        const QString name = file("sheet.png");
        const QStringList arguments{QStringLiteral("--png"), name, QStringLiteral("--ratio"),
                                    ratio};
        return run(arguments).status == 0 ? QImage(name) : QImage();
    }

    QTemporaryDir folder;
};

// One line, with the name of what went wrong.
inline void expectOneLineAbout(const std::string& message, const QString& name)
{
    EXPECT_EQ(std::count(message.begin(), message.end(), '\n'), 1) << message;
    EXPECT_NE(message.find(name.toStdString()), std::string::npos) << message;
}

// The place of the cell whose label begins so; empty if there is none.
inline QRect placeOf(const wchar_t* shows)
{
    for (const PlacedCell& placed : placedCells())
        if (std::wcsncmp(placed.cell->shows, shows, std::wcslen(shows)) == 0)
            return placed.place;
    return QRect();
}

#endif
