// SPDX-License-Identifier: MIT
//
// What the constructor and the block make the file dialog show.
#include "dialogs/FileDialogFixture.h"
#include "support/RowName.h"

#include <cstring>

namespace {

using ktqtbase::test::RowName;

using FileDialogBlock = FileDialogFixture;

// Works in a folder meanwhile.
class CurrentFolder
{
public:
    explicit CurrentFolder(const QString& path) { QDir::setCurrent(path); }
    ~CurrentFolder() { QDir::setCurrent(m_former); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    QString m_former = QDir::currentPath();
};

// Runs a dialog whose user looks at it and cancels.
void look(KtQtFileDialog& dialog, const std::function<void(QFileDialog&)>& eyes)
{
    const User<QFileDialog> user([&eyes](QFileDialog& shown) {
        eyes(shown);
        press(shown, QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(KtQtFileDialog, KeepsTheConstructorsTexts)
{
    QWidget parent;
    const KtQtFileDialog dialog(true, L"txt", L"\U0001F600.txt", 0, L"All (*)", &parent, 1, false);
    EXPECT_EQ(dialog.m_pParentWnd, &parent);
    EXPECT_EQ(dialog.m_strFilter, QStringLiteral("All (*)"));
    EXPECT_EQ(dialog.m_attri.m_strDefaultExt, QStringLiteral("txt"));
    EXPECT_EQ(dialog.m_attri.m_strFileName, QString::fromUtf8("\xF0\x9F\x98\x80.txt"));
    EXPECT_EQ(dialog.m_pDialog, nullptr);
}

TEST(KtQtFileDialog, OpensSeveralFilesOrSavesAnyName)
{
    const KtQtFileDialog open(true);
    EXPECT_EQ(open.m_attri.m_nAcceptMode, 0);
    EXPECT_EQ(open.m_attri.m_nFileMode, 3);
    const KtQtFileDialog save(false);
    EXPECT_EQ(save.m_attri.m_nAcceptMode, 1);
    EXPECT_EQ(save.m_attri.m_nFileMode, 0);
}

TEST(KtQtFileDialog, BeginsWithNothingSelectedAndAZeroBlock)
{
    KtQtFileDialog dialog(true, L"txt", L"name", OFN_ALLOWMULTISELECT, L"All (*)");
    const OPENFILENAMEW zeros = {};
    EXPECT_EQ(std::memcmp(&dialog.GetOFN(), &zeros, sizeof zeros), 0);
    EXPECT_EQ(dialog.GetStartPosition(), nullptr);
    EXPECT_EQ(dialog.GetPathName() + dialog.GetFileName() + dialog.GetFileExt(), L"");
    EXPECT_EQ(dialog.m_listSelectedFiles, QStringList());
}

TEST(GetOFN, GivesTheSameBlockEveryTime)
{
    KtQtFileDialog dialog(true);
    dialog.GetOFN().nFilterIndex = 5;
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, 5u);
    EXPECT_EQ(&dialog.GetOFN(), &dialog.m_ofn);
}

TEST_F(FileDialogBlock, SetsTitleFolderAndFilters)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    look(dialog, [this](QFileDialog& shown) {
        EXPECT_EQ(shown.windowTitle(), QStringLiteral("Import reports"));
        EXPECT_EQ(shown.directory().path(), path());
        EXPECT_EQ(shown.nameFilters().size(), 2);
        EXPECT_EQ(shown.selectedNameFilter(), QStringLiteral("All files (*)"));
        EXPECT_EQ(shown.labelText(QFileDialog::FileType), QStringLiteral("File Format:"));
        EXPECT_TRUE(listedFiles(shown, kFiles).contains(QStringLiteral("april.txt")));
    });
}

TEST_F(FileDialogBlock, TakesBackslashesInTheFolder)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    const std::wstring folder = path().replace(u'/', u'\\').toStdWString();
    dialog.GetOFN().lpstrInitialDir = folder.c_str();
    look(dialog, [this](QFileDialog& shown) { EXPECT_EQ(shown.directory().path(), path()); });
    EXPECT_EQ(dialog.m_strDirectory, path());
}

TEST_F(FileDialogBlock, OpensADriveNameAsARelativeFolder)
{
    const CurrentFolder current(path());
    QDir().mkpath(QStringLiteral("C:/data/in"));
    KtQtFileDialog dialog(true);
    fill(dialog);
    dialog.GetOFN().lpstrInitialDir = L"C:\\data\\in";
    look(dialog, [this](QFileDialog& shown) {
        EXPECT_EQ(shown.directory().absolutePath(), path(QStringLiteral("C:/data/in")));
    });
    EXPECT_EQ(dialog.m_strDirectory, QStringLiteral("C:/data/in"));
}

TEST_F(FileDialogBlock, ShowsTheTopOfTheFileSystemForNullTexts)
{
    KtQtFileDialog dialog(true);
    look(dialog, [](QFileDialog& shown) {
        EXPECT_EQ(listedFiles(shown, 1), QStringList(QStringLiteral("/")));
        EXPECT_EQ(nameEdit(shown)->text(), QString());
        EXPECT_EQ(shown.nameFilters(), QStringList());
    });
    EXPECT_EQ(dialog.m_strCaption, QString());
    EXPECT_EQ(dialog.m_attri.m_listNameFilter, QStringList(QString()));
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, 0u);
}

TEST_F(FileDialogBlock, PreselectsTheFileThatItNames)
{
    KtQtFileDialog dialog(false);
    fill(dialog);
    wchar_t name[] = L"new.txt";
    dialog.GetOFN().lpstrFile = name;
    look(dialog,
         [](QFileDialog& shown) { EXPECT_EQ(nameEdit(shown)->text(), QStringLiteral("new.txt")); });
    EXPECT_STREQ(name, L"new.txt");
}

TEST_F(FileDialogBlock, LetsTheFolderWinOverTheFilesOwn)
{
    KtQtFileDialog dialog(false);
    fill(dialog);
    wchar_t name[] = L"/tmp/new.txt";
    dialog.GetOFN().lpstrFile = name;
    look(dialog, [this](QFileDialog& shown) {
        EXPECT_EQ(shown.directory().path(), path());
        EXPECT_EQ(nameEdit(shown)->text(), QStringLiteral("new.txt"));
    });
}

TEST_F(FileDialogBlock, KeepsTheFoldersOfOtherNames)
{
    const struct
    {
        const wchar_t* name;
        const char* shown;
    } rows[] = {{L"sub/new.txt", "sub/new.txt"},
                {L"../other/new.txt", "../other/new.txt"},
                {L"/no/such/folder/new.txt", "no/such/folder/new.txt"}};
    for (const auto& row : rows) {
        KtQtFileDialog dialog(false);
        fill(dialog);
        std::wstring name = row.name;
        dialog.GetOFN().lpstrFile = name.data();
        look(dialog, [&row](QFileDialog& shown) {
            EXPECT_EQ(nameEdit(shown)->text(), QString::fromLatin1(row.shown));
        });
    }
}

TEST_F(FileDialogBlock, ReadsTheFilterUpToItsFirstNul)
{
    KtQtFileDialog dialog(true);
    fill(dialog, 1);
    dialog.GetOFN().lpstrFilter = L"Text (*.txt)\0*.txt\0All files (*)\0*\0";
    look(dialog, [](QFileDialog& shown) {
        EXPECT_EQ(shown.nameFilters(), QStringList(QStringLiteral("Text (*.txt)")));
    });
}

TEST_F(FileDialogBlock, KeepsEmptyPartsOfTheFilter)
{
    KtQtFileDialog dialog(true);
    fill(dialog, 3);
    dialog.GetOFN().lpstrFilter = L"Text (*.txt);;;;All files (*);;";
    look(dialog, [](QFileDialog& shown) {
        EXPECT_EQ(shown.selectedNameFilter(), QStringLiteral("All files (*)"));
    });
    EXPECT_EQ(dialog.m_attri.m_listNameFilter.size(), 4);
}

TEST_F(FileDialogBlock, ReplacesTheConstructorsFilter)
{
    KtQtFileDialog dialog(true, nullptr, nullptr, 0, L"Pictures (*.png)");
    fill(dialog);
    look(dialog, [](QFileDialog& shown) {
        EXPECT_FALSE(shown.nameFilters().contains(QStringLiteral("Pictures (*.png)")));
    });
}

TEST_F(FileDialogBlock, KeepsBackslashesInTheFileName)
{
    KtQtFileDialog dialog(false);
    fill(dialog);
    wchar_t name[] = L"new\\july.txt";
    dialog.GetOFN().lpstrFile = name;
    look(dialog, [](QFileDialog& shown) {
        EXPECT_EQ(nameEdit(shown)->text(), QStringLiteral("new\\july.txt"));
    });
    EXPECT_EQ(dialog.m_attri.m_strSelectFile, QStringLiteral("new\\july.txt"));
}

TEST_F(FileDialogBlock, ShowsATitleInAnyScript)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    dialog.GetOFN().lpstrTitle = L"\u00e4 \u4e2d \U0001F600";
    const QString title = QString::fromUtf8("\xC3\xA4 \xE4\xB8\xAD \xF0\x9F\x98\x80");
    look(dialog, [&title](QFileDialog& shown) { EXPECT_EQ(shown.windowTitle(), title); });
    EXPECT_EQ(dialog.m_strCaption, title);
}

TEST_F(FileDialogBlock, KeepsBlanksInTheFilters)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    dialog.GetOFN().lpstrFilter = L" Text  (*.txt) ;; All files (*) ";
    look(dialog, [](QFileDialog& shown) {
        EXPECT_EQ(shown.nameFilters(),
                  (QStringList{QStringLiteral("Text (*.txt)"), QStringLiteral("All files (*)")}));
        EXPECT_EQ(shown.selectedNameFilter(), QStringLiteral("Text (*.txt)"));
    });
    EXPECT_EQ(dialog.m_attri.m_strNameFilter, QStringLiteral(" Text  (*.txt) ;; All files (*) "));
    EXPECT_EQ(dialog.m_attri.m_listNameFilter,
              (QStringList{QStringLiteral(" Text  (*.txt) "), QStringLiteral(" All files (*) ")}));
    EXPECT_EQ(dialog.m_attri.m_strInitNameFilter, QStringLiteral(" All files (*) "));
}

