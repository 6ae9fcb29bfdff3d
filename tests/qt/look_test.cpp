// tests/qt/look_test.cpp - contrast of colours in light and dark palettes, and the icons.
#include "qt/look.h"

#include "qt/style.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <type_traits>

using namespace tallyhoop::qt;

namespace {

int paintedPixels(const QImage& image, const QColor& colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour;
    return count;
}

const std::array kBackgrounds{QColor{0xf3, 0xf4, 0xf7}, QColor{49, 54, 59}};

/// @returns an enabled, empty element without the focus on this background, with text in black or white
template <class Option>
QImage drawn(QStyle::PrimitiveElement element, const QColor& background)
{
    Option option;
    if constexpr (std::is_same_v<Option, QStyleOptionFrame>)
        option.lineWidth = 1;
    option.rect = {0, 0, 31, 31};
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    option.palette = QPalette{background};
    option.palette.setColor(QPalette::WindowText, background.lightness() > 128 ? Qt::black : Qt::white);
    QImage image{31, 31, QImage::Format_RGB32};
    image.fill(background);
    QPainter painter{&image};
    Style{}.drawPrimitive(element, &option, &painter, nullptr);
    return image;
}

/// @returns the least contrast of the middles of the four edges
double outlineContrast(const QImage& image, const QColor& background)
{
    const int last = image.width() - 1;
    const int middle = last / 2;
    double least = 21;
    for (const QPoint& edge : {QPoint{0, middle}, QPoint{last, middle}, QPoint{middle, 0}, QPoint{middle, last}})
        least = std::min(least, look::contrast(image.pixelColor(edge), background));
    return least;
}

} // namespace

TEST(Look, TextIsReadableOnEveryBackgroundOfTheCalmPalette)
{
    const QPalette palette = Style::calmPalette();
    const std::vector<std::pair<QPalette::ColorRole, QPalette::ColorRole>> pairs{
        {QPalette::WindowText, QPalette::Window},         {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight}, {QPalette::PlaceholderText, QPalette::Window},
        {QPalette::PlaceholderText, QPalette::Base},      {QPalette::Link, QPalette::Base},
        {QPalette::ToolTipText, QPalette::ToolTipBase}};
    for (const auto& [text, background] : pairs)
        EXPECT_GE(look::contrast(palette.color(text), palette.color(background)), 4.5) << text << " on " << background;
}

TEST(Look, ColoursThatADarkDesktopDoesNotDefineAreMadeVisible)
{
    QPalette dark{QColor{49, 54, 59}}; // its base is dark too
    dark.setColor(QPalette::WindowText, QColor{252, 252, 252});
    dark.setColor(QPalette::PlaceholderText, QColor{0, 0, 0, 128});
    dark.setColor(QPalette::Mid, QColor{40, 44, 48});
    dark.setColor(QPalette::Disabled, QPalette::Text, QColor{60, 64, 68});
    const QPalette readable = Style::readableRoles(dark);
    const QColor background = dark.color(QPalette::Window);
    EXPECT_GE(look::contrast(readable.color(QPalette::PlaceholderText), background), 4.5);
    EXPECT_GE(look::contrast(readable.color(QPalette::Mid), background), 1.5);
    EXPECT_GE(look::contrast(readable.color(QPalette::Disabled, QPalette::Text), background), 3);
    EXPECT_GE(look::contrast(readable.color(QPalette::Link), dark.color(QPalette::Base)), 4.5) << "Qt's is deep blue";
    EXPECT_FALSE(readable.isBrushSet(QPalette::Active, QPalette::WindowText)) << "readable colours stay the platform's";
}

TEST(Look, AReadablePaletteIsLeftAlone)
{
    const QPalette readable = Style::readableRoles(Style::calmPalette());
    EXPECT_FALSE(readable.isBrushSet(QPalette::Active, QPalette::PlaceholderText));
    EXPECT_FALSE(readable.isBrushSet(QPalette::Active, QPalette::Link));
    EXPECT_FALSE(readable.isBrushSet(QPalette::Active, QPalette::Mid));
    EXPECT_FALSE(readable.isBrushSet(QPalette::Disabled, QPalette::Text));
}

TEST(Look, ThePaletteOfTheDesktopIsCorrectedEachTime)
{
    Style style;
    QPalette dark{QColor{49, 54, 59}};
    dark.setColor(QPalette::WindowText, QColor{252, 252, 252});
    dark.setColor(QPalette::Mid, QColor{40, 44, 48});
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor{70, 74, 78});
    const QColor background = dark.color(QPalette::Window);
    style.polish(dark);
    EXPECT_GE(look::contrast(dark.color(QPalette::Mid), background), 1.5);
    EXPECT_GE(look::contrast(dark.color(QPalette::Disabled, QPalette::ButtonText), background), 3);
    EXPECT_EQ(dark.color(QPalette::WindowText), (QColor{252, 252, 252}));

    QPalette light{QColor{0xfa, 0xfa, 0xfa}};
    light.setColor(QPalette::WindowText, Qt::black);
    const QColor disabled{0x70, 0x70, 0x70};
    light.setColor(QPalette::Disabled, QPalette::ButtonText, disabled);
    style.polish(light);
    EXPECT_EQ(light.color(QPalette::Disabled, QPalette::ButtonText), disabled) << "readable colours stay the desktop's";

    QPalette qtDefault{QColor{0xef, 0xef, 0xef}};
    style.polish(qtDefault);
    EXPECT_EQ(qtDefault, Style::calmPalette());
}

