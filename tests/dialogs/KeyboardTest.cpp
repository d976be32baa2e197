// SPDX-License-Identifier: MIT
//
// Boxes and the file dialog under keys that come from the X server, past Qt and through the window
// manager.
#include "dialogs/FileDialogFixture.h"
#include "support/RowName.h"
#include "support/RunProgram.h"

#include <KtQtBase/Messages.h>

#include <QtWidgets/QMessageBox>

namespace {

using ktqtbase::test::RowName;

// Types on the X server's keyboard until the dialog is gone.
void typeAway(QDialog& dialog, const QStringList& command)
{
    const QPointer<QDialog> shown(&dialog);
    EXPECT_EQ(runProgram(XDOTOOL, command).status, 0);
    EXPECT_TRUE(QTest::qWaitFor([&shown] { return !shown || !shown->isVisible(); }, 10000));
}

struct BoxRow
{
    const char* name;
    QStringList keys;
    int result;
};

class BoxKeys : public testing::TestWithParam<BoxRow>
{};

TEST_P(BoxKeys, GiveTheWindowsResult)
{
    const User<QMessageBox> user([](QMessageBox& box) {
        typeAway(box, QStringList{QStringLiteral("key")} + GetParam().keys);
    });
    EXPECT_EQ(AfxMessageBox(L"text", MB_OK), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Rows, BoxKeys,
                         testing::Values(BoxRow{"Return", {"Return"}, IDYES},
                                         BoxRow{"TabAndSpace", {"Tab", "space"}, IDNO},
                                         BoxRow{"Shortcut", {"alt+n"}, IDNO},
                                         BoxRow{"Escape", {"Escape"}, IDNO},
                                         BoxRow{"CloseWindow", {"alt+F4"}, IDNO}),
                         RowName());

class DialogKeys : public FileDialogFixture
{};

// The first Return takes the name that the field proposes.
TEST_F(DialogKeys, OpenATypedFile)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    const User<QFileDialog> user([](QFileDialog& shown) {
        typeAway(shown, {"key", "m", "a", "y", "period", "t", "x", "t", "Return", "Return"});
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), widePath("may.txt"));
}

TEST_F(DialogKeys, OpenAFileOfTheList)
{
    KtQtFileDialog dialog(true);
    fill(dialog);
    const User<QFileDialog> user([](QFileDialog& shown) {
        listedFiles(shown, kFiles);
        clickFile(shown, QStringLiteral("april.txt"));
        typeAway(shown, {"key", "shift+Down", "Return"});
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetStartPosition(), reinterpret_cast<POSITION>(2));
    EXPECT_EQ(dialog.GetFileName(), L"april.txt");
}

TEST_F(DialogKeys, CancelByEscapeAndByClosingTheWindow)
{
    for (const char* key : {"Escape", "alt+F4"}) {
        KtQtFileDialog dialog(true);
        fill(dialog);
        const User<QFileDialog> user([key](QFileDialog& shown) { typeAway(shown, {"key", key}); });
        EXPECT_EQ(dialog.DoModal(), IDCANCEL) << key;
    }
}

} // namespace
