// qt/style.cpp - Fusion with outlines that can be seen, other margins, and a palette whose roles are made readable.
#include "qt/style.h"

#include "qt/dark_desktop.h"
#include "qt/line_icon.h"
#include "qt/look.h"
#include "qt/message_icon.h"

#include <QPainter>
#include <QStyleOption>

namespace tallyhoop::qt {

namespace {

constexpr double kRound = 4;  ///< radius of corners, in device-independent pixels
constexpr int kPadding = 2;   ///< height added to a box or button; with no more, 64 boxes fit a small screen
constexpr int kTextInset = 3; ///< added on both sides of a box's text

// The window colour that Qt uses when no desktop defines one.
constexpr QColor kQtDefaultBackground{0xef, 0xef, 0xef};
constexpr QColor kLinkOnLight{0x0b, 0x57, 0xa4};
constexpr QColor kLinkOnDark{0x7a, 0xb8, 0xf5};

/// A colour between two: 0 is the first, 1 the second.
QColor between(const QColor& first, const QColor& second, double share)
{
    const auto mix = [share](double a, double b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}

/// For outlines. On a dark background the same share of the text colour has less contrast.
QColor lineColour(const QPalette& palette)
{
    const QColor background = palette.color(QPalette::Window);
    const bool dark = look::contrast(background, Qt::white) > look::contrast(background, Qt::black);
    return between(background, palette.color(QPalette::Active, QPalette::WindowText), dark ? 0.4 : 0.3);
}

/// For outlines that are the only visible part of a control, such as an empty tick box.
QColor strongLineColour(const QPalette& palette)
{
    return between(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.55);
}

void drawRing(QPainter& painter, const QRect& place, const QColor& line)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(line);
    painter.drawEllipse(QRectF{place}.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

void drawBox(QPainter& painter, const QRect& place, const QBrush& fill, const QColor& line, double width)
{
    const double inset = width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(QPen{line, width});
    painter.drawRoundedRect(QRectF{place}.adjusted(inset, inset, -inset, -inset), kRound, kRound);
    painter.restore();
}

/// Fusion draws the outline of a box darker than the window: on a dark desktop an empty one cannot be seen.
void drawLineEdit(const QStyleOption& option, QPainter& painter, bool filled)
{
    const bool focused = option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Enabled);
    const QBrush fill = filled ? option.palette.brush(QPalette::Base) : QBrush{Qt::NoBrush};
    drawBox(painter, option.rect, fill,
            focused ? option.palette.color(QPalette::Highlight) : lineColour(option.palette), focused ? 2 : 1);
}

/// The frame of lists and of boxes of several lines, for the same reason. Square, as their background is.
void drawFrame(const QStyleOption& option, QPainter& painter)
{
    const bool focused = option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Enabled);
    const QColor line = focused ? option.palette.color(QPalette::Highlight) : lineColour(option.palette);
    const QRect& place = option.rect;
    // Filled areas, not lines: with fractional scaling, lines at the edge can disappear.
    for (const QRect& edge :
         {QRect{place.left(), place.top(), place.width(), 1}, QRect{place.left(), place.bottom(), place.width(), 1},
          QRect{place.left(), place.top(), 1, place.height()}, QRect{place.right(), place.top(), 1, place.height()}})
        painter.fillRect(edge, line);
}

} // namespace

Style::Style() : QProxyStyle{QStringLiteral("Fusion")} {}

QPalette Style::calmPalette()
{
    const QColor textColour{0x1c, 0x1f, 0x24};
    const QColor paleText{0x5b, 0x64, 0x70};
    const QColor background{0xf3, 0xf4, 0xf7};
    const QColor accent{0x0b, 0x57, 0xa4};
    QPalette palette{background};
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor{0xf0, 0xf3, 0xf8});
    palette.setColor(QPalette::Button, Qt::white);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, textColour);
    palette.setColor(QPalette::ToolTipBase, QColor{0xff, 0xfe, 0xf2});
    palette.setColor(QPalette::PlaceholderText, paleText);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::Mid, QColor{0xb8, 0xbe, 0xc8});
    palette.setColor(QPalette::Dark, QColor{0x9a, 0xa1, 0xad});
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, QColor{0xe4, 0xe7, 0xec});
    palette.setColor(QPalette::Shadow, QColor{0x6b, 0x72, 0x7d});
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor{0x7c, 0x84, 0x90});
    palette.setColor(QPalette::Disabled, QPalette::Base, background);
    palette.setColor(QPalette::Disabled, QPalette::Button, background);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor{0xb8, 0xbe, 0xc8});
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, textColour); // White would be unreadable here.
    return palette;
}

