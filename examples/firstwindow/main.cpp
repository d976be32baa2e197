// SPDX-License-Identifier: MIT
#include "Panel.h"

#include <QtWidgets/QApplication>

#include <clocale>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    // File names are UTF-8. That locale is called "UTF-8" on macOS and "C.UTF-8" on Linux.
    if (!std::setlocale(LC_CTYPE, "UTF-8"))
        std::setlocale(LC_CTYPE, "C.UTF-8");

    Dots dots;
    ReadSettings(dots, _T("dots.ini"));
    Panel panel(dots);
    panel.setWindowTitle(QStringLiteral("Dots"));
    panel.show();
    return QApplication::exec();
}