TEST(Look, TheApplicationFollowsAChangeOfTheStylesPalette)
{
    // Qt passes the desktop's palette to the style whenever it changes, and also to a new style.
    QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette{});
    QApplication::setStyle(new Style);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), Style::calmPalette().color(QPalette::Window));
    EXPECT_EQ(QApplication::palette().color(QPalette::Disabled, QPalette::ButtonText),
              Style::calmPalette().color(QPalette::Disabled, QPalette::ButtonText));
    QApplication::setPalette(before);
}

TEST(Look, ListsAndBoxesOfSeveralLinesHaveAnOutlineOnEveryBackground)
{
    for (const QColor& background : kBackgrounds) {
        const QImage image = drawn<QStyleOptionFrame>(QStyle::PE_Frame, background);
        EXPECT_GE(outlineContrast(image, background), 1.8) << background.name().toStdString();
        EXPECT_EQ(image.pixelColor(image.rect().center()), background);
    }
}

TEST(Look, BoxesOfOneLineHaveAnOutlineOnEveryBackground)
{
    for (const QColor& background : kBackgrounds)
        for (const auto element : {QStyle::PE_PanelLineEdit, QStyle::PE_FrameLineEdit})
            EXPECT_GE(outlineContrast(drawn<QStyleOptionFrame>(element, background), background), 1.8)
                << background.name().toStdString();
}

TEST(Look, EmptyTickBoxesAndOptionsHaveAStrongOutlineOnEveryBackground)
{
    for (const QColor& background : kBackgrounds)
        for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton})
            EXPECT_GE(outlineContrast(drawn<QStyleOptionButton>(element, background), background), 2.5) // smoothed
                << background.name().toStdString();
}

TEST(Look, ContrastIsMeasuredAsTheRatioOfLuminances)
{
    EXPECT_DOUBLE_EQ(look::contrast(Qt::black, Qt::white), 21.0);
    EXPECT_DOUBLE_EQ(look::contrast(Qt::white, Qt::black), 21.0);
    EXPECT_DOUBLE_EQ(look::contrast(Qt::red, Qt::red), 1.0);
    EXPECT_NEAR(look::contrast(QColor{0, 0, 255}, Qt::white), 8.59, 0.01); // (1.0 + 0.05) / (0.0722 + 0.05)
}

TEST(Look, MenuIconsAreDrawnInThePalettesTextColour)
{
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::WindowText, QColor{0xee, 0xee, 0xee});
    QApplication::setPalette(dark);
    const QImage drawn = look::menuIcon(tallyhoop::ui::MenuIcon::Open).pixmap(64, 64).toImage();
    QApplication::setPalette(before);
    EXPECT_GT(paintedPixels(drawn, QColor(0xee, 0xee, 0xee)), 100);
}

TEST(Look, EveryMenuIconIsThereAndNoneIsNone)
{
    EXPECT_TRUE(look::menuIcon(tallyhoop::ui::MenuIcon::None).isNull());
    for (auto icon = static_cast<int>(tallyhoop::ui::MenuIcon::None) + 1;
         icon <= static_cast<int>(tallyhoop::ui::MenuIcon::Undo); ++icon)
        EXPECT_FALSE(look::menuIcon(static_cast<tallyhoop::ui::MenuIcon>(icon)).isNull()) << icon;
}

TEST(Look, TheProgramHasAnIcon)
{
    EXPECT_FALSE(QApplication::windowIcon().isNull());
    EXPECT_FALSE(QApplication::windowIcon().pixmap(48, 48).isNull());
}

TEST(Look, AMenuBarLooksNoDifferentInAWindowWithoutTheFocus)
{
    const auto drawnIn = [](QPalette::ColorGroup group) {
        QStyleOptionMenuItem entry;
        entry.text = QStringLiteral("File");
        entry.rect = {0, 0, 60, 24};
        entry.state = group == QPalette::Disabled ? QStyle::State_None : QStyle::State_Enabled;
        entry.palette = Style::calmPalette();
        entry.palette.setColor(QPalette::Inactive, QPalette::ButtonText, Qt::lightGray);
        entry.palette.setCurrentColorGroup(group);
        QImage image{60, 24, QImage::Format_RGB32};
        image.fill(Qt::white);
        QPainter painter{&image};
        Style{}.drawControl(QStyle::CE_MenuBarItem, &entry, &painter, nullptr);
        return image;
    };
    EXPECT_EQ(drawnIn(QPalette::Inactive), drawnIn(QPalette::Active));
    EXPECT_NE(drawnIn(QPalette::Active), drawnIn(QPalette::Disabled));
}
