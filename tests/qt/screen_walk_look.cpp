// tests/qt/screen_walk_look.cpp - checks the look of a window: texts that do not fit, and texts that are too pale.
#include "qt/screen_walk.h"

#include "qt/look.h"
#include "qt/widgets/slot_label.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTabBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <numeric>

namespace tallyhoop::qt {

namespace {

constexpr double kReadable = 4.5;
constexpr double kLegible = 3; ///< for disabled controls, whose text is still information

bool labelFits(const QLabel& label)
{
    const QFontMetrics metrics = label.fontMetrics();
    const QRect room = label.contentsRect();
    if (label.textFormat() == Qt::RichText)
        return label.sizeHint().width() <= label.width() && label.sizeHint().height() <= label.height();
    if (label.wordWrap())
        return metrics.boundingRect(room, Qt::TextWordWrap, label.text()).height() <= room.height();
    return metrics.size(0, label.text()).width() <= room.width() &&
           metrics.tightBoundingRect(label.text()).height() <= room.height();
}

bool lineFits(const QLineEdit& line)
{
    const int edges = line.hasFrame() ? 2 * line.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
    const bool scrolls = !line.isReadOnly();
    return scrolls || line.fontMetrics().horizontalAdvance(line.text()) <= line.width() - edges;
}

bool textFits(const QWidget& widget)
{
    if (widget.fontMetrics().tightBoundingRect(QStringLiteral("Ag")).height() > widget.height())
        return false;
    if (const auto* slot = qobject_cast<const SlotLabel*>(&widget))
        return !slot->isElided();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return labelFits(*label);
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return lineFits(*line);
    if (qobject_cast<const QAbstractButton*>(&widget))
        return widget.width() >= widget.sizeHint().width() && widget.height() >= widget.minimumSizeHint().height();
    return true;
}

/// The texts that do not fit, of widgets that paint several.
QStringList clippedParts(const QWidget& widget)
{
    QStringList clipped;
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget))
        for (int column = 0; header->orientation() == Qt::Horizontal && column < header->count(); ++column)
            if (header->sectionSize(column) < header->sectionSizeHint(column))
                clipped << QStringLiteral("heading %1").arg(column);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        for (int tab = 0; tab < tabs->count(); ++tab)
            if (tabs->tabRect(tab).width() < tabs->fontMetrics().horizontalAdvance(tabs->tabText(tab)))
                clipped << QStringLiteral("tab ") + tabs->tabText(tab);
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        if (group->width() < group->fontMetrics().horizontalAdvance(group->title()))
            clipped << walkedName(widget) + QStringLiteral(": ") + group->title();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        if (combo->width() < combo->fontMetrics().horizontalAdvance(combo->currentText()))
            clipped << walkedName(widget) + QStringLiteral(": ") + combo->currentText();
    return clipped;
}

QColor over(QColor textColour, const QColor& background)
{
    const double share = textColour.alphaF();
    const auto mix = [share](double a, double b) { return static_cast<float>(a * share + b * (1 - share)); };
    return QColor::fromRgbF(mix(textColour.redF(), background.redF()), mix(textColour.greenF(), background.greenF()),
                            mix(textColour.blueF(), background.blueF()));
}

/// @returns whether a widget paints its text on a background of its own
bool holdsText(const QWidget& widget)
{
    const bool items = widget.inherits("QAbstractItemView") && !widget.inherits("QHeaderView");
    return items || widget.inherits("QLineEdit") || widget.inherits("QPlainTextEdit") || widget.inherits("QTextEdit");
}

QPalette::ColorRole textRoleOf(const QWidget& widget)
{
    return holdsText(widget) ? QPalette::Text : widget.foregroundRole();
}

bool showsText(const QWidget& widget)
{
    return !paintedText(widget).isEmpty() || (holdsText(widget) && !widget.inherits("QLineEdit"));
}

} // namespace

template <class Use>
void ScreenWalk::forEachVisible(Use use) const
{
    for (QWidget* widget : m_window.findChildren<QWidget*>())
        if (widget->isVisible() && widget->window() == m_window.window() && !widget->visibleRegion().isEmpty())
            use(*widget);
}

QStringList ScreenWalk::clippedTexts() const
{
    QStringList clipped;
    forEachVisible([&](QWidget& widget) {
        const QRect place{widget.mapTo(&m_window, QPoint{0, 0}), widget.size()};
        const QWidget* above = widget.parentWidget();
        const bool scrolled = widget.inherits("QScrollBar") || above->inherits("QAbstractItemView") ||
                              above->objectName() == QStringLiteral("qt_scrollarea_viewport");
        const bool inside = scrolled || m_window.rect().contains(place);
        if (!inside || (!paintedText(widget).isEmpty() && !textFits(widget)))
            clipped << QStringLiteral("%1 (%2x%3): %4")
                           .arg(walkedName(widget))
                           .arg(widget.width())
                           .arg(widget.height())
                           .arg(paintedText(widget));
        clipped << clippedParts(widget);
    });
    return clipped;
}

