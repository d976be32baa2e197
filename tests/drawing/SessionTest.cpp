// SPDX-License-Identifier: MIT
#include "drawing/Twin.h"
#include "drawing/Warnings.h"

#include <initializer_list>
#include <memory>
#include <type_traits>

namespace {

TEST(Wrapper, StartsIdleWithoutDevicePathOrClip)
{
    KtQtPainterWrapper painter;
    EXPECT_EQ(painter.wrappedDevice(), nullptr);
    ASSERT_NE(painter.wrappedPainter(), nullptr);
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
    EXPECT_EQ(painter.getPainterPath(), nullptr);
    EXPECT_TRUE(painter.m_rClipRegion.isEmpty());
}

TEST(Wrapper, StartsIdleOnADevice)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    EXPECT_EQ(painter.wrappedDevice(), &image);
    EXPECT_EQ(painter.m_pPainter, painter.wrappedPainter());
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
}

TEST(Wrapper, TakesAnotherDeviceWithoutOtherEffect)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter;
    QPainter* const before = painter.wrappedPainter();
    painter.setWrappedDevice(&image);
    EXPECT_EQ(painter.wrappedDevice(), &image);
    EXPECT_EQ(painter.wrappedPainter(), before);
    EXPECT_FALSE(before->isActive());
}

TEST(Wrapper, InASessionTakesAnotherDeviceAndKeepsAllElse)
{
    QImage image = drawing::ground();
    QImage other = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.setClipRegion(drawing::kSquare, &drawing::kFour, 1);
    painter.beginPath();
    painter.beginDraw();
    painter.setPen(PS_DOT, 5, 0x000000FF);
    QPainterPath* const path = painter.getPainterPath();
    const QPen pen = painter.getPen();
    const QRegion clip = painter.m_rClipRegion;
    for (QPaintDevice* const device :
         std::initializer_list<QPaintDevice*>{&other, nullptr, &image}) {
        painter.setWrappedDevice(device);
        EXPECT_EQ(painter.wrappedDevice(), device);
        EXPECT_EQ(painter.wrappedPainter()->device(), &image);
        EXPECT_EQ(painter.getPen(), pen);
        EXPECT_EQ(painter.getPainterPath(), path);
        EXPECT_EQ(painter.m_rClipRegion, clip);
        EXPECT_EQ(painter.wrappedPainter()->clipRegion(), clip);
    }
    painter.endDraw();
    painter.endPath();
}

// Hosts are compiled against these places.
TEST(Wrapper, HasItsFieldsAtTheirPlacesAndNoVirtualTable)
{
    KtQtPainterWrapper painter;
    const auto place = [&painter](const void* field) {
        return reinterpret_cast<const char*>(field) - reinterpret_cast<const char*>(&painter);
    };
    EXPECT_EQ(place(&painter.m_pWrappedDevice), 0);
    EXPECT_EQ(place(&painter.m_pPainter), 8);
    EXPECT_EQ(place(&painter.m_pPath), 16);
    EXPECT_EQ(place(&painter.m_rClipRegion), 24);
    EXPECT_EQ(sizeof(KtQtPainterWrapper), 32u);
    EXPECT_FALSE(std::is_polymorphic<KtQtPainterWrapper>::value);
}

TEST(Wrapper, HasFieldsOfTheirTypes)
{
    using Wrapper = KtQtPainterWrapper;
    EXPECT_TRUE((std::is_same_v<decltype(Wrapper::m_pWrappedDevice), QPaintDevice*>));
    EXPECT_TRUE((std::is_same_v<decltype(Wrapper::m_pPainter), QPainter*>));
    EXPECT_TRUE((std::is_same_v<decltype(Wrapper::m_pPath), QPainterPath*>));
    EXPECT_TRUE((std::is_same_v<decltype(Wrapper::m_rClipRegion), QRegion>));
}

// Pointers to the painter and to the path stay valid after the wrapper. A smart pointer inside the
// wrapper would break both tests.
TEST(WrapperDestructor, LeavesThePainterUsable)
{
    QImage image = drawing::ground();
    std::unique_ptr<QPainter> painter;
    {
        KtQtPainterWrapper wrapper(&image);
        wrapper.beginDraw();
        painter.reset(wrapper.wrappedPainter());
    }
    EXPECT_TRUE(painter->isActive());
    painter->fillRect(0, 0, 4, 4, Qt::green);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::green));
    painter->restore();
}

