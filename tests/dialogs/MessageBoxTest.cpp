// SPDX-License-Identifier: MIT
#include "dialogs/User.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/Messages.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Modules.h>

#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <string>

namespace {

using ktqtbase::test::RowName;
using ktqtbase::test::wide;

void press(QMessageBox& box, QMessageBox::StandardButton button)
{
    QTest::mouseClick(box.button(button), Qt::LeftButton);
}

TEST(AfxMessageBox, ShowsTheTextAsACriticalErrorWithoutTitle)
{
    const User<QMessageBox> user([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QString::fromUtf8("Disk \xC3\xA4 \xF0\x9F\x98\x80 full"));
        EXPECT_EQ(box.windowTitle(), QString());
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.parentWidget(), nullptr);
        EXPECT_EQ(QApplication::activeModalWidget(), &box);
        EXPECT_TRUE(keepScreenshot(box, QStringLiteral("messagebox")));
        press(box, QMessageBox::Yes);
    });
    EXPECT_EQ(AfxMessageBox(L"Disk \u00e4 \U0001F600 full"), IDYES);
}

struct TextRow
{
    const char* name;
    const wchar_t* text;
};

class AfxMessageBoxText : public testing::TestWithParam<TextRow>
{};

TEST_P(AfxMessageBoxText, ReachesTheBoxUnchanged)
{
    const User<QMessageBox> user([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QString::fromStdWString(GetParam().text));
        EXPECT_EQ(box.textFormat(), Qt::AutoText);
        EXPECT_EQ(box.informativeText() + box.detailedText(), QString());
        press(box, QMessageBox::Yes);
    });
    EXPECT_EQ(AfxMessageBox(GetParam().text), IDYES);
}

INSTANTIATE_TEST_SUITE_P(Rows, AfxMessageBoxText,
                         testing::Values(TextRow{"Tag", L"a <b>bold</b> word"},
                                         TextRow{"Ampersand", L"Fish & chips && more"},
                                         TextRow{"Entity", L"&lt;b&gt; &amp;"},
                                         TextRow{"Lines", L" first\r\n\tsecond \\n"}),
                         RowName());

TEST(AfxMessageBox, HasNoParentWhileAnotherWindowIsActive)
{
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    const User<QMessageBox> user([](QMessageBox& box) {
        EXPECT_EQ(box.parent(), nullptr);
        press(box, QMessageBox::Yes);
    });
    EXPECT_EQ(AfxMessageBox(L"text"), IDYES);
}

struct TypeRow
{
    const char* name;
    unsigned int type;
};

class AfxMessageBoxType : public testing::TestWithParam<TypeRow>
{};

TEST_P(AfxMessageBoxType, ChangesNeitherButtonsNorIcon)
{
    const User<QMessageBox> user([](QMessageBox& box) {
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_TRUE(box.defaultButton() == box.button(QMessageBox::Yes));
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        press(box, QMessageBox::No);
    });
    EXPECT_EQ(AfxMessageBox(L"text", GetParam().type, 17), IDNO);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AfxMessageBoxType,
    testing::Values(TypeRow{"Ok", MB_OK}, TypeRow{"OkCancel", MB_OKCANCEL | MB_ICONWARNING},
                    TypeRow{"AbortRetryIgnore", MB_ABORTRETRYIGNORE},
                    TypeRow{"YesNoCancelSecond", MB_YESNOCANCEL | MB_DEFBUTTON2},
                    TypeRow{"Information", MB_YESNO | MB_ICONINFORMATION},
                    TypeRow{"AllBits", 0xFFFFFFFF}),
    RowName());

struct AnswerRow
{
    const char* name;
    void (*end)(QMessageBox& box);
    int result;
};

// A box as a host may get to see it: with a button that some code added.
template<QMessageBox::StandardButton button>
void pressAdded(QMessageBox& box)
{
    box.addButton(button);
    press(box, button);
}

class AfxMessageBoxEnd : public testing::TestWithParam<AnswerRow>
{};

TEST_P(AfxMessageBoxEnd, GivesTheWindowsResult)
{
    const User<QMessageBox> user(GetParam().end);
    EXPECT_EQ(AfxMessageBox(L"text"), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, AfxMessageBoxEnd,
    testing::Values(AnswerRow{"Yes", [](QMessageBox& box) { press(box, QMessageBox::Yes); }, 6},
                    AnswerRow{"No", [](QMessageBox& box) { press(box, QMessageBox::No); }, 7},
                    AnswerRow{"Ok", pressAdded<QMessageBox::Ok>, 1},
                    AnswerRow{"Cancel", pressAdded<QMessageBox::Cancel>, 2},
                    AnswerRow{"Abort", pressAdded<QMessageBox::Abort>, 3},
                    AnswerRow{"Retry", pressAdded<QMessageBox::Retry>, 4},
                    AnswerRow{"Ignore", pressAdded<QMessageBox::Ignore>, 5},
                    AnswerRow{"Close", pressAdded<QMessageBox::Close>, 3},
                    AnswerRow{"YesToAll", pressAdded<QMessageBox::YesToAll>, 3}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    OtherWays, AfxMessageBoxEnd,
    testing::Values(
        AnswerRow{"Return", [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }, 6},
        AnswerRow{"Escape", [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }, 7},
        AnswerRow{"CloseButton", [](QMessageBox& box) { box.close(); }, 7},
        AnswerRow{"Rejected", [](QMessageBox& box) { box.done(0); }, 3},
        AnswerRow{"MinusOne", [](QMessageBox& box) { box.done(-1); }, 2}),
    RowName());

TEST(AfxMessageBox, ShowsAnEmptyTextForNull)
{
    const User<QMessageBox> user([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QString());
        press(box, QMessageBox::Yes);
    });
    const wchar_t* const text = nullptr;
    EXPECT_EQ(AfxMessageBox(text), IDYES);
}

struct PromptRow
{
    const char* name;
    unsigned int id;
    const char* text;
};

class AfxMessageBoxPrompt : public testing::TestWithParam<PromptRow>
{};

TEST_P(AfxMessageBoxPrompt, ShowsTheModulesText)
{
    const HINSTANCE module = LoadLibrary(wide(RESOURCE_MODULES "texts.dll").c_str());
    AfxSetResourceHandle(module);
    const User<QMessageBox> user([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QString::fromUtf8(GetParam().text));
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        press(box, QMessageBox::No);
    });
    EXPECT_EQ(AfxMessageBox(GetParam().id, MB_OK), IDNO);
    AfxSetResourceHandle(nullptr);
    FreeLibrary(module);
}

INSTANTIATE_TEST_SUITE_P(Rows, AfxMessageBoxPrompt,
                         testing::Values(PromptRow{"Known", 101, "Ready"},
                                         PromptRow{"Empty", 102, ""},
                                         PromptRow{"Unknown", 999, ""}),
                         RowName());

TEST(AfxMessageBox, ShowsAnEmptyTextWithoutAResourceModule)
{
    const User<QMessageBox> user([](QMessageBox& box) {
        EXPECT_EQ(box.text(), QString());
        press(box, QMessageBox::Yes);
    });
    EXPECT_EQ(AfxMessageBox(101u), IDYES);
}

} // namespace
