// SPDX-License-Identifier: MIT
//
// The program of docs/first-window.md, used as a person uses it.
#include "dialogs/User.h"
#include "support/TemporaryFolder.h"

#include <firstwindow/Panel.h>

#include <QtCore/QSettings>
#include <QtTest/QTest>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <fstream>

namespace {

// [windows-and-menus]
void Enable(HWND window, bool enabled)
{
    QWidget* const widget = QWidget::find(reinterpret_cast<WId>(window));
    if (widget)
        widget->setEnabled(enabled); // KtUser32::EnableWindow changes nothing
}
// [windows-and-menus]

using ktqtbase::test::TemporaryFolder;

class FirstWindow : public testing::Test
{
protected:
    FirstWindow()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           QString::fromStdString(m_settings.path().string()));
    }

    void click(Qt::MouseButton button, const QPoint& place)
    {
        QTest::mouseClick(&m_panel, button, Qt::NoModifier, place);
    }

    void answer(QMessageBox::StandardButton button)
    {
        const User<QMessageBox> user(
            [button](QMessageBox& box) { QTest::mouseClick(box.button(button), Qt::LeftButton); });
        click(Qt::RightButton, QPoint(5, 5));
    }

    TemporaryFolder m_settings;
    Dots m_dots;
    Panel m_panel{m_dots};
};

TEST_F(FirstWindow, AddsADotAtEachClick)
{
    click(Qt::LeftButton, QPoint(40, 50));
    click(Qt::LeftButton, QPoint(100, 60));
    ASSERT_EQ(m_dots.places.size(), 2u);
    EXPECT_TRUE(m_dots.places[0] == CPoint(40, 50));
}

TEST_F(FirstWindow, PaintsItsDotsInTheirColour)
{
    click(Qt::LeftButton, QPoint(40, 50));
    EXPECT_EQ(m_panel.grab().toImage().pixelColor(40, 50), QColor(200, 30, 30));
}

TEST_F(FirstWindow, RemovesTheDotsWhenTheUserSaysYes)
{
    click(Qt::LeftButton, QPoint(40, 50));
    answer(QMessageBox::No);
    EXPECT_EQ(m_dots.places.size(), 1u);
    answer(QMessageBox::Yes);
    EXPECT_TRUE(m_dots.places.empty());
}

TEST_F(FirstWindow, RemembersHowManyDotsThereWere)
{
    click(Qt::LeftButton, QPoint(40, 50));
    click(Qt::LeftButton, QPoint(60, 50));
    m_panel.close();
    EXPECT_EQ(ReadCount(), 2);
}

TEST_F(FirstWindow, IsDisabledAsAWidget)
{
    Enable(reinterpret_cast<HWND>(m_panel.winId()), false);
    EXPECT_FALSE(m_panel.isEnabled());
}

TEST(FirstWindowSettings, ComeFromTheFile)
{
    const TemporaryFolder folder;
    const std::filesystem::path file = folder / "dots.ini";
    std::ofstream(file) << "[Dots]\nSize = 20\nColor = 0x00FF0000\n";
    Dots dots;
    ReadSettings(dots, file.wstring().c_str());
    EXPECT_EQ(dots.size, 20);
    EXPECT_EQ(dots.color, RGB(0, 0, 255));
}

TEST(FirstWindowSettings, StayAsTheyAreWithoutAFile)
{
    Dots dots;
    ReadSettings(dots, L"/missing/dots.ini");
    EXPECT_EQ(dots.size, 12);
    EXPECT_EQ(dots.color, RGB(200, 30, 30));
}

} // namespace
