#include "qt/screen_walk.h"

#include "ui/qt/look.h"
#include "ui/qt/widgets/slot_label.h"

#include <QAccessible>
#include <QAction>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

namespace tallyhoop::qt {

namespace {

constexpr double kReadable = 4.5;

QString nameOf(const QWidget& widget)
{
    return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : widget.objectName();
}

/// @returns the text that the widget paints itself; empty for those that scroll theirs or have none
QString paintedText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->text();
    return {};
}

bool saysNothing(const QWidget& widget)
{
    const bool onlyText = qobject_cast<const QLabel*>(&widget) || !widget.focusPolicy();
    return onlyText && paintedText(widget).isEmpty();
}

QString spoken(const QWidget& widget)
{
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
    return seen ? seen->text(QAccessible::Name).trimmed() : QString{};
}

QAccessible::Role expectedRole(const QWidget& widget)
{
    if (widget.inherits("QRadioButton"))
        return QAccessible::RadioButton;
    if (widget.inherits("QCheckBox"))
        return QAccessible::CheckBox;
    if (const auto* slot = qobject_cast<const SlotLabel*>(&widget))
        return slot->objectName().startsWith(QStringLiteral("lblResult")) ? QAccessible::StaticText
                                                                          : QAccessible::Button;
    if (widget.inherits("QPushButton"))
        return QAccessible::Button;
    if (widget.inherits("QLineEdit") || widget.inherits("QPlainTextEdit"))
        return QAccessible::EditableText;
    if (widget.inherits("QListView"))
        return QAccessible::List;
    if (widget.inherits("QTableView"))
        return QAccessible::Table;
    if (widget.inherits("QGroupBox"))
        return QAccessible::Grouping;
    return QAccessible::StaticText;
}

/// Notes what a mnemonic stands for; two things under one letter are a trouble.
class Letters
{
public:
    void add(const QString& caption, const QString& name)
    {
        const QKeySequence letter = QKeySequence::mnemonic(caption);
        if (letter.isEmpty())
            troubles << name + QStringLiteral(" has no mnemonic: ") + caption;
        else if (const QString before = m_taken.value(letter.toString()); !before.isEmpty() && before != name)
            troubles << letter.toString() + QStringLiteral(": ") + before + QStringLiteral(" and ") + name;
        else
            m_taken.insert(letter.toString(), name);
    }

    QStringList troubles;

private:
    QMap<QString, QString> m_taken;
};

void walkMenu(const QMenu& menu, QStringList& troubles)
{
    Letters letters;
    for (const QAction* action : menu.actions()) {
        if (action->isSeparator())
            continue;
        letters.add(action->text(), action->objectName());
        if (action->menu())
            walkMenu(*action->menu(), troubles);
    }
    troubles << letters.troubles;
}

bool textFits(const QWidget& widget)
{
    const QString text = paintedText(widget);
    const QFontMetrics metrics = widget.fontMetrics();
    if (metrics.tightBoundingRect(QStringLiteral("Ag")).height() > widget.height())
        return false;
    if (const auto* slot = qobject_cast<const SlotLabel*>(&widget))
        // A team's name may be cut: its tool tip, or in the first round the status line, says it whole.
        return !slot->isElided() || slot->part() != SlotLabel::Part::Marker;
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const QRect room = label->contentsRect();
        if (label->wordWrap())
            return metrics.boundingRect(room, Qt::TextWordWrap, text).height() <= room.height();
        return metrics.size(0, text).width() <= room.width() &&
               metrics.tightBoundingRect(text).height() <= room.height();
    }
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
        const int edges = line->hasFrame() ? 2 * line->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
        const bool scrolls = !line->isReadOnly();
        return scrolls || metrics.horizontalAdvance(text) <= line->width() - edges;
    }
    if (qobject_cast<const QAbstractButton*>(&widget))
        return widget.width() >= widget.sizeHint().width() && widget.height() >= widget.minimumSizeHint().height();
    return true;
}

QColor over(QColor ink, const QColor& ground)
{
    const double share = ink.alphaF();
    const auto mix = [share](double a, double b) { return static_cast<float>(a * share + b * (1 - share)); };
    return QColor::fromRgbF(mix(ink.redF(), ground.redF()), mix(ink.greenF(), ground.greenF()),
                            mix(ink.blueF(), ground.blueF()));
}

} // namespace

ScreenWalk::ScreenWalk(Page& page) : m_page{page}, m_picture{page.grab().toImage()} {}

template <class Use>
void ScreenWalk::forEachVisible(Use use) const
{
    for (QWidget* widget : m_page.findChildren<QWidget*>())
        if (widget->isVisible() && !widget->visibleRegion().isEmpty())
            use(*widget);
}

QStringList ScreenWalk::namelessControls() const
{
    QStringList nameless;
    for (const ui::Control* control : m_page.screen().controls()) {
        const QWidget* widget = m_page.widgetOf(*control);
        if (widget && widget->isVisible() && !saysNothing(*widget) && spoken(*widget).isEmpty())
            nameless << nameOf(*widget);
    }
    return nameless;
}