QPalette Style::darkPalette()
{
    const QColor textColour{0xfc, 0xfc, 0xfc};
    const QColor background{0x2b, 0x2f, 0x34};
    const QColor base{0x1b, 0x1e, 0x20};
    QPalette palette{QColor{0x3a, 0x40, 0x46}, background};
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, QColor{0x23, 0x26, 0x29});
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::HighlightedText})
        palette.setColor(role, textColour);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::PlaceholderText, QColor{0xa8, 0xb0, 0xb8});
    palette.setColor(QPalette::Highlight, QColor{0x1d, 0x6f, 0xa5});
    palette.setColor(QPalette::Link, kLinkOnDark);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor{0x98, 0xa0, 0xa8});
    palette.setColor(QPalette::Disabled, QPalette::Base, background);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor{0x4a, 0x51, 0x59});
    return readableRoles(palette).resolve(palette);
}

QPalette Style::readableRoles(const QPalette& platform)
{
    const QColor background = platform.color(QPalette::Window);
    const QColor textColour = platform.color(QPalette::WindowText);
    const auto contrastOf = [&](QColor colour) {
        const double share = colour.alphaF();
        colour.setAlpha(255);
        return look::contrast(between(background, colour, share), background);
    };
    QPalette readable;
    if (contrastOf(platform.color(QPalette::PlaceholderText)) < 4.5)
        readable.setColor(QPalette::PlaceholderText, between(background, textColour, 0.7));
    if (look::contrast(platform.color(QPalette::Link), platform.color(QPalette::Base)) < 4.5)
        readable.setColor(QPalette::Link, background.lightness() < 128 ? kLinkOnDark : kLinkOnLight);
    if (contrastOf(platform.color(QPalette::Mid)) < 1.5)
        readable.setColor(QPalette::Mid, between(background, textColour, 0.35));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        if (contrastOf(platform.color(QPalette::Disabled, role)) < 3)
            readable.setColor(QPalette::Disabled, role, between(background, textColour, 0.55));
    return readable;
}

void Style::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    if (desktopIsDark())
        palette = darkPalette();
    else if (palette.color(QPalette::Window) == kQtDefaultBackground)
        palette = calmPalette();
    else
        palette = readableRoles(palette).resolve(palette);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const
{
    switch (element) {
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth > 0) {
            drawLineEdit(*option, *painter, true);
            return;
        }
        break;
    case PE_FrameLineEdit:
        drawLineEdit(*option, *painter, false);
        return;
    case PE_IndicatorCheckBox: // Fusion's own outline is pale on a light desktop, and none on a dark one
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        drawBox(*painter, option->rect, Qt::NoBrush, strongLineColour(option->palette), 1);
        return;
    case PE_IndicatorRadioButton: // likewise
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        drawRing(*painter, option->rect, strongLineColour(option->palette));
        return;
    case PE_Frame:
        drawFrame(*option, *painter);
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const
{
    if (const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        entry && element == CE_MenuBarItem && entry->state.testFlag(State_Enabled)) {
        // On Windows those of a window without the focus are pale, and stay so after some dialogs, as if all were
        // disabled.
        QStyleOptionMenuItem legible{*entry};
        legible.palette.setCurrentColorGroup(QPalette::Active);
        QProxyStyle::drawControl(element, &legible, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
        result += QSize{2 * look::kGap, kPadding};
        break;
    case CT_LineEdit:
        result += QSize{2 * kTextInset, kPadding};
        break;
    case CT_ItemViewItem:
        result += QSize{0, look::kTight};
        break;
    case CT_MenuItem:
    case CT_MenuBarItem:
        result += QSize{look::kGap, look::kTight};
        break;
    default:
        break;
    }
    return result;
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const QRect place = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_LineEditContents ? place.adjusted(kTextInset, 0, -kTextInset, 0) : place;
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_MessageBox_CenterButtons:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_MessageBoxIconSize:
        return 48;
    case PM_FocusFrameHMargin: // space beside the text of a cell, so that neighbours do not touch
    case PM_HeaderMargin:
        return look::kTight + 1;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return look::kSection - look::kTight;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return look::kGap;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    switch (icon) {
    case SP_MessageBoxInformation:
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
    case SP_MessageBoxQuestion:
        return messageIcon(icon);
    case SP_ToolBarHorizontalExtensionButton: // every menu bar prepares one; Qt's own icon would load a picture
        return lineIcon(QStringLiteral(":/icons/more.svg"));
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

} // namespace tallyhoop::qt
