// SPDX-License-Identifier: MIT
//
// Draws every primitive and every setting of the device context, into a file or a window.
#include "Gallery.h"
#include "GalleryWindow.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QMarginsF>
#include <QtGui/QImage>
#include <QtGui/QPageSize>
#include <QtGui/QPdfWriter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollArea>

#include <cstdio>
#include <cstring>

namespace {

const char* const kUsage = "Usage: gallery [--png FILE] [--pdf FILE]    a window without either\n";

constexpr int kFailed = 2;
constexpr int kPixelsPerInch = 96;

struct Arguments
{
    QString png;
    QString pdf;
    bool understood = true;
};

Arguments readArguments(int count, char** values)
{
    Arguments arguments;
    for (int i = 1; i < count; i += 2) {
        QString* const file = !std::strcmp(values[i], "--png")   ? &arguments.png
                              : !std::strcmp(values[i], "--pdf") ? &arguments.pdf
                                                                 : nullptr;
        if (!file || i + 1 == count || !*values[i + 1])
            arguments.understood = false;
        else
            *file = QFile::decodeName(values[i + 1]);
    }
    return arguments;
}

QByteArray png()
{
    QImage image(gallerySize(), QImage::Format_RGB32);
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    drawGallery(painter);
    painter.endDraw();
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

void print(QPdfWriter& writer)
{
    const QSizeF inches = QSizeF(gallerySize()) / kPixelsPerInch;
    writer.setPageSize(QPageSize(inches, QPageSize::Inch));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(kPixelsPerInch);
    KtQtPrinterPainter painter(&writer);
    painter.beginDraw();
    drawGallery(painter);
    painter.endDraw();
}

QByteArray pdf()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    print(writer);
    return buffer.data();
}

bool complain(const QFile& file)
{
    std::fprintf(stderr, "gallery: cannot write %s: %s\n", qPrintable(file.fileName()),
                 qPrintable(file.errorString()));
    return false;
}

// Without a name there is nothing to write. The file is not cut yet, since the other one may fail.
bool openFile(QFile& file)
{
    return file.fileName().isEmpty() || file.open(QIODevice::ReadWrite) || complain(file);
}

bool writeFile(QFile& file, QByteArray (*make)())
{
    if (!file.isOpen())
        return true;
    const QByteArray bytes = make();
    file.resize(0);
    return (file.write(bytes) == bytes.size() && file.flush()) || complain(file);
}

int showWindow()
{
    GalleryWindow gallery;
    QScrollArea area;
    area.setWidget(&gallery);
    area.resize(gallery.width() + 24, 700);
    area.setWindowTitle(QStringLiteral("Gallery"));
    area.show();
    const int status = QApplication::exec();
    area.takeWidget();
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    const Arguments arguments = readArguments(argc, argv);
    if (!arguments.understood) {
        std::fputs(kUsage, stderr);
        return kFailed;
    }
    QFile pngFile(arguments.png);
    QFile pdfFile(arguments.pdf);
    if (!openFile(pngFile) || !openFile(pdfFile))
        return kFailed;
    const bool toFiles = pngFile.isOpen() || pdfFile.isOpen();
    // Files need fonts but no screen.
    if (toFiles && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (!toFiles)
        return showWindow();
    return writeFile(pngFile, png) && writeFile(pdfFile, pdf) ? 0 : kFailed;
}
