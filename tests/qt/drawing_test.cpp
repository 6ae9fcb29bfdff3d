// tests/qt/drawing_test.cpp - a painted drawing, pixel by pixel.
#include "qt/paint_drawing.h"

#include <QImage>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;

namespace {

ui::Drawing sheet(double width, double height)
{
    ui::Drawing drawing;
    drawing.width = width;
    drawing.height = height;
    return drawing;
}

QImage painted(const ui::Drawing& drawing, QSize size)
{
    QImage image{size, QImage::Format_RGB32};
    image.fill(Qt::white);
    QPainter painter{&image};
    paintDrawing(painter, drawing, QRectF{QPointF{}, QSizeF{size}});
    return image;
}

int darkPixels(const QImage& image, const QRect& place)
{
    int count = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            count += qGray(image.pixel(x, y)) < 128;
    return count;
}

} // namespace

TEST(PaintDrawing, PaintsStrokesBoxesAndCaptionsInTheirPlaces)
{
    ui::Drawing drawing = sheet(100, 50);
    drawing.strokes.push_back({0, 25, 50, 25, {255, 0, 0}});
    drawing.boxes.push_back({{60, 10, 20, 20}, {0, 255, 0}, {0, 0, 0}});
    drawing.captions.push_back({{0, 35, 60, 10}, "ARIZONA", 10});
    const QImage image = painted(drawing, {400, 200});
    EXPECT_EQ(image.pixelColor(100, 100), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(280, 80), QColor(0, 255, 0));
    EXPECT_GT(darkPixels(image, {0, 140, 240, 40}), 50);
}

TEST(PaintDrawing, KeepsItsProportionsAndIsCentred)
{
    ui::Drawing drawing = sheet(100, 100);
    drawing.boxes.push_back({{0, 0, 100, 100}, {0, 0, 0}, {0, 0, 0}});
    const QImage image = painted(drawing, {300, 100});
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(150, 50), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(250, 50), QColor(Qt::white));
}

TEST(PaintDrawing, ACaptionThatDoesNotFitIsElidedInsideItsPlace)
{
    ui::Drawing drawing = sheet(100, 20);
    drawing.captions.push_back({{0, 0, 30, 20}, "LOUISIANA-LAFAYETTE", 12});
    const QImage image = painted(drawing, {1000, 200});
    EXPECT_GT(darkPixels(image, {0, 0, 300, 200}), 100);
    EXPECT_EQ(darkPixels(image, {305, 0, 690, 200}), 0);
}

TEST(PaintDrawing, AnEmptyDrawingPaintsNothing) { EXPECT_EQ(darkPixels(painted({}, {50, 50}), {0, 0, 50, 50}), 0); }
