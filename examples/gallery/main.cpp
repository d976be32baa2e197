// SPDX-License-Identifier: MIT
//
// Draws every primitive and every setting of the device context, into a file or a window.
#include "Files.h"
#include "GalleryWindow.h"

#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollArea>

namespace {

int showWindow()
{
    GalleryWindow gallery;
    QScrollArea area;
    area.setWidget(&gallery);
    area.resize(QSize(gallery.width() + 24, 700).boundedTo(area.screen()->availableSize()));
    area.setWindowTitle(QStringLiteral("Gallery"));
    area.show();
    const int status = QApplication::exec();
    area.takeWidget();
    return status;
}

int runFor(const Arguments& arguments)
{
    if (!arguments.toFiles())
        return showWindow();
    return arguments.compare.isEmpty() ? writeFiles(arguments) : compareFiles(arguments);
}

} // namespace

int main(int argc, char** argv)
{
    const Arguments arguments = readArguments(argc, argv);
    if (!arguments.error.isEmpty()) {
        complain(arguments.error + QStringLiteral("; see --help"));
        return kFailed;
    }
    if (arguments.help)
        return print(QString::fromLatin1(kUsage)) ? 0 : kFailed;
    // Files need fonts but no screen.
    if (arguments.toFiles() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return runFor(arguments);
}
