// SPDX-License-Identifier: MIT
//
// The file dialog of MFC-style code over QFileDialog.
//
//     KtQtFileDialog dialog(true);
//     dialog.GetOFN().lpstrTitle = L"Import";
//     dialog.GetOFN().lpstrFilter = L"Text (*.txt);;All files (*)";
//     dialog.GetOFN().nFilterIndex = 1;
//     dialog.GetOFN().lpstrInitialDir = L"/data/in";
//     if (dialog.DoModal() == IDOK) {
//         POSITION pos = dialog.GetStartPosition();
//         while (pos)
//             import(dialog.GetNextPathName(pos));
//     }
//
// Filters have Qt's form, entries separated by ";;", and not the bars or double NUL of Windows.
// Texts are UTF-32 and zero-terminated, path names have slashes.
#ifndef KTQTBASE_FILEDIALOG_H
#define KTQTBASE_FILEDIALOG_H

#include <KtQtBase/Export.h>
#include <KtQtBase/WideString.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Records.h>
#include <KtQtBase/windows/Scalars.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QFileDialog>

#include <KtQtBase/windows/HostMacros.h> // sets aside the host's macros of the names used below

#include <cstdint>

// What the dialog hands to its QFileDialog.
// Kept: the spelling of the name is part of the interface.
class KTQTBASE_EXPORT KtQFileDialgAttri
{
public:
    ~KtQFileDialgAttri();

    int m_nAcceptMode = QFileDialog::AcceptOpen; // a QFileDialog::AcceptMode
    QString m_strDefaultExt;                     // as given; not used
    QString m_strFileName;                       // as given; not used
    QString m_strSelectFile;
    int m_nFileMode = QFileDialog::AnyFile; // a QFileDialog::FileMode
    QString m_strNameFilter;
    QStringList m_listNameFilter;
    QString m_strInitNameFilter;
};

// A dialog in which the user picks files to open, or a name to save under. It owns the QFileDialog
// of its last run; those of earlier runs belong to their parent, or to nobody without one.
class KTQTBASE_EXPORT KtQtFileDialog
{
public:
    // A dialog that is not shown yet; its block is all zeros.
    //   bOpenFileDialog    in: true to open existing files, one or several; false to save under any
    //                      name
    //   lpszDefExt         in: kept in the attributes, not used
    //   lpszFileName       in: kept in the attributes, not used
    //   dwFlags            not used: no OFN_ flag has an effect
    //   lpszFilter         in: handed to the QFileDialog, where the block's filter replaces it
    //   pParentWnd         in: the parent window, or null; stays the caller's
    //   dwSize             not used
    //   bVistaStyle        not used
    // Null texts are empty. None of the arguments reaches the block. The object must die before the
    // QApplication does, and a parent must live through every DoModal.
    // On Windows: the arguments fill the block, and the flags decide whether several files may be
    // selected. lpszDefExt is added to a name that is typed without an extension; here such a name
    // stays as it was typed, and a host that wants the extension adds it to GetPathName().
    explicit KtQtFileDialog(bool bOpenFileDialog, const wchar_t* lpszDefExt = nullptr,
                            const wchar_t* lpszFileName = nullptr,
                            unsigned int dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                            const wchar_t* lpszFilter = nullptr, CWnd* pParentWnd = nullptr,
                            unsigned int dwSize = 0, bool bVistaStyle = true);

    // Deletes the QFileDialog of the last run, unless its parent did so already.
    ~KtQtFileDialog();

    KtQtFileDialog(const KtQtFileDialog&) = delete;
    KtQtFileDialog& operator=(const KtQtFileDialog&) = delete;

    // The block that says what the dialog shows; fill it before DoModal. These members are used:
    //   lpstrTitle         in: the window's title
    //   lpstrInitialDir    in: the folder shown, with slashes or backslashes; an empty one shows
    //                      the top of the file system
    //   lpstrFilter        in: the filters, in Qt's form up to the first NUL
    //   nFilterIndex       in: the number of the active filter, from 1; a number outside the list
    //                      chooses none. out, after an accepted run with a selection: the number of
    //                      the filter that was active at the end, 0 if none is equal to it. Qt
    //                      shows a filter without blanks at its ends and without double ones, so
    //                      that one which has them is never chosen or found
    //   lpstrFile          in: the file that is selected, with slashes; best a bare name. Of a full
    //                      name in a folder that exists only the last component is used; of other
    //                      names the folders stay, and are looked for in lpstrInitialDir. If that
    //                      is empty, it is the top folder
    // Null texts are empty. The texts stay the caller's and are read by DoModal.
    // On Windows: the path chosen is written to lpstrFile; here it is only read. Without
    // lpstrInitialDir the folder of lpstrFile or the current one is shown.
    OPENFILENAMEW& GetOFN();

    // Shows the dialog and waits until the user closes it.
    // Result: IDOK (1) if the user accepted; IDCANCEL (2) for any other end, also if the parent
    // died meanwhile or the program has no QApplication. Then the former selection stays.
    // Qt asks the user before a file is replaced, whatever the flags say.
    // Kept: other windows take input meanwhile. Part of the interface.
    // On Windows: the parent is disabled, and the user is asked only if the flags say so.
    int DoModal();

    // Sets path name, file name and extension from the first selected file, and the block's
    // nFilterIndex from the active filter: the number of the first filter that is equal to it, 0
    // without one. Changes nothing if no file is selected. DoModal calls it.
    //   /tmp/a.b.txt  => L"/tmp/a.b.txt", L"a.b.txt", L"txt"
    //   /tmp/noext    => L"/tmp/noext", L"noext", L""
    // Kept: the spelling of the name is part of the interface.
    void PraseFileInfo();

    // The path of the first selected file; empty until a file was selected.
    // With a relative lpstrInitialDir the path of a new file is relative to the current folder,
    // too; that of an existing file is full.
    //   folder L"Reports", the user types new.txt  => L"Reports/new.txt"
    // On Windows: always the full path.
    CStdStr<wchar_t> GetPathName() const;

    // The part of that path after its last slash, and the part of that after the last dot.
    CStdStr<wchar_t> GetFileName() const;
    CStdStr<wchar_t> GetFileExt() const;

    // Where a walk over the selected files begins.
    // Result: a position for GetNextPathName; null if nothing was selected.
    POSITION GetStartPosition() const;

    // The next selected file, in the dialog's order.
    //   pos    in/out: the position, moved to the next file; null after the last one
    // Result: the file's path, as GetPathName has it. If pos is null or nothing was selected:
    // empty, and pos stays. A position from a longer selection gives empty names until it reaches
    // this one.
    // On Windows: a null pos is an error.
    CStdStr<wchar_t> GetNextPathName(POSITION& pos) const;

    QFileDialog* m_pDialog = nullptr; // of the last run, owned; null when its parent deleted it
    CWnd* m_pParentWnd;
    QString m_strCaption;
    QString m_strDirectory;
    QString m_strFilter;
    KtQFileDialgAttri m_attri;
    CStdStr<wchar_t> m_strPathName;
    CStdStr<wchar_t> m_strFileName;
    CStdStr<wchar_t> m_strFileExt;
    std::uintptr_t m_nSelectedCount = 0; // also the position where a walk begins
    QStringList m_listSelectedFiles;
    QString m_strSelectedNameFilter;
    OPENFILENAMEW m_ofn; // zero at first, also between its members
};

#include <KtQtBase/windows/HostMacros.h> // gives them back

#endif
