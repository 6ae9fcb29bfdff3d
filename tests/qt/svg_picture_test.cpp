// tests/qt/svg_picture_test.cpp - the pictures of our icons are read whole, and painted where they say.
#include "qt/svg_path.h"
#include "qt/svg_picture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

QByteArray svg(const QByteArray& inside, const QByteArray& attributes = "")
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 10\" " + attributes + ">" + inside + "</svg>";
}

/// @returns the picture on a transparent square of 10 pixels
QImage painted(const QByteArray& text)
{
    QImage image{10, 10, QImage::Format_ARGB32};
    image.fill(Qt::transparent);
    const std::optional<SvgPicture> picture = SvgPicture::read(text);
    EXPECT_TRUE(picture) << text.constData();
    QPainter painter{&image};
    if (picture)
        picture->paint(painter, image.rect(), Qt::green);
    return image;
}

TEST(SvgPicture, ReadsEveryPictureOfOurs)
{
    const QStringList names = QDir{QStringLiteral(":/icons")}.entryList();
    EXPECT_GE(names.size(), 19);
    for (const QString& name : names) {
        QFile file{QStringLiteral(":/icons/") + name};
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_TRUE(SvgPicture::read(file.readAll())) << name.toStdString();
    }
    QFile large{QStringLiteral(":/tallyhoop.svg")};
    ASSERT_TRUE(large.open(QIODevice::ReadOnly));
    EXPECT_TRUE(SvgPicture::read(large.readAll()));
}

TEST(SvgPicture, RefusesWhatItCannotPaint)
{
    for (const char* inside : {"<text>A</text>", "<path d=\"M0 0q1 1 2 2\"/>", "<path d=\"M0 0L1\"/>",
                               "<path d=\"M0 0a1 2 0 0 1 3 3\"/>", "<rect width=\"5\" height=\"5\" fill=\"url(#a)\"/>"})
        EXPECT_FALSE(SvgPicture::read(svg(inside))) << inside;
    EXPECT_FALSE(SvgPicture::read("<html/>"));
    EXPECT_FALSE(SvgPicture::read("<svg viewBox=\"0 0 10 10\"><g>"));
    EXPECT_FALSE(SvgPicture::read("<svg><path d=\"M0 0\"/></svg>")) << "nobody knows how large it is";
}

TEST(SvgPicture, PaintsTheColoursThatItSaysOrIsGiven)
{
    const QImage image = painted(svg("<rect x=\"0\" y=\"0\" width=\"5\" height=\"10\" fill=\"#ff0000\"/>"
                                     "<g fill=\"currentColor\"><rect x=\"5\" y=\"0\" width=\"5\" height=\"5\"/></g>"));
    EXPECT_EQ(image.pixelColor(2, 7), QColor{Qt::red});
    EXPECT_EQ(image.pixelColor(7, 2), QColor{Qt::green}) << "from the group";
    EXPECT_EQ(image.pixelColor(7, 7).alpha(), 0);
}

TEST(SvgPicture, StrokesLinesAsWideAsTheySay)
{
    const QImage image = painted(svg("<path d=\"M0 5H10\"/>", R"(fill="none" stroke="#0000ff" stroke-width="4")"));
    EXPECT_EQ(image.pixelColor(5, 3), QColor{Qt::blue});
    EXPECT_EQ(image.pixelColor(5, 6), QColor{Qt::blue});
    EXPECT_EQ(image.pixelColor(5, 2).alpha(), 0);
    EXPECT_EQ(image.pixelColor(5, 7).alpha(), 0);
}

TEST(SvgPath, FollowsLinesAbsoluteAndRelative)
{
    const std::optional<QPainterPath> path = svgPath(u"M1 2L3 4l1-1H9v1.5h-.5M0 0 5 5");
    ASSERT_TRUE(path);
    ASSERT_EQ(path->elementCount(), 8);
    const QList<QPointF> expected = {{1, 2}, {3, 4}, {4, 3}, {9, 3}, {9, 4.5}, {8.5, 4.5}, {0, 0}, {5, 5}};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(QPointF{path->elementAt(i)}, expected[i]) << i;
}

TEST(SvgPath, MirrorsTheControlPointOfASmoothCurve)
{
    const std::optional<QPainterPath> path = svgPath(u"M3 20c0-4 3-6 6-6s6 2 6 6");
    ASSERT_TRUE(path);
    ASSERT_EQ(path->elementCount(), 7);
    const QList<QPointF> expected = {{3, 20}, {3, 16}, {6, 14}, {9, 14}, {12, 14}, {15, 16}, {15, 20}};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(QPointF{path->elementAt(i)}, expected[i]) << i;
}

/// A quarter of a circle of radius 5 between (0, 5) and (5, 0): the centre is (5, 5) or (0, 0), the way short or long.
TEST(SvgPath, GoesRoundACircleInEachOfTheFourWays)
{
    const auto extent = [](QStringView text) {
        const std::optional<QPainterPath> path = svgPath(text);
        return path ? path->boundingRect().toAlignedRect() : QRect{};
    };
    EXPECT_EQ(extent(u"M0 5A5 5 0 0 1 5 0"), (QRect{0, 0, 5, 5})) << "round (5, 5)";
    EXPECT_TRUE(svgPath(u"M0 5A5 5 0 0 1 5 0L0 0")->contains(QPointF{1, 0.9}))
        << "the corner, which is outside the circle";
    EXPECT_TRUE(svgPath(u"M0 5A5 5 0 0 0 5 0L5 5")->contains(QPointF{4, 4}))
        << "round (0, 0), where that corner is outside";
    EXPECT_EQ(extent(u"M0 5A5 5 0 1 1 5 0"), (QRect{-5, -5, 10, 10})) << "the long way, round (0, 0)";
    EXPECT_EQ(extent(u"M0 5A5 5 0 1 0 5 0"), (QRect{0, 0, 10, 10})) << "the long way, round (5, 5)";
}

TEST(SvgPath, EndsAnArcWhereItSays)
{
    const std::optional<QPainterPath> path = svgPath(u"M15 5a3.5 3.5 0 0 1 0 6.5");
    ASSERT_TRUE(path);
    EXPECT_NEAR(path->currentPosition().x(), 15, 0.01);
    EXPECT_NEAR(path->currentPosition().y(), 11.5, 0.01);
    EXPECT_NEAR(path->pointAtPercent(0.5).x(), 15 + 3.5 - 1.2990, 0.01) << "the centre is 1.299 left of the chord";
}

} // namespace
} // namespace tallyhoop::qt
