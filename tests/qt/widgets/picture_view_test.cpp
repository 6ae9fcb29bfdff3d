// tests/qt/widgets/picture_view_test.cpp - a picture is painted for the room and the colours that it has.
#include "qt/widgets/picture_view.h"

#include "qt/accessibility.h"
#include "qt/look.h"
#include "qt/sample_screen.h"
#include "qt/style.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <array>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

QColor toColour(ui::Colour colour) { return look::toQColor(colour); }

/// A picture that fills its whole room with the accent.
struct PictureViewTest : testing::Test {
    PictureViewTest()
    {
        picture.draw = [this](double width, double height, const ui::PictureColours& colours) {
            ++drawn;
            last = {width, height};
            ui::Drawing drawing;
            drawing.width = width;
            drawing.height = height;
            drawing.boxes.push_back({{0, 0, width, height}, colours.accent, colours.accent});
            return drawing;
        };
        view = new PictureView{picture, &window};
        view->resize(400, 200);
        window.resize(420, 220);
    }

    QColor middle() { return view->grab().toImage().pixelColor(200, 100); }

    test::SampleScreen screen;
    ui::Picture picture{&screen, "picSample"};
    QWidget window;
    PictureView* view = nullptr;
    int drawn = 0;
    std::pair<double, double> last;
};

TEST_F(PictureViewTest, IsDrawnForItsRoomAndAgainForAnother)
{
    EXPECT_EQ(middle(), toColour(pictureColours(view->palette()).accent));
    const auto [width, height] = last;
    EXPECT_NEAR(width / height, 2, 0.1);
    view->resize(400, 100);
    view->grab();
    EXPECT_NEAR(last.first, width, 0.01);
    EXPECT_LT(last.second, height / 1.8);
}

TEST_F(PictureViewTest, IsDrawnInTheColoursOfTheWindow)
{
    view->setPalette(Style::darkPalette());
    EXPECT_EQ(middle(), toColour(pictureColours(Style::darkPalette()).accent));
    EXPECT_NE(middle(), toColour(pictureColours(Style::calmPalette()).accent));
}

TEST_F(PictureViewTest, HasLargerLettersWhereTheWindowHas)
{
    view->grab();
    const double before = last.first;
    QFont larger = view->font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    view->setFont(larger);
    view->grab();
    EXPECT_NEAR(last.first, before / 2, before / 20) << "half as many units, each twice as large";
}

TEST_F(PictureViewTest, SaysWhatItIs)
{
    QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(view);
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::Graphic);
}

TEST(PictureColours, CanBeSeenInLightAndInDarkWindows)
{
    for (const QPalette& palette : std::array{Style::calmPalette(), Style::darkPalette()}) {
        const ui::PictureColours colours = pictureColours(palette);
        const QColor background = palette.color(QPalette::Base);
        const auto contrast = [&](ui::Colour colour) { return look::contrast(toColour(colour), background); };
        EXPECT_GE(contrast(colours.text), 4.5);
        EXPECT_GE(contrast(colours.accent), 4.5);
        EXPECT_GE(contrast(colours.line), 3);
        EXPECT_GE(contrast(colours.soft), 1.5);
        EXPECT_GE(contrast(colours.grid), 1.2);
        EXPECT_LT(contrast(colours.grid), contrast(colours.line)) << "the scale is not what matters";
    }
}

TEST(PageWithPicture, SpeaksItAndDrawsItAnewWithItsRevision)
{
    test::SampleScreen screen;
    ui::Picture picture{&screen, "picSample"};
    int drawn = 0;
    picture.draw = [&drawn](double, double, const ui::PictureColours&) { return ++drawn, ui::Drawing{}; };
    Desk desk;
    Page page{screen, desk};
    PictureView* const view = page.add(picture);
    auto* const layout = look::column();
    layout->addWidget(view);
    page.setContent(layout);
    page.show();
    desk.run(screen, [&] { picture.spokenName = "Joe & Co.: now 34.4 %"; });
    EXPECT_EQ(view->objectName(), QStringLiteral("picSample"));
    EXPECT_EQ(view->accessibleName(), QStringLiteral("Joe & Co.: now 34.4 %"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return drawn > 0; }));
    QApplication::processEvents();
    const int before = drawn;
    desk.run(screen, [&] { ++picture.revision; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return drawn > before; }));
}

} // namespace
} // namespace tallyhoop::qt
