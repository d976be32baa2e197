// SPDX-License-Identifier: MIT
//
// A small drawing program, written like a Windows program.
#include "MainWindow.h"
#include "ScriptPlayer.h"
#include "app/FileNames.h"
#include "app/Narrow.h"
#include "app/ShapePlugIn.h"
#include "app/Texts.h"

#include <KtQtBase/WindowsFunctions.h>

#include <QtCore/QTimer>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

#include <cstdlib>
#include <iostream>

namespace {

constexpr int kBadInput = 2;
constexpr char kUsage[] = "Usage: sketchpad [--dark] [--script FILE] [DRAWING]\n"
                          "\n"
                          "  --dark           in dark colours, whatever the desktop's are\n"
                          "  --script FILE    plays a session, with your settings, and ends; "
                          "docs/sketchpad.md lists the\n"
                          "                   commands\n";

struct Arguments
{
    std::string script;
    std::string drawing;
    bool dark = false;
    bool help = false;
    bool understood = true;
};

Arguments readArguments(int count, char** values)
{
    Arguments arguments;
    for (int i = 1; i < count; ++i) {
        const std::string value = values[i];
        if (value == "--script" && i + 1 < count)
            arguments.script = values[++i];
        else if (value == "--dark")
            arguments.dark = true;
        else if (value == "--help" || value == "-h")
            arguments.help = true;
        else if (value.rfind("--", 0) == 0 || !arguments.drawing.empty())
            arguments.understood = false;
        else
            arguments.drawing = value;
    }
    return arguments;
}

void useDarkColors()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    QApplication::setStyle("Fusion");
    QApplication::setPalette(palette);
}

void tell(MainWindow& window, const std::wstring& line)
{
    if (line.empty())
        return;
    window.ShowLine(line);
    std::cerr << "sketchpad: " << NarrowForDisplay(line) << std::endl;
}

int run(QApplication& application, MainWindow& window, const Arguments& arguments)
{
    const bool named = !arguments.drawing.empty();
    ScriptPlayer* player = nullptr;
    if (!arguments.script.empty()) {
        player = new ScriptPlayer(window);
        if (!player->load(arguments.script)) {
            std::cerr << "sketchpad: " << arguments.script << " cannot be read\n";
            return kBadInput;
        }
    }
    window.show();
    if (named)
        window.app().OpenFile(AbsoluteName(WidenForDisplay(arguments.drawing)));
    if (player)
        player->start();
    else if (!named)
        QTimer::singleShot(0, &window, [&window] { window.app().OfferAutosaves(); });
    return application.exec();
}

} // namespace

int main(int argc, char** argv)
{
    const Arguments arguments = readArguments(argc, argv);
    if (!arguments.understood || arguments.help) {
        (arguments.help ? std::cout : std::cerr) << kUsage << std::flush;
        return arguments.help && std::cout ? 0 : kBadInput;
    }
    // A screen of one and a half times the usual density gets just that.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // Qt 6 always does
#endif
    QApplication application(argc, argv);
    if (arguments.dark)
        useDarkColors();
    const std::wstring textsMissing = LoadTexts();
    const std::wstring plugInMissing = LoadShapePlugIn();
    std::wstring defaultsMissing;
    const CDefaults defaults = ReadDefaults(defaultsMissing);
    std::srand(GetTickCount()); // the digits of unique names come from rand

    MainWindow window(defaults);
    tell(window, textsMissing);
    tell(window, plugInMissing);
    tell(window, defaultsMissing);
    return run(application, window, arguments);
}
