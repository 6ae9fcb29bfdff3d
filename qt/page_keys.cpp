// qt/page_keys.cpp - passes keys, typed and pasted text from a widget to the screen's rules.
#include "qt/page.h"
#include "qt/text.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTableView>
#include <utility>

namespace tallyhoop::qt {

namespace {

ui::Key keyOf(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return ui::Key::Enter;
    case Qt::Key_Backspace:
        return ui::Key::Backspace;
    case Qt::Key_Delete:
        return ui::Key::Delete;
    case Qt::Key_Escape:
        return ui::Key::Escape;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return ui::Key::Tab;
    case Qt::Key_Up:
        return ui::Key::Up;
    case Qt::Key_Down:
        return ui::Key::Down;
    case Qt::Key_Left:
        return ui::Key::Left;
    case Qt::Key_Right:
        return ui::Key::Right;
    case Qt::Key_PageUp:
        return ui::Key::PageUp;
    case Qt::Key_PageDown:
        return ui::Key::PageDown;
    case Qt::Key_Home:
        return ui::Key::Home;
    case Qt::Key_End:
        return ui::Key::End;
    default:
        return ui::Key::Other;
    }
}

bool isPrintable(const QString& text)
{
    return !text.isEmpty() && text.at(0).unicode() >= 0x20 && text.at(0).unicode() != 0x7f;
}

// A key may bring several characters, and a letter with its accent may come in two pieces.
std::vector<ui::KeyPress> pressesOf(const QKeyEvent& event)
{
    ui::KeyPress press{.key = keyOf(event.key())};
    press.control = event.modifiers().testFlag(Qt::ControlModifier) || event.modifiers().testFlag(Qt::MetaModifier);
    press.alt = event.modifiers().testFlag(Qt::AltModifier);
    if (press.key != ui::Key::Other)
        return {press};
    if (isPrintable(event.text())) {
        if (press.control && press.alt) // AltGr on some keyboards: text, not a shortcut
            press.control = press.alt = false;
        std::vector<ui::KeyPress> presses;
        press.key = ui::Key::Character;
        for (const char character : fromQString(event.text())) {
            press.character = character;
            presses.push_back(press);
        }
        return presses;
    }
    if (press.control && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) {
        press.key = ui::Key::Character;
        press.character = static_cast<char>('a' + event.key() - Qt::Key_A);
    }
    return {press};
}

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr || key == Qt::Key_CapsLock || key == Qt::Key_NumLock;
}

/// @returns whether a key would undo or redo something in the box itself; Qt lets a box take the key in any case
bool isForBox(const QLineEdit& edit, QKeyEvent& key)
{
    if (key.matches(QKeySequence::Undo))
        return edit.isUndoAvailable(); // never in a locked box
    return edit.isRedoAvailable();
}

bool isNavigation(int key)
{
    const ui::Key meaning = keyOf(key);
    return meaning == ui::Key::Up || meaning == ui::Key::Down || meaning == ui::Key::PageUp ||
           meaning == ui::Key::PageDown;
}

} // namespace

bool Page::eventFilter(QObject* watched, QEvent* event)
{
    const auto at = m_controls.find(qobject_cast<QWidget*>(watched));
    if (at == m_controls.end())
        return QMainWindow::eventFilter(watched, event);
    ui::Control& control = *at->second;
    pointerCameOrWent(control, *event);
    if (event->type() == QEvent::KeyPress && filterKey(control, static_cast<QKeyEvent&>(*event)))
        return true;
    if (event->type() == QEvent::InputMethod && filterInputMethod(control, *event))
        return true;
    auto* box = dynamic_cast<ui::TextBox*>(&control);
    auto* edit = qobject_cast<QLineEdit*>(watched);
    if (event->type() == QEvent::MouseButtonPress && !edit)
        m_typedInto = nullptr;
    if (edit && event->type() == QEvent::ShortcutOverride && leavesToMenu(*edit, static_cast<QKeyEvent&>(*event)))
        return true;
    if (edit)
        keepSelectionThroughClick(*edit, *event);
    if (edit && m_composing.edit == edit && event->type() == QEvent::FocusOut)
        endComposing();
    if (box && edit && !edit->isReadOnly() && filterPaste(*box, *edit, *event))
        return true;
    return QMainWindow::eventFilter(watched, event);
}

/// Undo and redo belong to the box while typing into it was the last thing done, otherwise to the screen's menu: what
/// was done last is undone first. Where the menu has no such entry, the key still reaches the box.
bool Page::leavesToMenu(const QLineEdit& edit, QKeyEvent& key) const
{
    if (!key.matches(QKeySequence::Undo) && !key.matches(QKeySequence::Redo))
        return false;
    if (m_typedInto == &edit && isForBox(edit, key))
        return false;
    key.ignore();
    return true;
}

bool Page::pressed(ui::Control& control, const ui::KeyPress& press)
{
    bool consumed = false;
    run([&] { consumed = m_screen.keyPressed(control, press); });
    return consumed;
}

