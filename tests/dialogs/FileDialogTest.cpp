// SPDX-License-Identifier: MIT
//
// Runs of the file dialog: what its user does, and what the host reads afterwards.
#include "dialogs/FileDialogFixture.h"
#include "support/RowName.h"

#include <QtWidgets/QMessageBox>

#include <cstring>

namespace {

using ktqtbase::test::RowName;

using DoModal = FileDialogFixture;

std::vector<std::wstring> walk(const KtQtFileDialog& dialog)
{
    std::vector<std::wstring> names;
    POSITION pos = dialog.GetStartPosition();
    while (pos)
        names.push_back(dialog.GetNextPathName(pos));
    return names;
}

TEST_F(DoModal, OpensATypedFile)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    const User<QFileDialog> user(
        [](QFileDialog& shown) { typeNameAndReturn(shown, QStringLiteral("june.b.txt")); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), widePath("june.b.txt"));
    EXPECT_EQ(dialog.GetFileName(), L"june.b.txt");
    EXPECT_EQ(dialog.GetFileExt(), L"txt");
    EXPECT_EQ(walk(dialog), std::vector<std::wstring>{widePath("june.b.txt")});
}

TEST_F(DoModal, OpensAClickedFile)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    const User<QFileDialog> user([](QFileDialog& shown) {
        listedFiles(shown, kFiles);
        clickFile(shown, QStringLiteral("noext"));
        EXPECT_EQ(nameEdit(shown)->text(), QStringLiteral("noext"));
        EXPECT_TRUE(keepScreenshot(shown, QStringLiteral("filedialog")));
        press(shown, QDialogButtonBox::Open);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), widePath("noext"));
    EXPECT_EQ(dialog.GetFileExt(), L"");
}

