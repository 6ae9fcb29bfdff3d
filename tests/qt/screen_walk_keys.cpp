// tests/qt/screen_walk_keys.cpp - checks a window for the keyboard: what each mnemonic means.
#include "qt/screen_walk.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolButton>

namespace tallyhoop::qt {

namespace {

/// Notes what a mnemonic means; two meanings of one letter are a trouble.
class Letters
{
public:
    /// @param needed a missing mnemonic is a trouble too
    void add(const QString& caption, const QString& name, bool needed = true)
    {
        const QKeySequence letter = QKeySequence::mnemonic(caption);
        if (letter.isEmpty() && needed)
            troubles << name + QStringLiteral(" has no mnemonic: ") + caption;
        if (letter.isEmpty())
            return;
        if (const QString before = m_taken.value(letter.toString()); !before.isEmpty())
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

bool pressedByEnterOrEscape(const QAbstractButton& button)
{
    const auto* box = qobject_cast<const QDialogButtonBox*>(button.parentWidget());
    if (!box)
        return false;
    const auto role = box->buttonRole(const_cast<QAbstractButton*>(&button));
    return role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::RejectRole;
}

/// Only buttons that show a text show a mnemonic.
bool needsMnemonic(const QAbstractButton& button)
{
    if (const auto* tool = qobject_cast<const QToolButton*>(&button))
        return tool->toolButtonStyle() != Qt::ToolButtonIconOnly && !tool->text().isEmpty();
    return button.inherits("QPushButton") && !pressedByEnterOrEscape(button);
}

} // namespace

QStringList ScreenWalk::mnemonicTroubles() const
{
    Letters letters;
    QStringList troubles;
    if (const auto* bar = m_window.findChild<QMenuBar*>())
        for (const QAction* action : bar->actions()) {
            letters.add(action->text(), action->objectName());
            if (action->menu())
                walkMenu(*action->menu(), troubles);
        }
    for (const QWidget* widget : m_window.findChildren<QWidget*>()) {
        const QString name = walkedName(*widget);
        if (widget->window() != m_window.window() || isInnerPart(*widget) || widget->inherits("QMenuBar"))
            continue;
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget); button && !widget->inherits("SlotLabel"))
            letters.add(paintedText(*button), name, needsMnemonic(*button));
        else if (const auto* label = qobject_cast<const QLabel*>(widget); label && label->buddy())
            letters.add(label->text(), name, false);
        else if (const auto* group = qobject_cast<const QGroupBox*>(widget))
            letters.add(group->title(), name, false);
        else if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
            for (int tab = 0; tab < tabs->count(); ++tab)
                letters.add(tabs->tabText(tab), QStringLiteral("tab ") + tabs->tabText(tab), false);
    }
    return troubles + letters.troubles;
}

} // namespace tallyhoop::qt
