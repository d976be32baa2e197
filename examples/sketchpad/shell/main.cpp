// SPDX-License-Identifier: MIT
//
// A small drawing program, written like a Windows program.
#include "MainWindow.h"
#include "ScriptPlayer.h"
#include "app/FileNames.h"
#include "app/Narrow.h"
#include "app/Texts.h"

#include <KtQtBase/WindowsFunctions.h>

#include <QtWidgets/QApplication>

#include <cstdlib>
#include <iostream>

namespace {

constexpr int kBadInput = 2;
constexpr char kUsage[] = "Usage: sketchpad [--script FILE] [DRAWING]\n";

struct Arguments
{
    std::string script;
    std::string drawing;
    bool understood = true;
};

Arguments readArguments(int count, char** values)
{
    Arguments arguments;
    for (int i = 1; i < count; ++i) {
        const std::string value = values[i];
        if (value == "--script" && i + 1 < count)
            arguments.script = values[++i];
        else if (value.rfind("--", 0) == 0 || !arguments.drawing.empty())
            arguments.understood = false;
        else
            arguments.drawing = value;
    }
    return arguments;
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
    ScriptPlayer* player = nullptr;
    if (!arguments.script.empty()) {
        player = new ScriptPlayer(window);
        if (!player->load(arguments.script)) {
            std::cerr << "sketchpad: " << arguments.script << " cannot be read\n";
            return kBadInput;
        }
        player->start();
    }
    window.show();
    if (!arguments.drawing.empty())
        window.app().OpenFile(AbsoluteName(WidenForDisplay(arguments.drawing)));
    return application.exec();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const Arguments arguments = readArguments(argc, argv);
    if (!arguments.understood) {
        std::cerr << kUsage;
        return kBadInput;
    }
    const std::wstring textsMissing = LoadTexts();
    std::wstring defaultsMissing;
    const CDefaults defaults = ReadDefaults(defaultsMissing);
    std::srand(GetTickCount()); // the digits of unique names come from rand

    MainWindow window(defaults);
    tell(window, textsMissing);
    tell(window, defaultsMissing);
    return run(application, window, arguments);
}
