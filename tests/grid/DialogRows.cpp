// SPDX-License-Identifier: MIT
//
// The file dialog's block, whose texts are read and whose areas stay as they are.
#include "grid/Grid.h"

#include "dialogs/User.h"

#include <KtQtBase/FileDialog.h>

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>

namespace ktqtbase::test {

namespace {

// Shows a dialog, and ends it as soon as it is there. Result: the name that it proposes.
std::wstring proposedBy(KtQtFileDialog& dialog)
{
    QString name;
    const User<QFileDialog> user([&](QFileDialog& shown) {
        name = shown.findChild<QLineEdit*>()->text();
        shown.reject();
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    return name.toStdWString();
}

// Whatever the sizes say, the name is read up to its NUL and nothing is written.
void showBlock(const Cell& cell)
{
    const QTemporaryDir folder;
    const std::wstring folderName = folder.path().toStdWString();
    const Input<wchar_t> name(cell, L"\u00e9.txt" + std::wstring(1, L'\0'));
    const Output<wchar_t> filter(cell, 8);
    const Output<wchar_t> title(cell, 8);
    KtQtFileDialog dialog(false);
    OPENFILENAMEW& block = dialog.GetOFN();
    block.lpstrInitialDir = folderName.c_str();
    block.lpstrFile = cell.isNull() ? nullptr : name.data();
    block.lpstrCustomFilter = filter.data();
    block.lpstrFileTitle = title.data();
    block.nMaxFile = block.nMaxCustFilter = block.nMaxFileTitle = static_cast<DWORD>(cell.size);
    const OPENFILENAMEW before = block;
    EXPECT_EQ(proposedBy(dialog), cell.isNull() ? L"" : L"\u00e9.txt");
    EXPECT_EQ(std::memcmp(&block, &before, sizeof block), 0);
    filter.expect(L"");
    title.expect(L"");
}

} // namespace

std::vector<GridRow> dialogRows()
{
    return {{"KtQtFileDialog::GetOFN", "", Locales::One, kAllColumns, always(6), kGreatestUnsigned,
             showBlock}};
}

} // namespace ktqtbase::test