TEST(WrapperDestructor, LeavesAnOpenPathUsable)
{
    QImage image = drawing::ground();
    std::unique_ptr<QPainterPath> path;
    {
        KtQtPainterWrapper wrapper(&image);
        wrapper.beginPath();
        path.reset(wrapper.getPainterPath());
    }
    path->addRect(1, 2, 3, 4);
    EXPECT_EQ(path->boundingRect(), QRectF(1, 2, 3, 4));
}

// Nobody deletes the two here, so a leak checker without the suppressions reports them.
TEST(WrapperDestructor, LeavesBothBehindWhereNobodyTakesThem)
{
    QImage image = drawing::ground();
    auto* const wrapper = new KtQtPainterWrapper(&image);
    wrapper->beginPath();
    const QPainter* const painter = wrapper->wrappedPainter();
    const QPainterPath* const path = wrapper->getPainterPath();
    delete wrapper;
    EXPECT_FALSE(painter->isActive());
    EXPECT_TRUE(path->isEmpty());
}

TEST(BeginDraw, WithoutADeviceIsFalseAndStartsNothing)
{
    KtQtPainterWrapper painter;
    EXPECT_FALSE(painter.beginDraw());
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
    EXPECT_FALSE(painter.endDraw());
}

TEST(BeginDraw, SetsASolidBlackCosmeticPenAndASolidBlackBrush)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    EXPECT_TRUE(painter.beginDraw());
    EXPECT_EQ(painter.getPen(), QPen(QBrush(QColor(0, 0, 0, 255)), 0, Qt::SolidLine));
    EXPECT_TRUE(painter.getPen().isCosmetic());
    EXPECT_EQ(painter.getBrush(), QBrush(QColor(0, 0, 0, 255), Qt::SolidPattern));
    EXPECT_FALSE(painter.wrappedPainter()->hasClipping());
    EXPECT_TRUE(painter.endDraw());
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
}

// What was saved is Qt's own state, which comes back where a host restores once more.
TEST(BeginDraw, SavesBeforeItSetsTheDefaultsAndTheClip)
{
    QImage image = drawing::ground();
    QImage other = drawing::ground();
    const QPainter plain(&other);
    KtQtPainterWrapper painter(&image);
    painter.setClipRegion(drawing::kSquare, &drawing::kFour, 1);
    painter.beginDraw();
    EXPECT_TRUE(painter.wrappedPainter()->hasClipping());
    painter.restore();
    EXPECT_EQ(painter.getPen(), plain.pen());
    EXPECT_EQ(painter.getBrush(), plain.brush());
    EXPECT_FALSE(painter.wrappedPainter()->hasClipping());
    painter.save();
    painter.endDraw();
}

TEST(BeginDraw, KeepsThePenAtOnePixelUnderAScale)
{
    EXPECT_TRUE(drawing::drawsLike(
        [](KtQtPainterWrapper& p) {
            p.wrappedPainter()->scale(6, 6);
            p.wrappedPainter()->drawLine(1, 1, 12, 9);
        },
        [](QPainter& p) {
            p.setPen(QPen(Qt::black, 1));
            p.drawLine(6, 6, 72, 54);
        }));
}

TEST(BeginDraw, ForgetsTheSettingsOfTheLastSession)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.setPen(PS_DOT, 5, 0x000000FF);
    painter.setBkMode(OPAQUE);
    painter.setROP2(QPainter::CompositionMode_Xor);
    painter.Rotate(30, 1, 1);
    painter.endDraw();
    painter.beginDraw();
    EXPECT_EQ(painter.getPen(), QPen(Qt::black, 0));
    EXPECT_EQ(painter.getBkMode(), 0);
    EXPECT_EQ(painter.getROP2(), 0);
    EXPECT_TRUE(painter.wrappedPainter()->transform().isIdentity());
    painter.endDraw();
}

