// SPDX-License-Identifier: MIT
//
// Drawing through the device context beside the same QPainter calls. Both sides draw in a session
// that the library began with the same pen and brush; the reference takes the painter out of it.
#include "support/Fixture.h"
#include "support/Rows.h"

#include <KtQtBase/PainterWrapper.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

#include <cstddef>
#include <memory>
#include <vector>

namespace {

using bench::Row;

const std::size_t kTextLengths[] = {4, 20, 80};

constexpr int kCalls = 1000;
constexpr int kImages = 200;
constexpr unsigned int kBlue = 0x00C08040;

// An image with an open session.
class Canvas
{
public:
    Canvas() : image(800, 600, QImage::Format_ARGB32_Premultiplied), context(&image)
    {
        image.fill(Qt::white);
        context.beginDraw();
        context.setPen(PS_SOLID, 1, kBlue);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas()
    {
        context.endDraw();
        delete context.wrappedPainter();
    }

    QImage image;
    KtQtPainterWrapper context;
};

// A row of many calls on one canvas: of the context, and of its painter.
template<class Library, class Plain>
void addCalls(const char* work, const std::string& size, int calls, Library library, Plain plain)
{
    Row(work, size)
        .library([=] {
            return [=, canvas = std::make_shared<Canvas>()] {
                for (int i = 0; i < calls; ++i)
                    library(canvas->context, i);
            };
        })
        .reference("QPainter", [=] {
            return [=, canvas = std::make_shared<Canvas>()] {
                QPainter& painter = *canvas->context.wrappedPainter();
                for (int i = 0; i < calls; ++i)
                    plain(painter, i);
            };
        });
}

std::vector<POINT> zigzag(int count)
{
    std::vector<POINT> points;
    for (int i = 0; i < count; ++i)
        points.push_back(POINT{10 + i * 37 % 300, 10 + i * 53 % 200});
    return points;
}

const QPoint* qtPoints(const std::vector<POINT>& points)
{
    return reinterpret_cast<const QPoint*>(points.data());
}

void addFigures(int count)
{
    const std::vector<POINT> points = zigzag(count);
    addCalls(
        "1,000 polylines", std::to_string(count), kCalls,
        [=](auto& context, int) { context.drawPolyline(points.data(), count); },
        [=](QPainter& painter, int) { painter.drawPolyline(qtPoints(points), count); });
    addCalls(
        "1,000 polygons", std::to_string(count), kCalls,
        [=](auto& context, int) { context.drawPolygon(points.data(), count); },
        [=](QPainter& painter, int) {
            painter.drawPolygon(qtPoints(points), count, Qt::OddEvenFill);
        });
}

void addRectangles(int side)
{
    addCalls(
        "1,000 rectangles", std::to_string(side), kCalls,
        [=](auto& context, int i) {
            context.drawAlphaRect(CRect(i % 500, 10, i % 500 + side, 10 + side), kBlue, 128);
        },
        [=](QPainter& painter, int i) {
            painter.setBrush(QBrush(QColor(0x40, 0x80, 0xC0, 128), Qt::SolidPattern));
            const QRect rect(i % 500, 10, side + 1, side + 1);
            painter.drawRects(&rect, 1);
        });
}

void addTexts(std::size_t length)
{
    const std::wstring text(length, L'g');
    addCalls(
        "1,000 texts", std::to_string(length), kCalls,
        [=](auto& context, int i) { context.drawText(10, i % 500, text.c_str(), -1); },
        [=](QPainter& painter, int i) {
            const auto* const characters = reinterpret_cast<const char32_t*>(text.c_str());
            painter.drawText(QPointF(10, i % 500), QString::fromUcs4(characters, -1));
        });
}

// The context takes the position for the size too, which the reference does as well.
void addRawImages(int side)
{
    const auto bits = std::make_shared<std::vector<unsigned char>>(side * side * 4, 0x80);
    addCalls(
        "200 raw images", std::to_string(side), kImages,
        [=](auto& context, int) {
            context.drawImage(side, side, bits->data(), side, side,
                              QImage::Format_ARGB32_Premultiplied);
        },
        [=](QPainter& painter, int) {
            const QImage image(bits->data(), side, side, QImage::Format_ARGB32_Premultiplied);
            painter.drawImage(QPointF(side, side), image);
        });
}

void addScaledImages(int side)
{
    const auto image = std::make_shared<QImage>(side, side, QImage::Format_ARGB32_Premultiplied);
    image->fill(Qt::green);
    addCalls(
        "200 scaled images", std::to_string(side), kImages,
        [=](auto& context, int) {
            QRect target(5, 5, side * 2, side * 2);
            context.drawImage(target, *image);
        },
        [=](QPainter& painter, int) {
            const QRectF target(5, 5, side * 2, side * 2);
            painter.drawImage(target, *image, QRectF(image->rect()), Qt::AutoColor);
        });
}

void addPoint()
{
    addCalls(
        "Single point", "1", 1, [](auto& context, int) { context.drawPoint(20, 20); },
        [](QPainter& painter, int) {
            const QPoint point(20, 20);
            painter.drawPoints(&point, 1);
        });
}

void plainSession(QPainter& painter, QImage& image)
{
    painter.begin(&image);
    painter.save();
    painter.setPen(QPen(QBrush(QColor(0, 0, 0)), 0, Qt::SolidLine));
    painter.setBrush(QBrush(QColor(0, 0, 0), Qt::SolidPattern));
    painter.setClipRegion(QRegion(), Qt::NoClip);
    painter.restore();
    painter.end();
}

void addSession()
{
    const QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    Row("Session", "1")
        .library([=] {
            const auto copy = std::make_shared<QImage>(image.copy());
            const auto context = std::make_shared<KtQtPainterWrapper>(copy.get());
            return [copy, context] {
                context->beginDraw();
                context->endDraw();
            };
        })
        .reference("QPainter", [=] {
            return [copy = image.copy(), painter = std::make_shared<QPainter>()]() mutable {
                plainSession(*painter, copy);
            };
        });
}

std::shared_ptr<KtGrQtDoubleBufferImage> doubleBuffer(QWidget* widget, QSize size)
{
    auto buffer = std::make_shared<KtGrQtDoubleBufferImage>(widget);
    buffer->createImages(size.width(), size.height(), 4);
    buffer->memImage()->fill(QColor(10, 200, 30, 128));
    return buffer;
}

// The reference copies between the images of another such pair.
void addRepair(const char* name, QSize size)
{
    Row("repairFrontBuffer", name)
        .library([=] {
            const auto widget = std::make_shared<QWidget>();
            return [widget, buffer = doubleBuffer(widget.get(), size)] {
                buffer->repairFrontBuffer();
            };
        })
        .reference("QPainter", [=] {
            const auto widget = std::make_shared<QWidget>();
            return [widget, buffer = doubleBuffer(widget.get(), size)] {
                QPainter painter(buffer->frontImage());
                painter.drawImage(0, 0, *buffer->memImage());
            };
        });
}

} // namespace

void bench::addDrawingRows()
{
    for (const int count : {2, 16, 64})
        addFigures(count);
    for (const int side : {4, 32, 128})
        addRectangles(side);
    for (const std::size_t length : kTextLengths)
        addTexts(length);
    for (const int side : {16, 64, 256}) {
        addRawImages(side);
        addScaledImages(side);
    }
    addPoint();
    addSession();
    addRepair("1080p", QSize(1920, 1080));
    addRepair("4K", QSize(3840, 2160));
}