TEST_F(DoModal, OpensSeveralFilesInTheDialogsOrderWhateverTheFlags)
{
    KtQtFileDialog dialog(true, nullptr, nullptr, OFN_HIDEREADONLY);
    fill(dialog);
    QStringList order;
    const User<QFileDialog> user([&order](QFileDialog& shown) {
        listedFiles(shown, kFiles);
        clickFile(shown, QStringLiteral("may.txt"));
        clickFile(shown, QStringLiteral("april.txt"), Qt::ControlModifier);
        clickFile(shown, QStringLiteral("summary.csv"), Qt::ControlModifier);
        order = shown.selectedFiles();
        press(shown, QDialogButtonBox::Open);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    ASSERT_EQ(order.size(), 3);
    EXPECT_EQ(dialog.GetStartPosition(), reinterpret_cast<POSITION>(3));
    EXPECT_EQ(walk(dialog),
              (std::vector<std::wstring>{order[0].toStdWString(), order[1].toStdWString(),
                                         order[2].toStdWString()}));
    EXPECT_EQ(dialog.GetPathName(), order[0].toStdWString());
}

TEST_F(DoModal, OpensSeveralTypedFiles)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    const User<QFileDialog> user([](QFileDialog& shown) {
        typeNameAndReturn(shown, QStringLiteral("\"may.txt\" \"april.txt\""));
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(walk(dialog),
              (std::vector<std::wstring>{widePath("may.txt"), widePath("april.txt")}));
}

TEST_F(DoModal, SavesUnderANewName)
{
    KtQtFileDialog dialog(false, L"txt");
    fill(dialog);
    wchar_t name[32] = L"new.txt";
    dialog.GetOFN().lpstrFile = name;
    const User<QFileDialog> user(
        [](QFileDialog& shown) { typeNameAndReturn(shown, QStringLiteral("july.\u00e4")); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), path(QStringLiteral("july.\u00e4")).toStdWString());
    EXPECT_STREQ(name, L"new.txt");
}

TEST_F(DoModal, SavesUnderThePreselectedName)
{
    KtQtFileDialog dialog(false, L"dat");
    fill(dialog);
    wchar_t name[] = L"new";
    dialog.GetOFN().lpstrFile = name;
    const User<QFileDialog> user([](QFileDialog& shown) { press(shown, QDialogButtonBox::Save); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), widePath("new"));
}

TEST_F(DoModal, WritesNothingButTheFilterIndexIntoTheBlock)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    const OPENFILENAMEW before = dialog.GetOFN();
    const User<QFileDialog> user([](QFileDialog& shown) {
        QTest::keyClick(filterBox(shown), Qt::Key_Up);
        typeNameAndReturn(shown, QStringLiteral("may.txt"));
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, 1u);
    EXPECT_EQ(dialog.m_strSelectedNameFilter, QStringLiteral("Text (*.txt)"));
    dialog.GetOFN().nFilterIndex = before.nFilterIndex;
    EXPECT_EQ(std::memcmp(&dialog.GetOFN(), &before, sizeof before), 0);
}

TEST_F(DoModal, SavesUnderTheTypedNameWhateverTheFlagsAndTexts)
{
    constexpr DWORD kEveryFlag = 0xFFFFFFFF;
    KtQtFileDialog dialog(false, L"dat", L"argument", kEveryFlag);
    fill(dialog);
    wchar_t title[] = L"title";
    dialog.GetOFN().lpstrFileTitle = title;
    dialog.GetOFN().lpstrDefExt = L"dat";
    dialog.GetOFN().Flags = kEveryFlag;
    const OPENFILENAMEW before = dialog.GetOFN();
    const User<QFileDialog> user([](QFileDialog& shown) {
        EXPECT_EQ(nameEdit(shown)->text(), QString());
        typeNameAndReturn(shown, QStringLiteral("new"));
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), widePath("new"));
    EXPECT_EQ(std::memcmp(&dialog.GetOFN(), &before, sizeof before), 0);
    EXPECT_STREQ(title, L"title");
}

struct EndRow
{
    const char* name;
    void (*end)(QFileDialog& dialog);
};

class DoModalEnd : public FileDialogFixture, public testing::WithParamInterface<EndRow>
{};

TEST_P(DoModalEnd, CancelsAndKeepsTheFormerSelection)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    dialog.m_listSelectedFiles = QStringList{QStringLiteral("/x/former.dat")};
    dialog.m_nSelectedCount = 1;
    dialog.PraseFileInfo();
    dialog.GetOFN().nFilterIndex = 2;
    dialog.m_strSelectedNameFilter = QStringLiteral("Former (*)");
    const User<QFileDialog> user([](QFileDialog& shown) {
        typeName(shown, QStringLiteral("may.txt"));
        GetParam().end(shown);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetPathName(), L"/x/former.dat");
    EXPECT_EQ(walk(dialog), std::vector<std::wstring>{L"/x/former.dat"});
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, 2u);
    EXPECT_EQ(dialog.m_strSelectedNameFilter, QStringLiteral("Former (*)"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DoModalEnd,
    testing::Values(
        EndRow{"Button", [](QFileDialog& shown) { press(shown, QDialogButtonBox::Cancel); }},
        EndRow{"Escape", [](QFileDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); }},
        EndRow{"CloseButton", [](QFileDialog& shown) { shown.close(); }},
        EndRow{"OtherCode", [](QFileDialog& shown) { static_cast<QDialog&>(shown).done(2); }},
        EndRow{"NegativeCode", [](QFileDialog& shown) { static_cast<QDialog&>(shown).done(-1); }}),
    RowName());

TEST_F(DoModal, LeavesOtherWindowsUsable)
{
    QPushButton other(QStringLiteral("other"));
    other.show();
    int clicks = 0;
    QObject::connect(&other, &QPushButton::clicked, [&clicks] { ++clicks; });
    KtQtFileDialog dialog(true);
    fill(dialog);
    const User<QFileDialog> user([&other](QFileDialog& shown) {
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        QTest::mouseClick(other.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        press(shown, QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(clicks, 1);
}

TEST_F(DoModal, HandsTheParentOn)
{
    QWidget parent;
    KtQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, &parent);
    fill(dialog);
    const User<QFileDialog> user([&parent](QFileDialog& shown) {
        EXPECT_EQ(shown.parentWidget(), &parent);
        press(shown, QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_NE(dialog.m_pDialog, nullptr);
}

TEST_F(DoModal, ReflectsTheLastAcceptedRun)
{
    QWidget parent;
    KtQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, &parent);
    fill(dialog);
    for (const char* name : {"may.txt", "summary.csv"}) {
        const User<QFileDialog> user(
            [name](QFileDialog& shown) { typeNameAndReturn(shown, QString::fromLatin1(name)); });
        EXPECT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(walk(dialog), std::vector<std::wstring>{widePath(name)});
    }
    EXPECT_EQ(dialog.GetFileExt(), L"csv");
}

TEST_F(DoModal, AsksBeforeItSavesOverAFile)
{
    KtQtFileDialog dialog(false, nullptr, nullptr, 0);
    fill(dialog);
    const User<QFileDialog> user([](QFileDialog& shown) {
        const User<QMessageBox> careful([](QMessageBox& box) {
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        typeNameAndReturn(shown, QStringLiteral("may.txt"));
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetFileName(), L"may.txt");
}

TEST_F(DoModal, NumbersTheEmptyFilterOfAnEmptyListFirst)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    dialog.GetOFN().lpstrFilter = nullptr;
    const User<QFileDialog> user(
        [](QFileDialog& shown) { typeNameAndReturn(shown, QStringLiteral("may.txt")); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, 1u);
}

TEST_F(DoModal, NumbersNoFilterWhoseBlanksQtTookAway)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    dialog.GetOFN().lpstrFilter = L"Text (*.txt) ;; All files (*)";
    const User<QFileDialog> user(
        [](QFileDialog& shown) { typeNameAndReturn(shown, QStringLiteral("may.txt")); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_strSelectedNameFilter, QStringLiteral("Text (*.txt)"));
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, 0u);
}

TEST_F(DoModal, KeepsTheNamesWhenARunIsAcceptedWithoutFiles)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    dialog.m_listSelectedFiles = QStringList{QStringLiteral("/x/former.dat")};
    dialog.m_nSelectedCount = 1;
    dialog.PraseFileInfo();
    dialog.GetOFN().nFilterIndex = 1;
    const User<QFileDialog> user([](QFileDialog& shown) { static_cast<QDialog&>(shown).done(1); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetStartPosition(), nullptr);
    EXPECT_EQ(dialog.m_listSelectedFiles, QStringList());
    EXPECT_EQ(dialog.m_strSelectedNameFilter, QStringLiteral("Text (*.txt)"));
    EXPECT_EQ(dialog.GetPathName(), L"/x/former.dat");
    EXPECT_EQ(dialog.GetFileName() + dialog.GetFileExt(), L"former.datdat");
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, 1u);
}

} // namespace
