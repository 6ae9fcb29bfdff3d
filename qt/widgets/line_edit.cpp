// qt/widgets/line_edit.cpp - what is typed, pasted, dropped, composed and undone in a box of one line.
#include "qt/widgets/line_edit.h"

#include "qt/text.h"
#include "qt/widgets/input_method.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <utility>

namespace tallyhoop::qt {

LineEdit::LineEdit(LastTyped& lastTyped, QWidget* parent) : QLineEdit{parent}, m_lastTyped{lastTyped}
{
    connect(this, &QLineEdit::textEdited, this, &LineEdit::edited);
}

void LineEdit::edited()
{
    if (m_composing.isUnderWay)
        return; // only the selection was dropped, to make room for the composition
    m_lastTyped.box = this;
    showAsSaved();
    if (changed)
        changed();
}

void LineEdit::showAsSaved()
{
    const QString saved = toQString(fromQString(text()));
    if (saved == text())
        return;
    const auto caret = toQString(fromQString(text().left(cursorPosition()))).size();
    setText(saved);
    setCursorPosition(static_cast<int>(caret));
}

/// Undo and redo belong to the box while typing into it was the last thing done, otherwise to the window's menu. Where
/// the menu has no such entry, the key still reaches the box.
bool LineEdit::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QLineEdit::event(event);
    auto& key = static_cast<QKeyEvent&>(*event);
    const bool isUndoOrRedo = key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
    if (!isUndoOrRedo || (m_lastTyped.box == this && isUndone(key)))
        return QLineEdit::event(event);
    key.ignore();
    return true;
}

/// @returns whether a key would undo or redo something in the box itself; Qt lets a box take the key in any case
bool LineEdit::isUndone(QKeyEvent& key) const
{
    if (key.matches(QKeySequence::Undo))
        return isUndoAvailable(); // never in a locked box
    return isRedoAvailable();
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste))
        paste();
    else
        QLineEdit::keyPressEvent(event);
}

// A screen may select the text of a box that gets the focus, so that typing replaces it. The click that moved the focus
// would place the caret and clear that selection; only the next click may do so, and not even that one in a box that
// has its text selected by every click.

void LineEdit::focusInEvent(QFocusEvent* event)
{
    m_clickedInto = event->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(event);
}

void LineEdit::mousePressEvent(QMouseEvent* event)
{
    // A box that loses the focus drops its selection: what is selected now was selected for this focus.
    const bool isSelectedForFocus = std::exchange(m_clickedInto, false) && hasSelectedText();
    m_selectsAll = (isSelectedForFocus || selectedByClick) && event->button() == Qt::LeftButton;
    QLineEdit::mousePressEvent(event);
}

void LineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    if (std::exchange(m_selectsAll, false) && !hasSelectedText()) // else the mouse has selected a part
        QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
    if (event->button() == Qt::MiddleButton && !isReadOnly() && QApplication::clipboard()->supportsSelection())
        take(QApplication::clipboard()->text(QClipboard::Selection));
    else
        QLineEdit::mouseReleaseEvent(event);
}

void LineEdit::dropEvent(QDropEvent* event)
{
    if (isReadOnly()) {
        QLineEdit::dropEvent(event);
        return;
    }
    event->acceptProposedAction();
    take(event->mimeData()->text());
}

void LineEdit::paste()
{
    if (!isReadOnly())
        take(QApplication::clipboard()->text());
}

void LineEdit::take(const QString& text)
{
    if (pasted && pasted(text))
        return;
    QString line = toLines(fromLines(text));
    while (line.endsWith(QLatin1Char{'\n'}))
        line.chop(1);
    line.replace(QLatin1Char{'\n'}, QLatin1Char{' '});
    insert(line);
}

void LineEdit::focusOutEvent(QFocusEvent* event)
{
    endComposing();
    QLineEdit::focusOutEvent(event);
}

void LineEdit::inputMethodEvent(QInputMethodEvent* event)
{
    const bool commits = !event->commitString().isEmpty();
    const bool shows = !event->preeditString().isEmpty();
    if (commits || !shows)
        endComposing();
    else if (!m_composing.isUnderWay)
        m_composing = {true, text(), selectionStart(), selectionLength()};
    if (const std::optional<QString> left = leftOfCommit(*event, typed)) {
        // The rule has handled the rest; the box only gets the end of the composition.
        QInputMethodEvent rest;
        rest.setCommitString(*left);
        QLineEdit::inputMethodEvent(&rest);
        event->accept();
        return;
    }
    QLineEdit::inputMethodEvent(event);
}

/// A box drops its selected text as soon as a composition begins in it, before any rule knows what will be typed. This
/// restores the box as it was, so that the rules see the same as when a key brings the character at once.
void LineEdit::endComposing()
{
    const Composing was = std::exchange(m_composing, {});
    if (was.selectionStart < 0 || text() == was.text)
        return;
    QInputMethodEvent nothing;
    QLineEdit::inputMethodEvent(&nothing);
    setText(was.text);
    setSelection(was.selectionStart, was.selectionLength);
}

} // namespace tallyhoop::qt
