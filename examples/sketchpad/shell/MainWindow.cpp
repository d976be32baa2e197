// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "Canvas.h"
#include "CanvasArea.h"
#include "Menus.h"
#include "PdfPrinter.h"
#include "app/Commands.h"
#include "app/Settings.h"
#include "app/Texts.h"

#include <KtQtBase/WindowsFunctions.h>

#include <QtCore/QDir>
#include <QtCore/QLockFile>
#include <QtCore/QMimeData>
#include <QtCore/QStandardPaths>
#include <QtGui/QClipboard>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>

namespace {

constexpr int kVisiblePart = 60; // pixels of the window that must be on screen at a stored place

QString toQt(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

} // namespace

MainWindow::MainWindow(const CDefaults& defaults)
    : m_app(*this, defaults), m_area(new CanvasArea(this)),
      m_canvas(new Canvas(m_app.GetView(), m_area)), m_paperPrinter(m_app.GetView())
{
    m_area->setWidget(m_canvas);
    m_area->zoomTurned = [this](bool larger) {
        m_app.OnCommand(larger ? ID_VIEW_ZOOM_IN : ID_VIEW_ZOOM_OUT);
    };
    m_canvas->setAccessibleName(toQt(Text(IDS_CANVAS)));
    setCentralWidget(m_area);
    makeStatusLine();
    // NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer): behind the status line
    m_menus = new Menus(*this, m_app);
    placeWindow();
    m_canvas->setFocus();
    m_app.UpdateFrame();
    MainWindow::ShowLine(Text(IDS_READY));
    connect(&m_autosave, &QTimer::timeout, this, [this] { m_app.OnAutosave(); });
    m_autosave.start(defaults.autosave * 1000);
}

MainWindow::~MainWindow() = default;

HWND MainWindow::viewWindow() const
{
    return reinterpret_cast<HWND>(m_canvas->winId());
}

// What a menu tells about a command covers the line only for a while.
void MainWindow::makeStatusLine()
{
    m_line = new QLabel(this);
    m_line->setMinimumWidth(1);
    m_line->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_line, 1);
}

// So that the canvas needs no scroll bars. The toolbar shows as much as there is room for.
QSize MainWindow::sizeForAll() const
{
    const int bars = sizeHint().height() - m_area->sizeHint().height();
    return m_canvas->sizeHint() + QSize(0, bars);
}

// Without its frame, whose size is not known before the window is shown.
void MainWindow::placeWindow()
{
    const int screenWidth = GetSystemMetrics(SM_CXFULLSCREEN);
    const int screenHeight = GetSystemMetrics(SM_CYFULLSCREEN);
    const QSize size = sizeForAll().boundedTo(QSize(screenWidth, screenHeight));
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

void MainWindow::ShowLine(const std::wstring& line)
{
    m_line->setText(toQt(line));
    if (lineShown)
        lineShown(line);
}

void MainWindow::Refresh()
{
    if (m_menus)
        m_menus->refresh();
    m_canvas->adjustToZoom();
}

SIZE MainWindow::GetClientSize()
{
    const QSize size = m_area->maximumViewportSize();
    return {size.width(), size.height()};
}

Answer MainWindow::Ask(const CQuestion& question)
{
    QMessageBox box(QMessageBox::Question, toQt(Text(IDS_APPTITLE)), toQt(question.text),
                    QMessageBox::Yes | QMessageBox::Cancel, this);
    box.button(QMessageBox::Yes)->setText(toQt(Text(question.yes)));
    box.button(QMessageBox::Cancel)->setText(toQt(Text(question.cancel)));
    if (question.no)
        box.addButton(QMessageBox::No)->setText(toQt(Text(*question.no)));
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(QMessageBox::Cancel);
    box.setDefaultButton(question.safe == Answer::Yes ? QMessageBox::Yes : QMessageBox::Cancel);
    const int button = box.exec();
    if (button == QMessageBox::Yes)
        return Answer::Yes;
    return button == QMessageBox::No ? Answer::No : Answer::Cancel;
}

void MainWindow::Report(const std::wstring& text)
{
    QMessageBox box(QMessageBox::Warning, toQt(Text(IDS_APPTITLE)), toQt(text), QMessageBox::Ok,
                    this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

// The tabs of a list need rich text.
void MainWindow::ShowAbout(const std::wstring& title, const std::wstring& text)
{
    QString shown = toQt(text).toHtmlEscaped();
    if (shown.contains('\t'))
        shown = "<table cellspacing=6><tr><td><b>" +
                shown.replace('\t', "</b></td><td>").replace('\n', "</td></tr><tr><td><b>") +
                "</td></tr></table>";
    else
        shown.replace('\n', "<br>");
    QMessageBox box(QMessageBox::Information, toQt(title), shown, QMessageBox::Ok, this);
    box.setTextFormat(Qt::RichText);
    box.exec();
}

std::string MainWindow::MakePdf()
{
    return pdfOf(m_app.GetView());
}

void MainWindow::OnPrintCommand(UINT id)
{
    if (id == ID_FILE_PAGE_SETUP)
        m_paperPrinter.setUpPage(this);
    else if (id == ID_FILE_PRINT_PREVIEW)
        m_paperPrinter.preview(this);
    else
        print();
}

// A file is written as safely as every other one, whichever way it was asked for.
void MainWindow::print()
{
    QString file;
    if (!m_paperPrinter.print(this, file))
        Report(Text(IDS_NOTPRINTED));
    else if (!file.isEmpty())
        m_app.PrintFile(QDir::current().absoluteFilePath(file).toStdWString(), true);
}

void MainWindow::SetClipboard(const std::wstring& text)
{
    auto* what = new QMimeData;
    what->setText(toQt(text));
    what->setImageData(m_canvas->selectionPicture());
    QApplication::clipboard()->setMimeData(what);
}

std::wstring MainWindow::GetClipboardText()
{
    return QApplication::clipboard()->text().toStdWString();
}

std::wstring MainWindow::GetDataFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    return (folder + '/').toStdWString();
}

// A lock that a killed program has left behind is known by its process, which is gone.
bool MainWindow::HoldName(const std::wstring& path)
{
    if (path.empty()) {
        m_lock.reset();
        return true;
    }
    auto lock = std::make_unique<QLockFile>(toQt(path) + ".lock");
    lock->setStaleLockTime(0);
    const bool held = lock->tryLock(0);
    if (held)
        m_lock = std::move(lock);
    return held;
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && m_menus)
        m_menus->refreshIcons();
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!isEnabled() || !m_app.SaveModified()) {
        event->ignore();
        return;
    }
    m_autosave.stop();
    m_app.OnClose();
    const QRect rect = geometry();
    WriteWindowPlace(CRect(rect.x(), rect.y(), rect.x() + rect.width(), rect.y() + rect.height()));
    event->accept();
}