struct RelativeRow
{
    const char* name;
    bool open;
    void (*act)(QFileDialog& shown);
    const char* file;
    bool isRelative;
};

class FileDialogRelativeFolder : public FileDialogFixture,
                                 public testing::WithParamInterface<RelativeRow>
{};

TEST_P(FileDialogRelativeFolder, GivesTheNameThatTheDialogMakes)
{
    const CurrentFolder current(path(QStringLiteral("..")));
    KtQtFileDialog dialog(GetParam().open);
    fill(dialog);
    dialog.GetOFN().lpstrInitialDir = L"Reports";
    const User<QFileDialog> user(GetParam().act);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    const std::wstring relative = L"Reports/" + QString::fromUtf8(GetParam().file).toStdWString();
    const std::wstring name = GetParam().isRelative ? relative : widePath(GetParam().file);
    EXPECT_EQ(QString::fromStdWString(dialog.GetPathName()), QString::fromStdWString(name));
    POSITION pos = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(pos), name);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FileDialogRelativeFolder,
    testing::Values(
        RelativeRow{"TypedExisting", true,
                    [](QFileDialog& shown) { typeNameAndReturn(shown, QStringLiteral("may.txt")); },
                    "may.txt", false},
        RelativeRow{"TypedNew", false,
                    [](QFileDialog& shown) { typeNameAndReturn(shown, QStringLiteral("july")); },
                    "july", true},
        RelativeRow{"Clicked", true,
                    [](QFileDialog& shown) {
                        listedFiles(shown, kFiles);
                        clickFile(shown, QStringLiteral("noext"));
                        press(shown, QDialogButtonBox::Open);
                    },
                    "noext", false}),
    RowName());

struct IndexRow
{
    const char* name;
    DWORD index;
    const char* initial;
    int shown;
};

class FileDialogFilterIndex : public FileDialogFixture, public testing::WithParamInterface<IndexRow>
{};

TEST_P(FileDialogFilterIndex, ChoosesTheFilter)
{
    KtQtFileDialog dialog(true);
    fill(dialog, GetParam().index);
    look(dialog,
         [](QFileDialog& shown) { EXPECT_EQ(filterBox(shown)->currentIndex(), GetParam().shown); });
    EXPECT_EQ(dialog.m_attri.m_strInitNameFilter, QString::fromUtf8(GetParam().initial));
    EXPECT_EQ(dialog.GetOFN().nFilterIndex, GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(Rows, FileDialogFilterIndex,
                         testing::Values(IndexRow{"First", 1, "Text (*.txt)", 0},
                                         IndexRow{"Second", 2, "All files (*)", 1},
                                         IndexRow{"Zero", 0, "", 0}, IndexRow{"Beyond", 3, "", 0},
                                         IndexRow{"SignBit", 0x80000000, "", 0},
                                         IndexRow{"Largest", 0xFFFFFFFF, "", 0}),
                         RowName());

} // namespace