QStringList ScreenWalk::wrongRoles() const
{
    QStringList wrong;
    for (const ui::Control* control : m_page.screen().controls()) {
        QWidget* widget = m_page.widgetOf(*control);
        if (!widget || !widget->isVisible())
            continue;
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(widget);
        if (!seen || seen->role() != expectedRole(*widget))
            wrong << QStringLiteral("%1 has role %2").arg(nameOf(*widget)).arg(seen ? seen->role() : -1);
    }
    return wrong;
}

QStringList ScreenWalk::mnemonicTroubles() const
{
    Letters letters;
    QStringList troubles;
    if (const auto* bar = m_page.findChild<QMenuBar*>())
        for (const QAction* action : bar->actions()) {
            letters.add(action->text(), action->objectName());
            if (action->menu())
                walkMenu(*action->menu(), troubles);
        }
    for (const QPushButton* button : m_page.findChildren<QPushButton*>())
        letters.add(button->text(), nameOf(*button));
    return troubles + letters.troubles;
}

QStringList ScreenWalk::clippedTexts() const
{
    QStringList clipped;
    forEachVisible([&](QWidget& widget) {
        const QRect place{widget.mapTo(&m_page, QPoint{0, 0}), widget.size()};
        const bool scrolled = widget.parentWidget()->inherits("QAbstractItemView") || widget.inherits("QScrollBar");
        const bool inside = scrolled || m_page.rect().contains(place);
        if (!inside || (!paintedText(widget).isEmpty() && !textFits(widget)))
            clipped << QStringLiteral("%1 (%2x%3): %4")
                           .arg(nameOf(widget))
                           .arg(widget.width())
                           .arg(widget.height())
                           .arg(paintedText(widget));
        if (const auto* head = qobject_cast<const QHeaderView*>(&widget))
            for (int column = 0; head->orientation() == Qt::Horizontal && column < head->count(); ++column)
                if (head->sectionSize(column) < head->sectionSizeHint(column))
                    clipped << QStringLiteral("heading %1").arg(column);
    });
    return clipped;
}

/// The colour that most of the widget's place is painted in.
QColor ScreenWalk::groundBehind(const QWidget& widget) const
{
    const double scale = m_picture.devicePixelRatio();
    const QPoint corner = widget.mapTo(&m_page, QPoint{0, 0});
    QMap<QRgb, int> counts;
    const auto end = [&](int start, int size) { return static_cast<int>((start + size) * scale); };
    for (int y = static_cast<int>(corner.y() * scale); y < end(corner.y(), widget.height()); ++y)
        for (int x = static_cast<int>(corner.x() * scale); x < end(corner.x(), widget.width()); ++x)
            if (m_picture.rect().contains(x, y))
                ++counts[m_picture.pixel(x, y)];
    const auto most = std::ranges::max_element(counts);
    return most == counts.end() ? QColor{} : QColor{most.key()};
}

QStringList ScreenWalk::paleTexts() const
{
    QStringList pale;
    forEachVisible([&](QWidget& widget) {
        const bool list = widget.inherits("QAbstractItemView") && !widget.inherits("QHeaderView");
        if (!widget.isEnabled() || (paintedText(widget).isEmpty() && !list && !widget.inherits("QPlainTextEdit")))
            return;
        QPalette::ColorRole role = widget.foregroundRole();
        if (list || widget.inherits("QLineEdit") || widget.inherits("QPlainTextEdit"))
            role = QPalette::Text;
        const QColor ground = groundBehind(widget);
        const QColor ink = over(widget.palette().color(role), ground);
        if (const double contrast = look::contrast(ink, ground); contrast < kReadable)
            pale << QStringLiteral("%1: %2 on %3, %4").arg(nameOf(widget), ink.name(), ground.name()).arg(contrast);
    });
    return pale;
}

QStringList paleRoles(const QPalette& palette)
{
    struct Pair {
        const char* name;
        QPalette::ColorRole ink;
        QPalette::ColorRole ground;
    };
    QStringList pale;
    for (const Pair& pair : {Pair{"WindowText on Window", QPalette::WindowText, QPalette::Window},
                             Pair{"Text on Base", QPalette::Text, QPalette::Base},
                             Pair{"Text on AlternateBase", QPalette::Text, QPalette::AlternateBase},
                             Pair{"ButtonText on Button", QPalette::ButtonText, QPalette::Button},
                             Pair{"HighlightedText on Highlight", QPalette::HighlightedText, QPalette::Highlight},
                             Pair{"PlaceholderText on Window", QPalette::PlaceholderText, QPalette::Window},
                             Pair{"ToolTipText on ToolTipBase", QPalette::ToolTipText, QPalette::ToolTipBase}}) {
        const QColor ground = palette.color(pair.ground);
        const double contrast = look::contrast(over(palette.color(pair.ink), ground), ground);
        if (contrast < kReadable)
            pale << QStringLiteral("%1: %2").arg(QString::fromLatin1(pair.name)).arg(contrast);
    }
    return pale;
}

} // namespace tallyhoop::qt
