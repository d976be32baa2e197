// SPDX-License-Identifier: MIT
#include "Menus.h"

#include "Icons.h"
#include "app/ShapePlugIn.h"
#include "app/SketchApp.h"
#include "app/Texts.h"

#include <QAction>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>

#include <algorithm>

namespace {

constexpr unsigned int kSeparator = 0;
constexpr char kOwnText[] = "ownText";

QString textOf(unsigned int id)
{
    return QString::fromStdWString(Text(id));
}

std::vector<unsigned int> tools()
{
    std::vector<unsigned int> ids;
    for (unsigned int tool = TOOL_SELECT; tool < TOOL_PLUGIN; ++tool)
        ids.push_back(ID_TOOL_FIRST + tool);
    if (HasShapePlugIn())
        ids.push_back(CommandOf(TOOL_PLUGIN));
    return ids;
}

std::vector<unsigned int> upTo(unsigned int first, unsigned int last)
{
    std::vector<unsigned int> ids;
    for (unsigned int id = first; id <= last; ++id)
        ids.push_back(id);
    return ids;
}

bool isChoice(unsigned int id)
{
    return id >= ID_TOOL_FIRST && id <= ID_FILL_COLOR_LAST;
}

} // namespace

Menus::Menus(QMainWindow& window, CSketchApp& app) : QObject(&window), m_window(window), m_app(app)
{
    makeFileMenu();
    addCommands(addMenu(nullptr, ID_MENU_EDIT),
                {ID_EDIT_UNDO, ID_EDIT_REDO, kSeparator, ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_PASTE,
                 ID_EDIT_CLEAR, kSeparator, ID_EDIT_SELECT_ALL, ID_EDIT_SELECT_NEXT,
                 ID_EDIT_INSERT});
    addCommands(addMenu(nullptr, ID_MENU_VIEW),
                {ID_VIEW_ZOOM_IN, ID_VIEW_ZOOM_OUT, ID_VIEW_ZOOM_FULL, ID_VIEW_ZOOM_FIT});
    addCommands(addMenu(nullptr, ID_MENU_TOOLS), tools());
    QMenu* pen = addMenu(nullptr, ID_MENU_PEN);
    addCommands(pen, upTo(ID_PEN_COLOR_FIRST, ID_PEN_COLOR_LAST));
    addCommands(pen, {kSeparator, ID_PEN_WIDTH_FIRST + 1, ID_PEN_WIDTH_FIRST + 3,
                      ID_PEN_WIDTH_FIRST + 5, kSeparator});
    addCommands(pen, upTo(ID_PEN_STYLE_FIRST, ID_PEN_STYLE_LAST));
    addCommands(addMenu(nullptr, ID_MENU_FILL), upTo(ID_FILL_NONE, ID_FILL_COLOR_LAST));
    addCommands(addMenu(nullptr, ID_MENU_HELP), {ID_HELP_KEYS, ID_APP_ABOUT});
    makeToolBar(tools());
    refreshIcons();
}

void Menus::makeFileMenu()
{
    QMenu* menu = addMenu(nullptr, ID_MENU_FILE);
    addCommands(menu, {ID_FILE_NEW, ID_FILE_OPEN});
    m_recent = addMenu(menu, ID_MENU_RECENT);
    addCommands(m_recent, upTo(ID_FILE_MRU_FILE1, ID_FILE_MRU_LAST));
    addCommands(menu, {kSeparator, ID_FILE_SAVE, ID_FILE_SAVE_AS, ID_FILE_SAVE_COPY_AS, kSeparator,
                       ID_FILE_PAGE_SETUP, ID_FILE_PRINT_PREVIEW, ID_FILE_PRINT, ID_FILE_PRINT_PDF,
                       kSeparator, ID_APP_EXIT});
}

QMenu* Menus::addMenu(QMenu* parent, unsigned int id)
{
    return parent ? parent->addMenu(textOf(id)) : m_window.menuBar()->addMenu(textOf(id));
}

void Menus::addCommands(QMenu* menu, const Commands& ids)
{
    for (unsigned int id : ids) {
        if (id == kSeparator)
            menu->addSeparator();
        else
            menu->addAction(addCommand(id));
    }
}

// The text is that of the menu, then a tab and the key, then a line that says more.
QAction* Menus::addCommand(unsigned int id)
{
    const QString text = textOf(id).section('\n', 0, 0);
    const QString tip = textOf(id).section('\n', 1);
    const QString key = text.section('\t', 1);
    auto* action = new QAction(text.section('\t', 0, 0), &m_window);
    action->setData(id);
    action->setProperty(kOwnText, action->text());
    action->setShortcut(QKeySequence(key));
    action->setToolTip(key.isEmpty() ? tip : tip + " (" + key + ')');
    action->setStatusTip(tip);
    action->setCheckable(isChoice(id));
    connect(action, &QAction::triggered, this, [this, id] { m_app.OnCommand(id); });
    m_actions.push_back(action);
    return action;
}

void Menus::makeToolBar(const Commands& commands)
{
    QToolBar* bar = m_window.addToolBar(textOf(IDS_TOOLBAR));
    bar->setAccessibleName(textOf(IDS_TOOLBAR));
    bar->setObjectName("tools");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (QAction* action : m_actions) {
        const unsigned int id = action->data().toUInt();
        if (std::find(commands.begin(), commands.end(), id) != commands.end())
            bar->addAction(action);
    }
}

void Menus::refresh()
{
    for (QAction* action : m_actions) {
        const unsigned int id = action->data().toUInt();
        const CCommandState state = m_app.OnUpdateCommand(id);
        action->setEnabled(state.enabled);
        action->setChecked(state.checked);
        const QString text = QString::fromStdWString(state.text);
        action->setText(text.isEmpty() ? action->property(kOwnText).toString() : text);
        if (id >= ID_FILE_MRU_FILE1 && id <= ID_FILE_MRU_LAST)
            action->setVisible(state.enabled);
    }
    m_recent->setEnabled(m_app.OnUpdateCommand(ID_FILE_MRU_FILE1).enabled);
}

void Menus::refreshIcons()
{
    const QColor ink = m_window.palette().color(QPalette::ButtonText);
    for (QAction* action : m_actions)
        action->setIcon(iconOf(action->data().toUInt(), ink));
}
