// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_MENUS_H
#define SKETCHPAD_MENUS_H

#include <QtCore/QObject>

#include <vector>

class CSketchApp;
class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

// The menus and the toolbar: an action for each command, with the texts of the program's string
// module, that shows how the command stands.
class Menus : public QObject
{
    Q_OBJECT

public:
    Menus(QMainWindow& window, CSketchApp& app);

    // Shows each command as the program has it.
    void refresh();

    // Draws the icons in the colours of the window.
    void refreshIcons();

private:
    using Commands = std::vector<unsigned int>;

    QMenu* addMenu(QMenu* parent, unsigned int id);
    void addCommands(QMenu* menu, const Commands& ids);
    QAction* addCommand(unsigned int id);
    void makeFileMenu();
    void makeToolBar(const Commands& commands);

    QMainWindow& m_window;
    CSketchApp& m_app;
    QMenu* m_recent = nullptr;
    std::vector<QAction*> m_actions; // owned by the window
};

#endif