bool Page::filterKey(ui::Control& control, QKeyEvent& event)
{
    if (isModifier(event.key()))
        return false;
    bool consumed = false;
    for (const ui::KeyPress& press : pressesOf(event))
        consumed = pressed(control, press) || consumed;
    if (consumed)
        return true;

    // What the mouse does on a grid, with the keyboard: press the current cell, move its column.
    auto* grid = dynamic_cast<ui::Grid*>(&control);
    auto* table = qobject_cast<QTableView*>(widgetOf(control));
    const bool moveColumn = event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    if (grid && table && filterGridKey(*grid, *table, event.key(), moveColumn))
        return true;

    auto* list = qobject_cast<QListView*>(widgetOf(control));
    if (list && isNavigation(event.key()) && !list->selectionModel()->hasSelection() && list->model()->rowCount() > 0) {
        // Qt makes the first row current, invisibly, when a list gets the focus; the first key would skip that row.
        list->setCurrentIndex(list->model()->index(0, 0));
        return true;
    }
    return false;
}

bool Page::filterInputMethod(ui::Control& control, QEvent& event)
{
    const auto& composition = static_cast<QInputMethodEvent&>(event);
    const QString commit = composition.commitString();
    if (auto* edit = qobject_cast<QLineEdit*>(widgetOf(control))) {
        if (m_composing.edit == edit && (!commit.isEmpty() || composition.preeditString().isEmpty()))
            endComposing();
        else if (m_composing.edit != edit && commit.isEmpty() && !composition.preeditString().isEmpty())
            m_composing = {edit, edit->text(), edit->selectionStart(), edit->selectionLength()};
    }
    if (commit.isEmpty())
        return false;
    std::string kept;
    bool consumed = false;
    for (const char character : fromQString(commit)) {
        if (pressed(control, {.key = ui::Key::Character, .character = character})) {
            consumed = true;
            continue;
        }
        kept += character;
    }
    if (!consumed)
        return false;
    // The rule has handled it; the widget only gets the end of the composition and the characters that were left.
    auto* widget = widgetOf(control);
    widget->removeEventFilter(this);
    QInputMethodEvent rest;
    rest.setCommitString(toQString(kept));
    QApplication::sendEvent(widget, &rest);
    widget->installEventFilter(this);
    return true;
}

/// A box drops its selected text as soon as a composition begins in it, before any rule knows what will be typed. This
/// restores the box as it was, so that the rules see the same as when a key brings the character at once.
void Page::endComposing()
{
    const Composing was = std::exchange(m_composing, {});
    if (was.selectionStart < 0 || was.edit->text() == was.text)
        return;
    was.edit->removeEventFilter(this);
    QInputMethodEvent nothing;
    QApplication::sendEvent(was.edit, &nothing);
    was.edit->installEventFilter(this);
    was.edit->setText(was.text);
    was.edit->setSelection(was.selectionStart, was.selectionLength);
}

bool Page::filterPaste(ui::TextBox& box, QLineEdit& edit, QEvent& event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
        return static_cast<QKeyEvent&>(event).matches(QKeySequence::Paste) &&
               pasteInto(box, edit, QApplication::clipboard()->text());
    case QEvent::MouseButtonRelease:
        return static_cast<QMouseEvent&>(event).button() == Qt::MiddleButton &&
               QApplication::clipboard()->supportsSelection() &&
               pasteInto(box, edit, QApplication::clipboard()->text(QClipboard::Selection));
    case QEvent::Drop: {
        auto& drop = static_cast<QDropEvent&>(event);
        drop.acceptProposedAction();
        return pasteInto(box, edit, drop.mimeData()->text());
    }
    case QEvent::ContextMenu:
        return filterContextMenu(box, edit, event);
    default:
        return false;
    }
}

bool Page::filterContextMenu(ui::TextBox& box, QLineEdit& edit, QEvent& event)
{
    QMenu* menu = edit.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (auto* paste = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
        paste->disconnect();
        connect(paste, &QAction::triggered, this,
                [this, &box, &edit] { pasteInto(box, edit, QApplication::clipboard()->text()); });
    }
    menu->popup(static_cast<QContextMenuEvent&>(event).globalPos());
    return true;
}

bool Page::pasteInto(ui::TextBox& box, QLineEdit& edit, const QString& text)
{
    bool consumed = false;
    run([&] { consumed = m_screen.pasted(box, fromLines(text)); });
    if (consumed)
        return true;
    QString line = toLines(fromLines(text));
    while (line.endsWith(QLatin1Char{'\n'}))
        line.chop(1);
    line.replace(QLatin1Char{'\n'}, QLatin1Char{' '});
    edit.insert(line);
    return true;
}

void Page::keyPressEvent(QKeyEvent* event)
{
    const ui::Key key = keyOf(event->key());
    if (key == ui::Key::Escape)
        run([this] { m_screen.closeRequested(); });
    else if (event->key() == Qt::Key_F1 && m_desk.helpWanted)
        run([this] { m_desk.helpWanted(m_screen.helpTopic()); });
    else if (key != ui::Key::Enter || !pressDefault())
        QMainWindow::keyPressEvent(event);
}

bool Page::pressDefault()
{
    auto* pressed = dynamic_cast<ui::Command*>(focusedControl());
    for (ui::Control* control : m_screen.controls()) {
        auto* command = dynamic_cast<ui::Command*>(control);
        if (!pressed && command && command->isDefault && command->enabled && command->visible)
            pressed = command;
    }
    if (!pressed)
        return false;
    run([pressed] { pressed->click(); });
    return true;
}

} // namespace tallyhoop::qt
