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

TEST(PaintDrawing, PaintsAThickStrokeToBothSides)
{
    ui::Drawing drawing = sheet(100, 50);
    drawing.strokes.push_back({0, 10, 100, 10, {255, 0, 0}});
    drawing.strokes.push_back({0, 30, 100, 30, {255, 0, 0}, 5});
    const QImage image = painted(drawing, {400, 200});
    // 6 pixels beside the middle: a unit and a half.
    EXPECT_EQ(image.pixelColor(200, 46), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(200, 114), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(200, 126), QColor(255, 0, 0));
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

TEST(PaintDrawing, ANameIsNarrowedBeforeItIsCut)
{
    const auto paintedName = [](const std::string& name, double width) {
        ui::Drawing drawing = sheet(100, 20);
        drawing.captions.push_back({{0, 0, width, 20}, name, 10});
        return painted(drawing, {1000, 200});
    };
    // About 14 capitals of a tenth of the sheet's width each are 95 units wide at their natural width.
    const QImage whole = paintedName("CENTRAL FLORIDA", 66);
    const QImage other = paintedName("CENTRAX FLORIDA", 66); // a name that is cut loses its middle
    EXPECT_NE(whole, other) << "the letters in the middle were cut";
    EXPECT_EQ(darkPixels(whole, {665, 0, 335, 200}), 0);
}

TEST(PaintDrawing, ANameFarTooLongIsCutInItsMiddleAndKeepsItsEnd)
{
    const auto paintedName = [](const std::string& name) {
        ui::Drawing drawing = sheet(100, 20);
        drawing.captions.push_back({{0, 0, 40, 20}, name, 10});
        return painted(drawing, {1000, 200});
    };
    EXPECT_NE(paintedName("UNIVERSITY OF LOUISIANA AT LAFAYETTE"), paintedName("UNIVERSITY OF LOUISIANA AT MONROE"));
}

TEST(PaintDrawing, ACommentThatIsTooHighGetsSmallerLetters)
{
    // Five lines of 10 units are about 58 units high.
    ui::Drawing drawing = sheet(100, 60);
    drawing.captions.push_back({{0, 0, 100, 42}, "1\r\n2\r\n3\r\n4\r\nLAST", 10});
    drawing.captions.back().wrap = true;
    ui::Drawing without = drawing;
    without.captions.back().text = "1\r\n2\r\n3\r\n4\r\n";
    const QImage image = painted(drawing, {1000, 600});
    EXPECT_NE(image, painted(without, {1000, 600})) << "the last line is not there";
    EXPECT_EQ(darkPixels(image, {0, 425, 1000, 175}), 0);
}

TEST(PaintDrawing, ACommentFarTooHighEndsWithAWholeLineAndAnEllipsis)
{
    ui::Drawing drawing = sheet(100, 60);
    drawing.captions.push_back({{0, 0, 100, 30}, {}, 10});
    drawing.captions.back().wrap = true;
    for (int line = 0; line < 30; ++line)
        drawing.captions.back().text += "HHH\r\n";
    const QImage image = painted(drawing, {1000, 600});
    const auto rowIsEmpty = [&](int y) { return darkPixels(image, {0, y, 1000, 1}) == 0; };
    int lowest = 599;
    while (lowest > 0 && rowIsEmpty(lowest))
        --lowest;
    EXPECT_LT(lowest, 300);
    EXPECT_GT(lowest, 200) << "the room is used";
    // The last line has its ellipsis at the right of the letters, at their foot.
    int widestAbove = 999;
    const auto columnIsEmpty = [&](int x, int top, int bottom) {
        return darkPixels(image, {x, top, 1, bottom - top}) == 0;
    };
    while (widestAbove > 0 && columnIsEmpty(widestAbove, 0, lowest - 40))
        --widestAbove;
    EXPECT_GT(darkPixels(image, {widestAbove + 5, lowest - 20, 200, 21}), 5);
}

TEST(PaintDrawing, AWrongPickIsStruckThrough)
{
    ui::Drawing drawing = sheet(100, 20);
    drawing.captions.push_back({{0, 0, 100, 20}, "I          I", 10});
    const int plain = darkPixels(painted(drawing, {1000, 200}), {40, 0, 100, 200});
    drawing.captions.back().struck = true;
    EXPECT_GT(darkPixels(painted(drawing, {1000, 200}), {40, 0, 100, 200}), plain + 50);
}

TEST(PaintDrawing, AnEmptyDrawingPaintsNothing) { EXPECT_EQ(darkPixels(painted({}, {50, 50}), {0, 0, 50, 50}), 0); }
