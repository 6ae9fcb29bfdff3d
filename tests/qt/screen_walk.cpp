// tests/qt/screen_walk.cpp - checks what a screen reader gets of a window: names, roles and descriptions.
#include "qt/screen_walk.h"

#include "qt/widgets/picture_view.h"
#include "qt/widgets/slot_label.h"

#include <QAccessible>
#include <QLineEdit>
#include <QSet>
#include <QToolButton>
#include <algorithm>
#include <array>

namespace tallyhoop::qt {

namespace {

QAccessibleInterface* listener(const QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
}

QString spoken(const QWidget& widget, QAccessible::Text kind)
{
    QAccessibleInterface* seen = listener(widget);
    return seen ? seen->text(kind).trimmed() : QString{};
}

bool saysNothing(const QWidget& widget)
{
    const bool onlyText = qobject_cast<const QLabel*>(&widget) || !widget.focusPolicy();
    return onlyText && paintedText(widget).isEmpty();
}

/// @returns whether a person operates or reads this widget, as opposed to one that only holds others
bool isControl(const QWidget& widget)
{
    static constexpr std::array kKinds{"QAbstractButton",  "QLineEdit", "QAbstractItemView", "QComboBox",
                                       "QAbstractSpinBox", "QTextEdit", "QPlainTextEdit",    "QAbstractSlider",
                                       "QTabBar",          "QLabel"};
    return !isInnerPart(widget) && std::ranges::any_of(kKinds, [&](const char* kind) { return widget.inherits(kind); });
}

/// @returns the role that a widget of this class has to have; NoRole = nothing is expected of it
QAccessible::Role roleOfClass(const QWidget& widget)
{
    struct Expected {
        const char* kind;
        QAccessible::Role role;
    };
    // The more special kinds first.
    static constexpr std::array kRoles{Expected{"QRadioButton", QAccessible::RadioButton},
                                       Expected{"QCheckBox", QAccessible::CheckBox},
                                       Expected{"QPushButton", QAccessible::Button},
                                       Expected{"QLineEdit", QAccessible::EditableText},
                                       Expected{"QPlainTextEdit", QAccessible::EditableText},
                                       Expected{"QTextBrowser", QAccessible::StaticText}, // not to be edited
                                       Expected{"QTextEdit", QAccessible::EditableText},
                                       Expected{"QTreeView", QAccessible::Tree},
                                       Expected{"QListView", QAccessible::List},
                                       Expected{"QTableView", QAccessible::Table},
                                       Expected{"QGroupBox", QAccessible::Grouping},
                                       Expected{"QComboBox", QAccessible::ComboBox},
                                       Expected{"QAbstractSpinBox", QAccessible::SpinBox},
                                       Expected{"QTabBar", QAccessible::PageTabList},
                                       Expected{"QMenuBar", QAccessible::MenuBar},
                                       Expected{"QToolBar", QAccessible::ToolBar},
                                       Expected{"QStatusBar", QAccessible::StatusBar}};
    if (const auto* slot = qobject_cast<const SlotLabel*>(&widget))
        return slot->isPressable() ? QAccessible::Button : QAccessible::StaticText;
    if (qobject_cast<const PictureView*>(&widget))
        return QAccessible::Graphic;
    if (qobject_cast<const QToolButton*>(&widget))
        return qobject_cast<const QToolButton*>(&widget)->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    const auto* found = std::ranges::find_if(kRoles, [&](const Expected& one) { return widget.inherits(one.kind); });
    return found == kRoles.end() ? QAccessible::NoRole : found->role;
}

/// All descendants that a screen reader reaches, one step at a time.
void reach(QAccessibleInterface* from, QSet<const QObject*>& reached)
{
    if (!from || !from->object() || reached.contains(from->object()))
        return;
    reached.insert(from->object());
    if (from->tableInterface()) // its cells are read one by one, and there may be thousands
        return;
    for (int child = 0; child < from->childCount(); ++child)
        reach(from->child(child), reached);
}

/// A note shown in a list instead of its rows: a screen reader reads only the list's description, which has to have it.
bool saidByItsList(const QWidget& widget)
{
    const QWidget* list = widget.parentWidget() ? widget.parentWidget()->parentWidget() : nullptr;
    return list && list->inherits("QAbstractItemView") &&
           spoken(*list, QAccessible::Description).startsWith(paintedText(widget));
}

/// @returns whether a control does more than its kind suggests
bool hasWaysOfItsOwn(const ui::Control& control, const QWidget& widget)
{
    if (const auto* list = dynamic_cast<const ui::ListBox*>(&control))
        return list->doubleClicked || list->chosen || list->pressed;
    if (const auto* grid = dynamic_cast<const ui::Grid*>(&control))
        return static_cast<bool>(grid->cellPressed);
    const auto* slot = qobject_cast<const SlotLabel*>(&widget);
    return slot && slot->part() != SlotLabel::Part::Marker;
}

} // namespace

bool isInnerPart(const QWidget& widget)
{
    const QWidget* above = widget.parentWidget();
    return widget.objectName().startsWith(QStringLiteral("qt_")) || widget.inherits("QScrollBar") ||
           (above && (above->inherits("QAbstractSpinBox") || above->inherits("QComboBox") ||
                      above->inherits("QLineEdit") || above->inherits("QTabBar"))) ||
           (above && above->inherits("QAbstractItemView"));
}

QString walkedName(const QWidget& widget)
{
    return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : widget.objectName();
}

QString paintedText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* tool = qobject_cast<const QToolButton*>(&widget))
        return tool->toolButtonStyle() == Qt::ToolButtonIconOnly ? QString{} : tool->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->text();
    return {};
}

