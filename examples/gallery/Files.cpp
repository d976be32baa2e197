// SPDX-License-Identifier: MIT
#include "Files.h"

#include "Comparison.h"
#include "Gallery.h"
#include "Sheet.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QMarginsF>
#include <QtGui/QImageReader>
#include <QtGui/QPageSize>
#include <QtGui/QPdfWriter>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kPixelsPerInch = 96;

QByteArray pngOf(const QImage& image)
{
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

void printPage(QPdfWriter& writer)
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
    printPage(writer);
    return buffer.data();
}

bool cannotWrite(const QFile& file)
{
    complain(QStringLiteral("cannot write %1: %2").arg(file.fileName(), file.errorString()));
    return false;
}

// Without a name there is nothing to write. The file is not cut yet, since the other one may fail.
bool openFile(QFile& file)
{
    return file.fileName().isEmpty() || file.open(QIODevice::ReadWrite) || cannotWrite(file);
}

// A full disk takes a part, and tells only to the next write why it takes no more.
bool writeAll(QFile& file, const QByteArray& bytes)
{
    qint64 done = 0;
    for (qint64 part = 1; part > 0 && done < bytes.size(); done += part)
        part = std::max(file.write(bytes.mid(static_cast<int>(done))), qint64{0});
    return done == bytes.size() && file.flush();
}

template<class Make>
bool writeFile(QFile& file, Make make)
{
    if (!file.isOpen())
        return true;
    const QByteArray bytes = make();
    file.resize(0);
    return writeAll(file, bytes) || cannotWrite(file);
}

double ratioOf(const QImage& image)
{
    for (const double ratio : kRatios)
        if (image.size() == sheetSize(ratio))
            return ratio;
    return 0;
}

QString sizeText(const QSize& size)
{
    return QStringLiteral("%1 by %2 pixels").arg(size.width()).arg(size.height());
}

// Null if the file holds no sheet.
QImage readSheet(const QString& name)
{
    QImageReader reader(name);
    QImage image = reader.read();
    if (image.isNull())
        complain(QStringLiteral("cannot read %1: %2").arg(name, reader.errorString()));
    else if (ratioOf(image) == 0) {
        complain(QStringLiteral("%1 is %2 large, and a sheet is %3 at ratio 1")
                     .arg(name, sizeText(image.size()), sizeText(gallerySize())));
        return QImage();
    }
    return image;
}

bool sameSize(const Arguments& arguments, const QImage& one, const QImage& other)
{
    if (one.size() == other.size())
        return true;
    complain(
        QStringLiteral("%1 is %2 large and %3 %4")
            .arg(arguments.with, sizeText(one.size()), arguments.compare, sizeText(other.size())));
    return false;
}

QString report(const Comparison& comparison)
{
    const QSize size = comparison.picture.size();
    QStringList lines{QStringLiteral("%1 of %2 pixels differ")
                          .arg(comparison.pixels)
                          .arg(size.width() * size.height())};
    lines += comparison.parts;
    return lines.join(u'\n') + u'\n';
}

bool isWritten(const Comparison& comparison, const QString& name)
{
    QFile file(name);
    return openFile(file) && writeFile(file, [&] { return pngOf(comparison.picture); });
}

} // namespace

int writeFiles(const Arguments& arguments)
{
    QFile pngFile(arguments.png);
    QFile pdfFile(arguments.pdf);
    if (!openFile(pngFile) || !openFile(pdfFile))
        return kFailed;
    const double ratio = arguments.ratio > 0 ? arguments.ratio : 1;
    const bool written =
        writeFile(pngFile, [ratio] { return pngOf(drawSheet(ratio)); }) && writeFile(pdfFile, pdf);
    return written ? 0 : kFailed;
}

int compareFiles(const Arguments& arguments)
{
    const QImage other = readSheet(arguments.compare);
    if (other.isNull())
        return kFailed;
    const double ratio = ratioOf(other);
    const QImage one = arguments.with.isEmpty() ? drawSheet(ratio) : readSheet(arguments.with);
    if (one.isNull() || !sameSize(arguments, one, other))
        return kFailed;
    const Comparison comparison = compareSheets(one, other, ratio);
    if (!print(report(comparison)) || !isWritten(comparison, arguments.difference))
        return kFailed;
    return comparison.pixels > 0 ? kDifferent : 0;
}

bool print(const QString& text)
{
    const bool printed = std::fputs(qPrintable(text), stdout) >= 0 && std::fflush(stdout) == 0;
    if (!printed)
        complain(QStringLiteral("cannot write to standard output"));
    return printed;
}

void complain(const QString& text)
{
    std::fprintf(stderr, "gallery: %s\n", qPrintable(text));
}
