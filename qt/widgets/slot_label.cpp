// qt/widgets/slot_label.cpp - paints background, emphasis, focus, and a text made narrower before it is cut.
#include "qt/widgets/slot_label.h"

#include "qt/look.h"
#include "qt/text.h"

#include <QAccessibleWidget>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <map>
#include <utility>

namespace tallyhoop::qt {

namespace {

constexpr int kInset = 4;
constexpr int kNarrowest = 70; ///< percent of a letter's width; names are still easy to read
const QColor kOutline{150, 155, 168};
const QColor kPathOutline{240, 150, 20};
const QColor kLandOutline{30, 150, 90};

/// Not all of them can be pressed, though their class is a button.
QAccessibleInterface* speakForShown(const QString&, QObject* object)
{
    auto* const label = qobject_cast<SlotLabel*>(object);
    const bool isText = label && !label->isPressable();
    return isText ? new QAccessibleWidget{label, QAccessible::StaticText} : nullptr;
}

/// Tests and assistive tools read the colours of text and background from the palette. There are as many palettes as
/// kinds of marks, shared by all places: one for each place would take 0.2 MiB more and longer to make.
const QPalette& paletteOf(const QColor& colour, const QColor& background)
{
    static std::map<std::pair<QRgb, QRgb>, QPalette> made;
    const auto [at, isNew] = made.try_emplace({colour.rgba(), background.rgba()});
    if (!isNew)
        return at->second;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
            at->second.setColor(group, role, colour);
        for (const auto role : {QPalette::Window, QPalette::Button})
            at->second.setColor(group, role, background);
    }
    return at->second;
}

} // namespace

SlotLabel::SlotLabel(Part part, QWidget* parent) : QAbstractButton{parent}, m_part{part}
{
    static const bool kInstalled = (QAccessible::installFactory(&speakForShown), true);
    static_cast<void>(kInstalled);
    setMouseTracking(true);
    // A click picks a team and leaves the focus where it is: in the field that is being filled in.
    setFocusPolicy(part == Part::Marker ? Qt::NoFocus : Qt::TabFocus);
}

void SlotLabel::show(const QString& text, const QColor& colour, const QColor& background)
{
    if (text != this->text()) {
        setText(text);
        setShortcut({}); // an ampersand in a name is no mnemonic
    }
    if (colour == m_colour && background == m_background)
        return; // the board shows all its places after every command, and a palette takes longer than a text
    m_colour = colour;
    m_background = background;
    setPalette(paletteOf(colour, background));
    update();
}

void SlotLabel::setEmphasis(Emphasis emphasis)
{
    if (m_emphasis == emphasis)
        return;
    m_emphasis = emphasis;
    update();
}

QSize SlotLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2 * kInset, fontMetrics().height()};
}

QRect SlotLabel::textPlace() const { return m_part == Part::Marker ? rect() : rect().adjusted(kInset, 0, -1, 0); }

/// A marker continues its place: both look like one box, without the edges between them.
QRect SlotLabel::inside(int edge) const
{
    const int left = m_part == Part::Marker ? 0 : edge;
    const int right = m_part == Part::Winner ? 0 : edge;
    return rect().adjusted(left, edge, -right, -edge);
}

bool SlotLabel::isElided() const { return QFontMetrics{fittingFont()}.horizontalAdvance(text()) > textPlace().width(); }

/// @returns the font, in letters as narrow as the name needs down to kNarrowest: a whole name is better than a cut one
QFont SlotLabel::fittingFont() const
{
    QFont fitting = font();
    const int room = textPlace().width();
    for (int stretch = 100; stretch > kNarrowest && QFontMetrics{fitting}.horizontalAdvance(text()) >= room;) {
        stretch -= 10; // few steps, because each is a font of its own
        fitting.setStretch(stretch);
    }
    return fitting;
}

void SlotLabel::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    QColor outline = kOutline;
    if (m_emphasis == Emphasis::OnPath)
        outline = kPathOutline;
    else if (m_emphasis == Emphasis::MayLand)
        outline = kLandOutline;
    // Filled areas, not lines: with fractional scaling, lines at the edge can disappear.
    painter.fillRect(rect(), outline);
    painter.fillRect(inside(m_emphasis == Emphasis::None ? 1 : 2), m_background);
    painter.setPen(m_colour);
    const QFont fitting = fittingFont();
    const QString cut = QFontMetrics{fitting}.elidedText(text(), Qt::ElideRight, textPlace().width());
    painter.setFont(fitting);
    const Qt::Alignment alignment = m_part == Part::Marker ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignLeft;
    painter.drawText(textPlace(), static_cast<int>(alignment) | Qt::TextSingleLine, cut);
    if (isReachedByKeys()) {
        painter.setPen(QPen{m_colour, 1, Qt::DashLine});
        painter.drawRect(rect().adjusted(2, 1, -2, -3));
    }
}

bool SlotLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): a disabled button would keep presses from the canvas
        return isEnabled() ? QAbstractButton::event(event) : QWidget::event(event);
    if (isElided())
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), plainToolTip(text()), this);
    else
        QToolTip::hideText();
    return true;
}

void SlotLabel::focusInEvent(QFocusEvent* event)
{
    m_reachedByKeys = event->reason() != Qt::MouseFocusReason;
    QAbstractButton::focusInEvent(event);
}

void SlotLabel::mousePressEvent(QMouseEvent* event) { event->ignore(); }

void SlotLabel::mouseMoveEvent(QMouseEvent* event) { event->ignore(); }

void SlotLabel::mouseReleaseEvent(QMouseEvent* event) { event->ignore(); }

void SlotLabel::keyPressEvent(QKeyEvent* event) { event->ignore(); }

void SlotLabel::keyReleaseEvent(QKeyEvent* event) { event->ignore(); }

} // namespace tallyhoop::qt
