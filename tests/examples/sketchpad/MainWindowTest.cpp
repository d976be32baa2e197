// SPDX-License-Identifier: MIT
//
// The window from inside: what it tells to assistive programs, its texts, its sizes, and that it
// does not grow.
#include "shell/MainWindow.h"
#include "app/Commands.h"
#include "app/Texts.h"

#include "support/TemporaryFolder.h"

#include <QAction>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtGui/QImage>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>

#include <gtest/gtest.h>

#include <KtQtBase/Messages.h>

#include <map>

namespace {

class SketchpadMainWindow : public testing::Test
{
protected:
    SketchpadMainWindow()
    {
        // The program may have been copied somewhere else.
        QFile::copy(TEXTS_MODULE,
                    QApplication::applicationDirPath() + '/' + QFileInfo(TEXTS_MODULE).fileName());
        LoadTexts();
        window = std::make_unique<MainWindow>(CDefaults());
        window->show();
        QApplication::processEvents();
    }

    ~SketchpadMainWindow() override { QApplication::processEvents(); }

    void drag(int fromX, int fromY, int toX, int toY) const
    {
        SendMessage(window->viewWindow(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(fromX, fromY));
        SendMessage(window->viewWindow(), WM_LBUTTONUP, 0, MAKELPARAM(toX, toY));
        settle();
    }

    void command(UINT id) const
    {
        EXPECT_TRUE(window->app().OnCommand(id));
        settle();
    }

    static void wait(int milliseconds)
    {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }

    void settle() const
    {
        if (!hasty)
            QApplication::processEvents();
    }

    QAction* action(UINT id) const
    {
        for (QAction* candidate : window->findChildren<QAction*>()) {
            if (candidate->data().toUInt() == id)
                return candidate;
        }
        ADD_FAILURE() << "no action " << id;
        return nullptr;
    }

    std::unique_ptr<MainWindow> window;
    bool hasty = false; // whether what was posted waits
};

// What a person can reach has a name.
void expectNames(QAccessibleInterface* interface)
{
    if (!interface || interface->state().invisible)
        return;
    const bool reachable = interface->state().focusable || interface->role() == QAccessible::Button;
    if (reachable && interface->role() != QAccessible::Client) {
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
            << "role " << interface->role() << ' '
            << interface->object()->metaObject()->className();
    }
    for (int i = 0; i < interface->childCount(); ++i)
        expectNames(interface->child(i));
}

bool isNamed(QAccessibleInterface* interface, const QString& name)
{
    if (!interface)
        return false;
    for (int i = 0; i < interface->childCount(); ++i) {
        if (isNamed(interface->child(i), name))
            return true;
    }
    return interface->text(QAccessible::Name) == name;
}

TEST_F(SketchpadMainWindow, NamesEverythingToAssistivePrograms)
{
    QAccessibleInterface* const root = QAccessible::queryAccessibleInterface(window.get());
    ASSERT_TRUE(root);
    expectNames(root);
    for (const char* name : {"Drawing", "Tools", "Select", "Freehand", "Text"})
        EXPECT_TRUE(isNamed(root, name)) << name;
}

// The module beside this test translates one text only.
TEST_F(SketchpadMainWindow, TakesTheTextsOfItsMenusFromTheStringModule)
{
    EXPECT_EQ(window->menuBar()->actions().at(0)->text(), "&Datei");
    EXPECT_EQ(window->menuBar()->actions().at(1)->text(), "&Edit");
    EXPECT_EQ(action(ID_FILE_SAVE)->text(), "&Sichern");
    EXPECT_EQ(action(ID_FILE_SAVE)->shortcut(), QKeySequence("Ctrl+S"));
    EXPECT_EQ(action(ID_FILE_SAVE)->toolTip(), "Sichert die Zeichnung (Ctrl+S)");
}

TEST_F(SketchpadMainWindow, HasATextATipAndAKeyOfItsOwnForEachCommand)
{
    QStringList keys;
    for (QAction* candidate : window->findChildren<QAction*>()) {
        const UINT id = candidate->data().toUInt();
        if (id == 0 || (id >= ID_FILE_MRU_FILE1 && id <= ID_FILE_MRU_LAST))
            continue;
        EXPECT_FALSE(candidate->text().isEmpty()) << id;
        EXPECT_FALSE(candidate->toolTip().isEmpty()) << id;
        EXPECT_FALSE(candidate->statusTip().isEmpty()) << id;
        if (!candidate->shortcut().isEmpty())
            keys.append(candidate->shortcut().toString());
    }
    EXPECT_GE(keys.size(), 20);
    EXPECT_EQ(keys.removeDuplicates(), 0);
}

TEST_F(SketchpadMainWindow, DrawsAnIconForEachToolAndColor)
{
    for (QToolButton* button : window->findChild<QToolBar*>("tools")->findChildren<QToolButton*>())
        EXPECT_TRUE(button->objectName() == "qt_toolbar_ext_button" || !button->icon().isNull());
    EXPECT_FALSE(action(ID_PEN_COLOR_FIRST)->icon().isNull());
    const QImage red = action(ID_PEN_COLOR_FIRST + 1)->icon().pixmap(20).toImage();
    EXPECT_EQ(red.pixelColor(red.width() / 2, red.height() / 2), QColor(200, 30, 30));
}

// Pictures of the icons of all commands that have one, each by its command.
std::map<UINT, QImage> icons(const MainWindow& window)
{
    std::map<UINT, QImage> pictures;
    for (const QAction* action : window.findChildren<QAction*>()) {
        if (const UINT id = action->data().toUInt(); id && !action->icon().isNull())
            pictures[id] = action->icon().pixmap(20).toImage();
    }
    return pictures;
}

TEST_F(SketchpadMainWindow, DrawsTheIconsThatNoThemeHas)
{
    const std::map<UINT, QImage> pictures = icons(*window);
    for (const UINT id : {ID_FILE_PRINT, ID_FILE_PRINT_PREVIEW, ID_APP_EXIT, ID_EDIT_CUT,
                          ID_EDIT_COPY, ID_EDIT_PASTE, ID_EDIT_SELECT_ALL, ID_VIEW_ZOOM_IN,
                          ID_VIEW_ZOOM_OUT, ID_VIEW_ZOOM_FULL, ID_VIEW_ZOOM_FIT}) {
        ASSERT_TRUE(pictures.count(id)) << id;
        for (const auto& [other, picture] : pictures)
            EXPECT_TRUE(other == id || picture != pictures.at(id)) << id << " looks like " << other;
    }
}

TEST_F(SketchpadMainWindow, ChecksThePresentToolPenAndFill)
{
    command(CommandOf(TOOL_ELLIPSE));
    command(ID_PEN_COLOR_FIRST + 2);
    command(ID_PEN_STYLE_FIRST + PS_DOT);
    command(ID_PEN_WIDTH_FIRST + 5);
    command(ID_FILL_COLOR_FIRST + 4);
    for (UINT id : {CommandOf(TOOL_ELLIPSE), ID_PEN_COLOR_FIRST + 2u, ID_PEN_STYLE_FIRST + 2u,
                    ID_PEN_WIDTH_FIRST + 5u, ID_FILL_COLOR_FIRST + 4u})
        EXPECT_TRUE(action(id)->isChecked()) << id;
    for (UINT id : {CommandOf(TOOL_LINE), UINT(ID_PEN_COLOR_FIRST), UINT(ID_PEN_STYLE_FIRST),
                    ID_PEN_WIDTH_FIRST + 3u, UINT(ID_FILL_NONE)})
        EXPECT_FALSE(action(id)->isChecked()) << id;
}

TEST_F(SketchpadMainWindow, NamesWhatItWouldUndoAndRedo)
{
    EXPECT_FALSE(action(ID_EDIT_UNDO)->isEnabled());
    command(CommandOf(TOOL_RECTANGLE));
    drag(50, 50, 90, 90);
    EXPECT_EQ(action(ID_EDIT_UNDO)->text(), "&Undo drawing");
    command(ID_EDIT_SELECT_ALL);
    command(ID_EDIT_CLEAR);
    EXPECT_EQ(action(ID_EDIT_UNDO)->text(), "&Undo delete");
    command(ID_EDIT_UNDO);
    EXPECT_EQ(action(ID_EDIT_REDO)->text(), "&Redo delete");
    EXPECT_TRUE(action(ID_EDIT_UNDO)->isEnabled());
}

TEST_F(SketchpadMainWindow, OffersWhatNeedsASelectionOnlyWithOne)
{
    for (UINT id : {ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_CLEAR})
        EXPECT_FALSE(action(id)->isEnabled()) << id;
    command(CommandOf(TOOL_LINE));
    drag(50, 50, 90, 90);
    command(ID_EDIT_SELECT_ALL);
    for (UINT id : {ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_CLEAR})
        EXPECT_TRUE(action(id)->isEnabled()) << id;
}

TEST_F(SketchpadMainWindow, ShowsNamesAsTheyAre)
{
    window->ShowLine(L"Opened q<i>x.sketch");
    EXPECT_EQ(window->findChild<QLabel*>()->textFormat(), Qt::PlainText);
    QTimer::singleShot(0, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        box->reject();
    });
    window->Report(L"<b>");
}

TEST_F(SketchpadMainWindow, StarsTheTitleWhileATextIsTyped)
{
    command(CommandOf(TOOL_TEXT));
    drag(50, 50, 50, 50);
    EXPECT_EQ(window->windowTitle(), "New drawing - Sketchpad");
    SendMessage(window->viewWindow(), WM_CHAR, 'a', 0);
    QApplication::processEvents();
    EXPECT_EQ(window->windowTitle(), "New drawing* - Sketchpad");
}

TEST_F(SketchpadMainWindow, ForgetsADragThatACommandInterrupts)
{
    command(CommandOf(TOOL_RECTANGLE));
    drag(50, 50, 90, 90);
    const QImage before = window->centralWidget()->grab().toImage();
    for (UINT tool : {CommandOf(TOOL_RECTANGLE), CommandOf(TOOL_SELECT)}) {
        command(tool);
        SendMessage(window->viewWindow(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(70, 70));
        SendMessage(window->viewWindow(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(170, 170));
        command(CommandOf(TOOL_RECTANGLE));
        SendMessage(window->viewWindow(), WM_LBUTTONUP, 0, MAKELPARAM(170, 170));
        window->app().GetView().ClearSelection();
        settle();
        EXPECT_EQ(window->centralWidget()->grab().toImage(), before) << tool;
    }
}

TEST_F(SketchpadMainWindow, GivesTheMenuItsOwnTextBack)
{
    const QString own = action(ID_EDIT_UNDO)->text();
    command(CommandOf(TOOL_LINE));
    drag(50, 50, 90, 90);
    EXPECT_NE(action(ID_EDIT_UNDO)->text(), own);
    command(ID_EDIT_UNDO);
    EXPECT_EQ(action(ID_EDIT_UNDO)->text(), own);
}

TEST_F(SketchpadMainWindow, CopiesADrawingAndAPicture)
{
    command(CommandOf(TOOL_RECTANGLE));
    command(ID_FILL_COLOR_FIRST + 1);
    drag(50, 50, 90, 80);
    command(ID_EDIT_SELECT_ALL);
    command(ID_EDIT_COPY);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "SKETCHPAD 1\npolygon 0 2 000000 1e1ec8 4 50,50 90,50 90,80 50,80\n");
    const QImage picture = QApplication::clipboard()->image();
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.pixelColor(picture.width() / 2, picture.height() / 2), QColor(200, 30, 30));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(SketchpadMainWindow, CopiesNoPictureBeyondThePaper)
{
    command(CommandOf(TOOL_LINE));
    drag(50, 50, 9000, 9000);
    command(ID_EDIT_SELECT_ALL);
    command(ID_EDIT_COPY);
    const QImage picture = QApplication::clipboard()->image();
    EXPECT_FALSE(picture.isNull());
    EXPECT_LE(picture.width(), 752);
    EXPECT_LE(picture.height(), 472);
}

TEST_F(SketchpadMainWindow, ShowsAnAmpersandOfARecentName)
{
    const ktqtbase::test::TemporaryFolder folder;
    ASSERT_TRUE(window->app().SaveFile((folder / "a&b.sketch").wstring(), true));
    settle();
    EXPECT_TRUE(action(ID_FILE_MRU_FILE1)->text().endsWith("a&&b.sketch"));
}

TEST_F(SketchpadMainWindow, ScrollsWhereThePaperIsLargerThanTheWindow)
{
    auto* area = window->findChild<QScrollArea*>();
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    window->resize(400, 300);
    QApplication::processEvents();
    EXPECT_GT(area->horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    command(ID_VIEW_ZOOM_FIT);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
}

// The place of the drawing that lies at a place of the window.
QPointF drawingAt(const QScrollArea& area, const QPointF& place)
{
    return (place - area.widget()->pos()) / area.widget()->width();
}

void turnWheelWithCtrl(QScrollArea& area, const QPointF& place, int eighths)
{
    QWheelEvent event(place, area.viewport()->mapToGlobal(place.toPoint()), QPoint(),
                      QPoint(0, eighths), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(area.viewport(), &event);
    QApplication::processEvents();
}

TEST_F(SketchpadMainWindow, ZoomsAroundTheMouse)
{
    auto* area = window->findChild<QScrollArea*>();
    window->resize(500, 400);
    settle();
    const QPointF place(120, 200);
    for (int turn = 0; turn < 4; ++turn) {
        const QPointF before = drawingAt(*area, place);
        turnWheelWithCtrl(*area, place, 120);
        const QPointF moved = (drawingAt(*area, place) - before) * area->widget()->width();
        EXPECT_LE(moved.manhattanLength(), 2) << turn;
    }
}

TEST_F(SketchpadMainWindow, TakesManySmallTurnsOfTheWheelForOne)
{
    auto* area = window->findChild<QScrollArea*>();
    for (int turn = 0; turn < 3; ++turn)
        turnWheelWithCtrl(*area, QPointF(50, 50), 30);
    EXPECT_EQ(window->app().GetView().GetZoom(), 100);
    for (int turn = 0; turn < 2; ++turn)
        turnWheelWithCtrl(*area, QPointF(50, 50), 30);
    EXPECT_EQ(window->app().GetView().GetZoom(), 125);
}

TEST_F(SketchpadMainWindow, StoresWhatIsNotSavedByItself)
{
    const QString file = QString::fromStdWString(window->GetDataFolder()) + "untitled.autosave";
    CDefaults defaults;
    defaults.autosave = 1;
    window = std::make_unique<MainWindow>(defaults);
    command(CommandOf(TOOL_RECTANGLE));
    drag(50, 50, 90, 90);
    for (int i = 0; i < 500 && !QFile::exists(file); ++i)
        wait(20);
    EXPECT_TRUE(QFile::exists(file));
    window->app().OnClose();
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(SketchpadMainWindow, FollowsTheColorsOfTheDesktop)
{
    const auto desk = [this] {
        const QImage picture = window->grab().toImage();
        const QPoint place = window->centralWidget()->geometry().topLeft() + QPoint(4, 4);
        return picture.pixelColor(place * picture.devicePixelRatio());
    };
    EXPECT_GT(desk().lightness(), 150);
    const QPalette former = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(53, 53, 53)));
    QApplication::processEvents();
    EXPECT_LT(desk().lightness(), 80);
    QApplication::setPalette(former);
}

// Each operation frees what it takes: the objects of the window stay as many.
TEST_F(SketchpadMainWindow, StaysAsLargeThroughThousandsOfOperations)
{
    const ktqtbase::test::TemporaryFolder folder;
    const std::wstring file = (folder / "a.sketch").wstring();
    command(CommandOf(TOOL_RECTANGLE));
    drag(50, 50, 90, 90);
    ASSERT_TRUE(window->app().SaveFile(file, true));
    const auto objects = window->findChildren<QObject*>().size();
    for (int i = 0; i < 2000; ++i) {
        hasty = i % 100 != 0;
        drag(50, 50, 90, 90);
        command(ID_EDIT_SELECT_ALL);
        command(ID_EDIT_CUT);
        command(ID_EDIT_PASTE);
        command(ID_EDIT_CLEAR);
    }
    ASSERT_TRUE(window->app().SaveFile(file, true));
    EXPECT_LE(window->findChildren<QObject*>().size(), objects);
}

} // namespace