ScreenWalk::ScreenWalk(QWidget& window)
    : m_window{window}, m_page{qobject_cast<Page*>(&window)}, m_picture{window.grab().toImage()}
{
}

template <class Use>
void ScreenWalk::forEachControl(Use use) const
{
    for (QWidget* widget : m_window.findChildren<QWidget*>())
        if (widget->isVisible() && widget->window() == m_window.window() && isControl(*widget))
            use(*widget);
}

QStringList ScreenWalk::troubles() const
{
    QStringList all;
    const auto note = [&all](const char* heading, const QStringList& found) {
        for (const QString& one : found)
            all << QString::fromLatin1(heading) + one;
    };
    note("name: ", namelessControls());
    note("role: ", wrongRoles());
    note("description: ", undescribedControls());
    note("mnemonic: ", mnemonicTroubles());
    note("clipped: ", clippedTexts());
    note("pale: ", paleTexts());
    return all;
}

QStringList ScreenWalk::namelessControls() const
{
    QStringList nameless;
    QSet<const QObject*> reached;
    reach(listener(m_window), reached);
    if (m_window.isWindow() && m_window.windowTitle().isEmpty())
        nameless << QStringLiteral("the window itself");
    forEachControl([&](const QWidget& widget) {
        if (saysNothing(widget))
            return;
        if (spoken(widget, QAccessible::Name).isEmpty())
            nameless << walkedName(widget);
        else if (!reached.contains(&widget) && !saidByItsList(widget))
            nameless << walkedName(widget) + QStringLiteral(" cannot be reached");
    });
    return nameless;
}

QStringList ScreenWalk::wrongRoles() const
{
    QStringList wrong;
    const auto check = [&wrong](const QWidget& widget, QAccessible::Role expected) {
        QAccessibleInterface* seen = listener(widget);
        if (!seen || (expected != QAccessible::NoRole && seen->role() != expected))
            wrong << QStringLiteral("%1 has role %2").arg(walkedName(widget)).arg(seen ? seen->role() : -1);
    };
    for (const QWidget* widget : m_window.findChildren<QWidget*>())
        if (widget->isVisible() && !isInnerPart(*widget))
            check(*widget, roleOfClass(*widget));
    if (m_window.inherits("QMessageBox"))
        check(m_window, QAccessible::AlertMessage);
    else if (m_window.inherits("QDialog"))
        check(m_window, QAccessible::Dialog);
    if (m_page) // every control of the model is one of the kinds above or a text
        for (const ui::Control* control : m_page->screen().controls())
            if (const QWidget* widget = m_page->widgetOf(*control);
                widget && widget->isVisible() && roleOfClass(*widget) == QAccessible::NoRole)
                check(*widget, QAccessible::StaticText);
    return wrong;
}

QStringList ScreenWalk::undescribedControls() const
{
    QStringList undescribed;
    forEachControl([&](const QWidget& widget) {
        const QString description = spoken(widget, QAccessible::Description);
        if (!widget.toolTip().isEmpty() && description.isEmpty())
            undescribed << walkedName(widget);
        else if (Qt::mightBeRichText(description))
            undescribed << walkedName(widget) + QStringLiteral(" speaks markup");
    });
    if (!m_page)
        return undescribed;
    for (const ui::Control* control : m_page->screen().controls()) {
        const QWidget* widget = m_page->widgetOf(*control);
        if (widget && widget->isVisible() && hasWaysOfItsOwn(*control, *widget) && control->explanation.empty())
            undescribed << walkedName(*widget);
    }
    return undescribed;
}

} // namespace tallyhoop::qt
