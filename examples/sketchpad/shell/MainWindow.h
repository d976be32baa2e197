// SPDX-License-Identifier: MIT
#ifndef SKETCHPAD_MAINWINDOW_H
#define SKETCHPAD_MAINWINDOW_H

#include "PaperPrinter.h"
#include "app/Shell.h"
#include "app/SketchApp.h"

#include <QtCore/QTimer>
#include <QtWidgets/QMainWindow>

#include <functional>
#include <memory>

class Canvas;
class CanvasArea;
class Menus;
class QLabel;
class QLockFile;

// The frame: menus, toolbar and status line around the view's window.
class MainWindow : public QMainWindow, public CShell
{
    Q_OBJECT

public:
    explicit MainWindow(const CDefaults& defaults);
    ~MainWindow() override;

    CSketchApp& app() { return m_app; }
    HWND viewWindow() const;
    bool saveScreenshot(const std::wstring& path);
    PaperPrinter& paperPrinter() { return m_paperPrinter; }

    // Called with each line that the status line shows.
    std::function<void(const std::wstring& line)> lineShown;

    CWnd* GetMainWnd() override { return this; }
    void EnableInput(bool enable) override;
    void SetWindowText(const std::wstring& title) override;
    void ShowLine(const std::wstring& line) override;
    void Refresh() override;
    SIZE GetClientSize() override;
    void Close() override { close(); }
    Answer Ask(const CQuestion& question) override;
    void Report(const std::wstring& text) override;
    void ShowAbout(const std::wstring& title, const std::wstring& text) override;
    std::string MakePdf() override;
    void OnPrintCommand(UINT id) override;
    bool CanPrint() const override { return PaperPrinter::isThere(); }
    void SetClipboard(const std::wstring& text) override;
    std::wstring GetClipboardText() override;
    std::wstring GetDataFolder() override;
    bool HoldName(const std::wstring& path) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeStatusLine();
    void print();
    void placeWindow();
    QSize sizeForAll() const;

    CSketchApp m_app;
    CanvasArea* m_area;
    Canvas* m_canvas;
    Menus* m_menus = nullptr;
    QLabel* m_line = nullptr;
    PaperPrinter m_paperPrinter;
    QTimer m_autosave;
    std::unique_ptr<QLockFile> m_lock;
};

#endif
