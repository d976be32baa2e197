// SPDX-License-Identifier: MIT
//
// What tools/pictures.sh needs beside the programs that it shows.
//
//     picture-tool grab FILE           the windows on the X display, once they have come to rest
//     picture-tool dialog FOLDER       the file dialog, which stays until it is closed
//     picture-tool stain FILE OTHER    the picture with a small red square, for a test
//     picture-tool compare ONE OTHER N exit status 1 if more than N pixels differ
#include <KtQtBase/FileDialog.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QThread>
#include <QtGui/QImage>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kPatience = 20000;
constexpr int kRest = 500;
// Another processor may round a part of a colour otherwise.
constexpr int kPart = 32;

QImage screen()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(
        QImage::Format_RGB32);
}

// What has another colour than the lower right corner, where no window is.
QRect windows(const QImage& image)
{
    const QRgb empty = image.pixel(image.width() - 1, image.height() - 1);
    QRect part;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != empty)
                part |= QRect(x, y, 1, 1);
    return part;
}

// Null if the screen stays empty or never comes to rest.
QImage screenAtRest()
{
    QElapsedTimer timer;
    timer.start();
    QImage last = screen();
    while (timer.elapsed() < kPatience) {
        QThread::msleep(kRest);
        QImage now = screen();
        if (now == last && !windows(now).isEmpty())
            return now;
        last = now;
    }
    return QImage();
}

int grab(const QString& file)
{
    const QImage image = screenAtRest();
    return image.copy(windows(image)).save(file) ? 0 : 1;
}

int showDialog(const QString& folder)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const std::wstring wide = folder.toStdWString();
    KtQtFileDialog dialog(true);
    OPENFILENAMEW& block = dialog.GetOFN();
    block.lpstrTitle = L"Read a licence";
    block.lpstrFilter = L"Text (*.txt);;All files (*)";
    block.nFilterIndex = 2;
    block.lpstrInitialDir = wide.c_str();
    dialog.DoModal();
    return 0;
}

int stain(QImage image, const QString& file)
{
    for (int y = 100; y < 105; ++y)
        for (int x = 100; x < 105; ++x)
            image.setPixel(x, y, 0xFFFF0000);
    return image.save(file) ? 0 : 1;
}

bool differs(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) > kPart || std::abs(qGreen(a) - qGreen(b)) > kPart ||
           std::abs(qBlue(a) - qBlue(b)) > kPart;
}

int countDifferences(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            count += differs(one.pixel(x, y), other.pixel(x, y)) ? 1 : 0;
    return count;
}

int compare(const QImage& one, const QImage& other, int allowed)
{
    if (one.isNull() || one.size() != other.size()) {
        std::printf("%d by %d pixels and %d by %d\n", one.width(), one.height(), other.width(),
                    other.height());
        return 1;
    }
    const int count = countDifferences(one, other);
    std::printf("%d pixels differ, and %d may\n", count, allowed);
    return count > allowed ? 1 : 0;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString command = arguments.value(1);
    if (command == QLatin1String("grab"))
        return grab(arguments.value(2));
    if (command == QLatin1String("dialog"))
        return showDialog(arguments.value(2));
    if (command == QLatin1String("stain"))
        return stain(QImage(arguments.value(2)), arguments.value(3));
    if (command == QLatin1String("compare"))
        return compare(QImage(arguments.value(2)), QImage(arguments.value(3)),
                       arguments.value(4).toInt());
    return 2;
}
