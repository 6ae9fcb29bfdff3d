// tests/e2e/inspector/describe.cpp - reads what a person sees of the program's widgets, without changing them.
#include "describe.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>

namespace inspector {
namespace {

QJsonArray onScreen(const QWidget* widget, const QRect& rect)
{
    const QPoint corner = widget->mapToGlobal(rect.topLeft());
    return {corner.x(), corner.y(), rect.width(), rect.height()};
}

QString textOf(const QWidget* widget)
{
    if (const auto* plain = qobject_cast<const QPlainTextEdit*>(widget)) {
        return plain->toPlainText();
    }
    if (const auto* rich = qobject_cast<const QTextEdit*>(widget)) {
        return rich->toPlainText();
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        return combo->currentText();
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
        return group->title();
    }
    return widget->property("text").toString(); // labels, buttons, line edits, and widgets of the program's own
}

/// A tip as it is read, whether it is written as plain or as marked-up text.
QString asRead(const QString& tip)
{
    if (!Qt::mightBeRichText(tip)) {
        return tip;
    }
    QTextDocument document;
    document.setHtml(tip);
    return document.toPlainText();
}

QString nameOf(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::NoIcon:
        return QStringLiteral("none");
    case QMessageBox::Information:
        return QStringLiteral("information");
    case QMessageBox::Warning:
        return QStringLiteral("warning");
    case QMessageBox::Critical:
        return QStringLiteral("critical");
    case QMessageBox::Question:
        return QStringLiteral("question");
    }
    return {};
}

QJsonObject describe(const QAction* action)
{
    return {{QStringLiteral("found"), true},
            {QStringLiteral("name"), action->objectName()},
            {QStringLiteral("text"), action->text()},
            {QStringLiteral("enabled"), action->isEnabled()},
            {QStringLiteral("visible"), action->isVisible()},
            {QStringLiteral("checked"), action->isChecked()},
            {QStringLiteral("shortcut"), action->shortcut().toString(QKeySequence::PortableText)},
            {QStringLiteral("rect"), QJsonArray{}}};
}

/// Calls use(container, action) for each entry of each menu bar and menu of the program.
template <class Use>
void forEachAction(Use use)
{
    for (QWidget* widget : QApplication::allWidgets()) {
        if (qobject_cast<QMenuBar*>(widget) != nullptr || qobject_cast<QMenu*>(widget) != nullptr) {
            for (QAction* action : widget->actions()) {
                use(widget, action);
            }
        }
    }
}

QRect rectOf(const QWidget* container, QAction* action)
{
    if (const auto* bar = qobject_cast<const QMenuBar*>(container)) {
        return bar->actionGeometry(action);
    }
    return qobject_cast<const QMenu*>(container)->actionGeometry(action);
}

/// @returns whether a press on the middle of the widget would reach it. A window that has been shown but has not had
/// the focus yet may not be on the screen yet: another window is at its place. And windows beside a modal one get no
/// presses.
bool isReachable(const QWidget* widget)
{
    const QWidget* window = widget->window();
    if (!widget->isVisible()) {
        return false;
    }
    if (window->windowType() == Qt::Popup) { // never gets the focus, but gets every press
        return true;
    }
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidget* owner = window;
    while (modal != nullptr && owner != nullptr && owner != modal) {
        owner = owner->parentWidget() != nullptr ? owner->parentWidget()->window() : nullptr;
    }
    return owner != nullptr && (window->isActiveWindow() || window->property(kHasArrived).toBool());
}

} // namespace

QWidget* findWidget(const QString& name)
{
    QWidget* best = nullptr;
    int bestRank = -1;
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() != name) {
            continue;
        }
        const int rank = (widget->isVisible() ? 2 : 0) + (widget->window()->isActiveWindow() ? 1 : 0);
        if (rank > bestRank) {
            best = widget;
            bestRank = rank;
        }
    }
    return best;
}