TEST(BeginDraw, OnANullImageIsTrueAndEndDrawFalse)
{
    QImage image;
    KtQtPainterWrapper painter(&image);
    EXPECT_TRUE(painter.beginDraw());
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
    painter.drawPoint(1, 1);
    EXPECT_FALSE(painter.endDraw());
}

TEST(BeginDraw, OnADeviceThatIsPaintedOnIsTrueAndEndDrawFalse)
{
    QImage image = drawing::ground();
    QPainter other(&image);
    KtQtPainterWrapper painter(&image);
    EXPECT_TRUE(painter.beginDraw());
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
    EXPECT_FALSE(painter.endDraw());
    EXPECT_TRUE(other.isActive());
}

TEST(EndDraw, TakesTheSettingsBackBeforeItEnds)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.wrappedPainter()->setOpacity(0.5);
    painter.save();
    painter.restore();
    EXPECT_EQ(painter.wrappedPainter()->opacity(), 0.5);
    EXPECT_TRUE(painter.endDraw());
    EXPECT_FALSE(painter.endDraw());
}

// Qt warns where a state is left behind, and where one is restored after the end.
TEST(EndDraw, RestoresAsOftenAsBeginDrawSaved)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    const drawing::Warnings warnings;
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(painter.beginDraw());
        EXPECT_TRUE(painter.endDraw());
    }
    EXPECT_EQ(warnings.texts(), std::vector<std::string>());
}

TEST(EndDraw, WithoutADeviceIsFalseAndLeavesTheSessionOpen)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    ASSERT_TRUE(painter.beginDraw());
    painter.setWrappedDevice(nullptr);
    EXPECT_FALSE(painter.endDraw());
    EXPECT_TRUE(painter.wrappedPainter()->isActive());
    painter.setWrappedDevice(&image);
    EXPECT_TRUE(painter.endDraw());
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
}

TEST(BeginDraw, GoesOnWithAnOpenSessionAndItsDefaults)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    EXPECT_TRUE(painter.beginDraw());
    painter.setPen(PS_SOLID, 9, 0x000000FF);
    painter.setBrush(0x000000FFu);
    painter.wrappedPainter()->setClipRect(0, 0, 5, 5);
    EXPECT_TRUE(painter.beginDraw());
    EXPECT_EQ(painter.getPen(), QPen(QBrush(Qt::black), 0, Qt::SolidLine));
    EXPECT_EQ(painter.getBrush(), QBrush(Qt::black, Qt::SolidPattern));
    painter.drawPoint(1, 1);
    EXPECT_TRUE(painter.endDraw());
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::black));
}

TEST(EndDraw, EndsASessionThatWasBegunTwice)
{
    QImage image = drawing::ground();
    KtQtPainterWrapper painter(&image);
    EXPECT_TRUE(painter.beginDraw());
    EXPECT_TRUE(painter.beginDraw());
    EXPECT_TRUE(painter.endDraw());
    EXPECT_FALSE(painter.wrappedPainter()->isActive());
}

TEST(Save, IsUndoneByRestore)
{
    EXPECT_TRUE(drawing::drawsLike(
        [](KtQtPainterWrapper& p) {
            p.save();
            p.setPen(PS_SOLID, 9, 0x000000FF);
            p.Rotate(10, 20, 20);
            p.drawPoint(5, 5);
            p.restore();
            p.drawPoint(30, 30);
        },
        [](QPainter& p) {
            p.setPen(QPen(Qt::red, 9));
            p.translate(20, 20);
            p.rotate(10);
            p.drawPoint(5, 5);
            p.resetTransform();
            p.setPen(QPen(Qt::black, 0));
            p.drawPoint(30, 30);
        }));
}

TEST(Header, ExampleDrawsARedOutline)
{
    QImage image(200, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    KtQtPainterWrapper painter(&image);
    if (painter.beginDraw()) {
        painter.setPen(PS_SOLID, 3, 0x000000FF); // red
        const POINT corners[] = {{10, 10}, {90, 10}, {50, 80}};
        painter.drawPolygon(corners, 3);
        painter.endDraw();
    }
    EXPECT_EQ(image.pixelColor(50, 10), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(50, 40), QColor(Qt::black));
}

} // namespace
