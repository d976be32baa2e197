// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_MAINWINDOW_H
#define SKETCHPAD_MAINWINDOW_H

#include "app/Shell.h"
#include "app/SketchApp.h"

#include <QtWidgets/QMainWindow>

#include <functional>

class Canvas;
class QAction;
class QActionGroup;
class QMenu;

// The frame: menus, toolbar and status line around the view's window.
class MainWindow : public QMainWindow, public CShell
{
    Q_OBJECT

public:
    explicit MainWindow(const CDefaults& defaults);

    CSketchApp& app() { return m_app; }
    HWND viewWindow() const;
    bool saveScreenshot(const std::wstring& path);

    // Called with each line that the status line shows.
    std::function<void(const std::wstring& line)> lineShown;

    CWnd* GetMainWnd() override { return this; }
    void EnableInput(bool enable) override;
    void SetWindowText(const std::wstring& title) override;
    void SetRecentFiles(const std::vector<std::wstring>& names) override;
    void ShowLine(const std::wstring& line) override;
    void Refresh() override;
    bool PrintTo(const std::wstring& path) override;
    void Close() override { close(); }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QAction* addCommand(QWidget* place, const QString& text, UINT id,
                        const QKeySequence& keys = QKeySequence());
    void addChoices(QMenu* menu, const QStringList& texts, UINT firstId, int step = 1);
    void makeFileMenu();
    void makeEditMenu();
    void makeTools();
    void makePenMenu();
    void makeFillMenu();
    void placeWindow();

    CSketchApp m_app;
    Canvas* m_canvas;
    QMenu* m_recentMenu = nullptr;
    QActionGroup* m_tools = nullptr;
};

#endif