QJsonObject describeWidget(QWidget* widget)
{
    QJsonObject description{{QStringLiteral("found"), true},
                            {QStringLiteral("class"), QString::fromLatin1(widget->metaObject()->className())},
                            {QStringLiteral("rect"), onScreen(widget, widget->rect())},
                            {QStringLiteral("visible"), widget->isVisible()},
                            {QStringLiteral("reachable"), isReachable(widget)},
                            {QStringLiteral("enabled"), widget->isEnabled()},
                            {QStringLiteral("focus"), widget->hasFocus()},
                            {QStringLiteral("tabStop"), (widget->focusPolicy() & Qt::TabFocus) != 0},
                            {QStringLiteral("text"), textOf(widget)},
                            {QStringLiteral("toolTip"), asRead(widget->toolTip())},
                            {QStringLiteral("accessibleName"), widget->accessibleName()},
                            {QStringLiteral("accessibleDescription"), widget->accessibleDescription()},
                            {QStringLiteral("colour"), widget->palette().color(widget->foregroundRole()).name()},
                            {QStringLiteral("background"), widget->palette().color(widget->backgroundRole()).name()}};
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        description.insert(QStringLiteral("checked"), button->isChecked());
    }
    if (const auto* push = qobject_cast<const QPushButton*>(widget)) {
        description.insert(QStringLiteral("default"), push->isDefault());
    }
    if (const auto* pages = qobject_cast<const QTextEdit*>(widget)) {
        const QRect view = pages->viewport()->rect();
        const QTextCursor top = pages->cursorForPosition(QPoint(view.width() / 4, pages->fontMetrics().height()));
        description.insert(QStringLiteral("topLine"), top.block().text());
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) {
        description.insert(QStringLiteral("readOnly"), edit->isReadOnly());
        description.insert(QStringLiteral("caret"), edit->cursorPosition());
        description.insert(QStringLiteral("selected"), edit->selectedText());
    }
    return description;
}

QJsonArray describeWindows()
{
    QJsonArray windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            windows.append(
                QJsonObject{{QStringLiteral("name"), window->objectName()},
                            {QStringLiteral("class"), QString::fromLatin1(window->metaObject()->className())},
                            {QStringLiteral("title"), window->windowTitle()},
                            {QStringLiteral("modal"), window->isModal()},
                            {QStringLiteral("active"), window->isActiveWindow()},
                            {QStringLiteral("reachable"), isReachable(window)},
                            {QStringLiteral("modified"), window->isWindowModified()},
                            {QStringLiteral("rect"), onScreen(window, window->rect())}});
        }
    }
    return windows;
}

QJsonObject describeModal()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || !modal->isVisible()) {
        return {};
    }
    QJsonArray buttons;
    for (const QPushButton* button : modal->findChildren<QPushButton*>()) {
        if (button->isVisible()) {
            buttons.append(QJsonObject{{QStringLiteral("text"), button->text()},
                                       {QStringLiteral("enabled"), button->isEnabled()},
                                       {QStringLiteral("default"), button->isDefault()},
                                       {QStringLiteral("rect"), onScreen(button, button->rect())}});
        }
    }
    QJsonObject description{{QStringLiteral("class"), QString::fromLatin1(modal->metaObject()->className())},
                            {QStringLiteral("name"), modal->objectName()},
                            {QStringLiteral("title"), modal->windowTitle()},
                            {QStringLiteral("active"), modal->isActiveWindow()},
                            {QStringLiteral("rect"), onScreen(modal, modal->rect())},
                            {QStringLiteral("buttons"), buttons}};
    if (const auto* box = qobject_cast<const QMessageBox*>(modal)) {
        description.insert(QStringLiteral("text"), box->text());
        description.insert(QStringLiteral("icon"), nameOf(box->icon()));
    }
    return description;
}

QJsonObject describeAction(const QString& name)
{
    QJsonObject description{{QStringLiteral("found"), false}};
    forEachAction([&](QWidget* container, QAction* action) {
        if (action->objectName() != name && !(action->menu() != nullptr && action->menu()->objectName() == name)) {
            return;
        }
        const bool clickable = isReachable(container) && action->isVisible();
        if (!description.value(QStringLiteral("found")).toBool() || clickable) {
            description = describe(action);
        }
        if (clickable) {
            description.insert(QStringLiteral("rect"), onScreen(container, rectOf(container, action)));
        }
    });
    return description;
}

QJsonArray actionNames()
{
    QStringList names;
    forEachAction([&names](QWidget*, QAction* action) {
        if (!action->objectName().isEmpty() && !names.contains(action->objectName())) {
            names.append(action->objectName());
        }
    });
    return QJsonArray::fromStringList(names);
}

} // namespace inspector
