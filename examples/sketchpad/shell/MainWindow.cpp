// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "Canvas.h"
#include "PdfPrinter.h"
#include "app/Commands.h"
#include "app/FileNames.h"
#include "app/Settings.h"
#include "app/ShapePlugIn.h"

#include <KtQtBase/WindowsFunctions.h>

#include <QActionGroup>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>

namespace {

constexpr int kRecentWidth = 36;
constexpr int kVisiblePart = 60; // pixels of the window that must be on screen at a stored place

QString toQt(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

} // namespace

MainWindow::MainWindow(const CDefaults& defaults)
    : m_app(*this, defaults), m_canvas(new Canvas(m_app.GetView(), this))
{
    setCentralWidget(m_canvas);
    makeFileMenu();
    makeEditMenu();
    makeTools();
    makePenMenu();
    makeFillMenu();
    statusBar()->showMessage(QString());
    placeWindow();
    m_canvas->setFocus();
    m_app.UpdateFrame();
}

HWND MainWindow::viewWindow() const
{
    return reinterpret_cast<HWND>(m_canvas->winId());
}

QAction* MainWindow::addCommand(QWidget* place, const QString& text, UINT id,
                                const QKeySequence& keys)
{
    auto* action = new QAction(text, this);
    action->setData(id);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, [this, id] { m_app.OnCommand(id); });
    place->addAction(action);
    return action;
}

void MainWindow::makeFileMenu()
{
    QMenu* menu = menuBar()->addMenu("&File");
    addCommand(menu, "&New", ID_FILE_NEW, QKeySequence("Ctrl+N"));
    addCommand(menu, "&Open...", ID_FILE_OPEN, QKeySequence("Ctrl+O"));
    m_recentMenu = menu->addMenu("&Recent Files");
    menu->addSeparator();
    addCommand(menu, "&Save", ID_FILE_SAVE, QKeySequence("Ctrl+S"));
    addCommand(menu, "Save &As...", ID_FILE_SAVE_AS, QKeySequence("Ctrl+Shift+S"));
    addCommand(menu, "Save a &Copy", ID_FILE_SAVE_COPY_AS);
    menu->addSeparator();
    addCommand(menu, "&Print to PDF...", ID_FILE_PRINT, QKeySequence("Ctrl+P"));
    menu->addSeparator();
    addCommand(menu, "E&xit", ID_APP_EXIT, QKeySequence("Ctrl+Q"));
}

void MainWindow::makeEditMenu()
{
    QMenu* menu = menuBar()->addMenu("&Edit");
    addCommand(menu, "&Undo Last Shape", ID_EDIT_UNDO, QKeySequence("Ctrl+Z"));
    addCommand(menu, "&Delete Selection", ID_EDIT_CLEAR);
}

void MainWindow::makeTools()
{
    const QStringList names = {"&Select", "&Freehand", "&Line", "&Rectangle", "&Ellipse", "&Text"};
    QMenu* menu = menuBar()->addMenu("&Tools");
    QToolBar* bar = addToolBar("Tools");
    bar->setMovable(false);
    m_tools = new QActionGroup(this);
    addChoices(menu, names, ID_TOOL_FIRST);
    if (LoadShapePlugIn())
        addCommand(menu, "St&ar", CommandOf(TOOL_PLUGIN));
    int number = 0;
    for (QAction* action : menu->actions()) {
        action->setCheckable(true);
        action->setShortcut(QKeySequence(QString("Ctrl+%1").arg(++number)));
        m_tools->addAction(action);
        bar->addAction(action);
    }
}

void MainWindow::addChoices(QMenu* menu, const QStringList& texts, UINT firstId, int step)
{
    UINT id = firstId;
    for (const QString& text : texts) {
        addCommand(menu, text, id);
        id += static_cast<UINT>(step);
    }
}

void MainWindow::makePenMenu()
{
    QMenu* menu = menuBar()->addMenu("&Pen");
    addChoices(menu, {"Black", "Red", "Green", "Blue", "Yellow", "Light Blue"}, ID_PEN_COLOR_FIRST);
    menu->addSeparator();
    addChoices(menu, {"1 Pixel", "3 Pixels", "5 Pixels"}, ID_PEN_WIDTH_FIRST + 1, 2);
    menu->addSeparator();
    addChoices(menu, {"Solid", "Dashed", "Dotted"}, ID_PEN_STYLE_FIRST + PS_SOLID);
}

void MainWindow::makeFillMenu()
{
    QMenu* menu = menuBar()->addMenu("Fi&ll");
    addCommand(menu, "None", ID_FILL_NONE);
    addChoices(menu, {"Black", "Red", "Green", "Blue", "Yellow", "Light Blue"},
               ID_FILL_COLOR_FIRST);
}

// Without its frame, whose size is not known before the window is shown.
void MainWindow::placeWindow()
{
    const int screenWidth = GetSystemMetrics(SM_CXFULLSCREEN);
    const int screenHeight = GetSystemMetrics(SM_CYFULLSCREEN);
    const QSize size = sizeHint();
    QRect rect((screenWidth - size.width()) / 2, (screenHeight - size.height()) / 2, size.width(),
               size.height());
    const auto place = ReadWindowPlace();
    if (place && place->left >= 0 && place->top >= 0 && place->left < screenWidth - kVisiblePart &&
        place->top < screenHeight - kVisiblePart)
        rect.setCoords(place->left, place->top, place->right - 1, place->bottom - 1);
    setGeometry(rect);
}

bool MainWindow::saveScreenshot(const std::wstring& path)
{
    return grab().save(toQt(path), "PNG");
}

void MainWindow::EnableInput(bool enable)
{
    setEnabled(enable);
    if (enable)
        m_canvas->setFocus();
}

void MainWindow::SetWindowText(const std::wstring& title)
{
    setWindowTitle(toQt(title));
}

void MainWindow::SetRecentFiles(const std::vector<std::wstring>& names)
{
    m_recentMenu->clear();
    m_recentMenu->setDisabled(names.empty());
    UINT id = ID_FILE_MRU_FILE1;
    for (const std::wstring& name : names)
        addCommand(m_recentMenu, toQt(DisplayName(name, kRecentWidth)), id++);
}

void MainWindow::ShowLine(const std::wstring& line)
{
    statusBar()->showMessage(toQt(line));
    if (lineShown)
        lineShown(line);
}

void MainWindow::Refresh()
{
    for (QAction* action : m_tools->actions())
        action->setChecked(action->data().toUInt() == CommandOf(m_app.GetView().GetTool()));
    m_canvas->update();
}

bool MainWindow::PrintTo(const std::wstring& path)
{
    return printToPdf(m_app.GetView(), path);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!isEnabled() || !m_app.SaveModified()) {
        event->ignore();
        return;
    }
    const QRect rect = geometry();
    WriteWindowPlace(CRect(rect.x(), rect.y(), rect.x() + rect.width(), rect.y() + rect.height()));
    event->accept();
}