/// The colour that covers most of the widget's place. Without its edge: no text is there, and where a button is filled
/// with a gradient, more pixels have the colour of its outline than any other.
QColor ScreenWalk::backgroundOf(const QWidget& widget) const
{
    constexpr int kEdge = 3;
    const double scale = m_picture.devicePixelRatio();
    const bool hasMiddle = widget.width() > 4 * kEdge && widget.height() > 4 * kEdge;
    const int edge = hasMiddle ? kEdge : 0;
    const QRect place = QRect{widget.mapTo(&m_window, QPoint{0, 0}), widget.size()}.adjusted(edge, edge, -edge, -edge);
    // The background may be a gradient, of which each shade alone is rarer than the text: alike shades count as one.
    const auto group = [](QRgb colour) { return colour & qRgba(0xF0, 0xF0, 0xF0, 0xFF); };
    QMap<QRgb, QMap<QRgb, int>> counts; // the number of pixels of each colour, by groups
    const auto end = [&](int start, int size) { return static_cast<int>((start + size) * scale); };
    for (int y = static_cast<int>(place.y() * scale); y < end(place.y(), place.height()); ++y)
        for (int x = static_cast<int>(place.x() * scale); x < end(place.x(), place.width()); ++x)
            if (m_picture.rect().contains(x, y)) {
                const QRgb colour = m_picture.pixel(x, y);
                ++counts[group(colour)][colour];
            }
    const auto most = std::ranges::max_element(
        counts, {}, [](const QMap<QRgb, int>& shades) { return std::accumulate(shades.begin(), shades.end(), 0); });
    return most == counts.end() ? QColor{} : QColor{std::ranges::max_element(most.value()).key()};
}

QStringList ScreenWalk::paleTexts() const
{
    QStringList pale;
    forEachVisible([&](QWidget& widget) {
        if (!showsText(widget))
            return;
        const QColor background = backgroundOf(widget);
        const QColor textColour = over(widget.palette().color(textRoleOf(widget)), background);
        const double contrast = look::contrast(textColour, background);
        if (contrast < (widget.isEnabled() ? kReadable : kLegible))
            pale << QStringLiteral("%1: %2 on %3, %4")
                        .arg(walkedName(widget), textColour.name(), background.name())
                        .arg(contrast);
        if (const auto* text = qobject_cast<const QTextEdit*>(&widget))
            pale << palePassages(*text);
    });
    return pale;
}

QStringList palePassages(const QTextEdit& text)
{
    QStringList pale;
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next())
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextCharFormat format = at.fragment().charFormat();
            const QBrush brush = format.hasProperty(QTextFormat::BackgroundBrush) ? format.background()
                                                                                  : block.blockFormat().background();
            const QColor base = text.palette().color(QPalette::Base);
            const QColor background = brush.style() == Qt::NoBrush ? base : over(brush.color(), base);
            const QColor textColour =
                over(format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color()
                                                                      : text.palette().color(QPalette::Text),
                     background);
            if (const double contrast = look::contrast(textColour, background); contrast < kReadable)
                pale << QStringLiteral("%1 on %2, %3: %4")
                            .arg(textColour.name(), background.name())
                            .arg(contrast)
                            .arg(at.fragment().text().left(40));
        }
    return pale;
}

QStringList paleRoles(const QPalette& palette)
{
    struct Pair {
        const char* name;
        QPalette::ColorRole textColour;
        QPalette::ColorRole background;
        bool whenDisabled; ///< shown in disabled controls too
    };
    constexpr std::array kPairs{
        Pair{"WindowText on Window", QPalette::WindowText, QPalette::Window, true},
        Pair{"Text on Base", QPalette::Text, QPalette::Base, true},
        Pair{"Text on Window", QPalette::Text, QPalette::Window, true}, // menu entries
        Pair{"Text on AlternateBase", QPalette::Text, QPalette::AlternateBase, false},
        Pair{"ButtonText on Button", QPalette::ButtonText, QPalette::Button, true},
        Pair{"HighlightedText on Highlight", QPalette::HighlightedText, QPalette::Highlight, true},
        Pair{"PlaceholderText on Window", QPalette::PlaceholderText, QPalette::Window, false},
        Pair{"PlaceholderText on Base", QPalette::PlaceholderText, QPalette::Base, false},
        Pair{"Link on Base", QPalette::Link, QPalette::Base, false},
        Pair{"ToolTipText on ToolTipBase", QPalette::ToolTipText, QPalette::ToolTipBase, false}};
    QStringList pale;
    for (const Pair& pair : kPairs)
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const bool disabled = group == QPalette::Disabled;
            if (disabled && !pair.whenDisabled)
                continue;
            const QColor background = palette.color(group, pair.background);
            const double contrast = look::contrast(over(palette.color(group, pair.textColour), background), background);
            if (contrast < (disabled ? kLegible : kReadable))
                pale << QStringLiteral("%1%2: %3")
                            .arg(QString::fromLatin1(disabled ? "disabled " : ""), QString::fromLatin1(pair.name))
                            .arg(contrast);
        }
    return pale;
}

} // namespace tallyhoop::qt
