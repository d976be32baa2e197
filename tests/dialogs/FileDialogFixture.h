// SPDX-License-Identifier: MIT
//
// A folder with files, and what a user does in the file dialog.
#ifndef KTQTBASE_TESTS_DIALOGS_FILEDIALOGFIXTURE_H
#define KTQTBASE_TESTS_DIALOGS_FILEDIALOGFIXTURE_H

#include "dialogs/User.h"

#include <KtQtBase/FileDialog.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <string>
#include <vector>

constexpr int kFiles = 5;
inline const wchar_t* const kFilters = L"Text (*.txt);;All files (*)";

// A dialog whose block shows a folder of five files with all filters.
class FileDialogFixture : public testing::Test
{
protected:
    FileDialogFixture()
    {
        QDir(m_temporary.path()).mkdir(QStringLiteral("Reports"));
        for (const char* name : {"april.txt", "june.b.txt", "may.txt", "noext", "summary.csv"}) {
            QFile file(path(QString::fromLatin1(name)));
            file.open(QIODevice::WriteOnly);
            file.write(QByteArray(1500, 'x'));
        }
    }

    QString path(const QString& name = QString()) const
    {
        return QDir::cleanPath(m_temporary.path() + QStringLiteral("/Reports/") + name);
    }

    std::wstring widePath(const char* name) const
    {
        return path(QString::fromUtf8(name)).toStdWString();
    }

    // Fills the block; the texts live as long as the fixture.
    void fill(KtQtFileDialog& dialog, DWORD filterIndex = 2)
    {
        m_folder = path().toStdWString();
        OPENFILENAMEW& block = dialog.GetOFN();
        block.lpstrTitle = L"Import reports";
        block.lpstrFilter = kFilters;
        block.nFilterIndex = filterIndex;
        block.lpstrInitialDir = m_folder.c_str();
    }

private:
    QTemporaryDir m_temporary;
    std::wstring m_folder;
};

inline QLineEdit* nameEdit(QFileDialog& dialog)
{
    return dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

inline QComboBox* filterBox(QFileDialog& dialog)
{
    return dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
}

// The one that is shown of the dialog's two views of the folder.
inline QAbstractItemView* fileList(QFileDialog& dialog)
{
    auto* const details = dialog.findChild<QAbstractItemView*>(QStringLiteral("treeView"));
    auto* const icons = dialog.findChild<QAbstractItemView*>(QStringLiteral("listView"));
    return details->isVisible() ? details : icons;
}

// By one event for the whole name, as an input method sends it: single keys know ASCII only.
inline void typeName(QFileDialog& dialog, const QString& name)
{
    QTest::keyClick(nameEdit(dialog), Qt::Key_A, Qt::ControlModifier);
    QTest::sendKeyEvent(QTest::Click, nameEdit(dialog), Qt::Key_unknown, name, Qt::NoModifier);
}

inline void typeNameAndReturn(QFileDialog& dialog, const QString& name)
{
    typeName(dialog, name);
    QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
}

inline void press(QFileDialog& dialog, QDialogButtonBox::StandardButton button)
{
    auto* const buttons = dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    QTest::mouseClick(buttons->button(button), Qt::LeftButton);
}

// The files that the dialog lists, once there are as many as expected; folders are read in the
// background.
inline QStringList listedFiles(QFileDialog& dialog, int expected)
{
    QAbstractItemView* const list = fileList(dialog);
    const auto count = [list] { return list->model()->rowCount(list->rootIndex()); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return count() == expected; }, 10000)) << count();
    QStringList names;
    for (int row = 0; row < count(); ++row)
        names << list->model()->index(row, 0, list->rootIndex()).data().toString();
    return names;
}

// Clicks a listed file.
inline void clickFile(QFileDialog& dialog, const QString& name,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QAbstractItemView* const list = fileList(dialog);
    const int rows = list->model()->rowCount(list->rootIndex());
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = list->model()->index(row, 0, list->rootIndex());
        if (index.data().toString() == name)
            QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, modifiers,
                              list->viewport()->mapTo(&dialog, list->visualRect(index).center()));
    }
}

#endif
