// qt/widgets/lines_edit.cpp - gives the raw text, because Qt's plain text replaces no-break spaces.
#include "qt/widgets/lines_edit.h"

#include "qt/text.h"
#include "qt/widgets/input_method.h"

#include <QKeyEvent>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

namespace tallyhoop::qt {

LinesEdit::LinesEdit(LastTyped& lastTyped, QWidget* parent) : QPlainTextEdit{parent}, m_lastTyped{lastTyped}
{
    setTabChangesFocus(true);
    setUndoRedoEnabled(true);
}

/// Undo and redo belong to the box while typing into it was the last thing done, as in a LineEdit.
bool LinesEdit::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QPlainTextEdit::event(event);
    auto& key = static_cast<QKeyEvent&>(*event);
    const bool isUndoOrRedo = key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
    if (!isUndoOrRedo || (m_lastTyped.box == this && isUndone(key)))
        return QPlainTextEdit::event(event);
    key.ignore();
    return true;
}

/// @returns whether a key would undo or redo something in the box itself
bool LinesEdit::isUndone(const QKeyEvent& key) const
{
    if (isReadOnly())
        return false;
    return key.matches(QKeySequence::Undo) ? document()->isUndoAvailable() : document()->isRedoAvailable();
}

QString LinesEdit::rawText() const { return document()->toRawText(); }

void LinesEdit::showAsSaved()
{
    const QString saved = toLines(fromLines(rawText()));
    QString now = rawText();
    now.replace(QChar{QChar::ParagraphSeparator}, QLatin1Char{'\n'});
    if (saved == now)
        return;
    const auto caret = toLines(fromLines(now.left(textCursor().position()))).size();
    setPlainText(saved);
    select(static_cast<int>(caret), 0);
}

void LinesEdit::select(int start, int length)
{
    const int end = document()->characterCount() - 1;
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::clamp(start, 0, end));
    cursor.setPosition(std::clamp(start + length, 0, end), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

int LinesEdit::selectionStart() const { return textCursor().selectionStart(); }

int LinesEdit::selectionLength() const { return textCursor().selectionEnd() - textCursor().selectionStart(); }

void LinesEdit::insertFromMimeData(const QMimeData* source)
{
    if (isReadOnly() || !source->hasText())
        return;
    if (!pasted || !pasted(source->text()))
        textCursor().insertText(source->text());
}

void LinesEdit::inputMethodEvent(QInputMethodEvent* event)
{
    if (const std::optional<QString> left = leftOfCommit(*event, typed)) {
        QInputMethodEvent rest;
        rest.setCommitString(*left);
        QPlainTextEdit::inputMethodEvent(&rest);
        event->accept();
        return;
    }
    QPlainTextEdit::inputMethodEvent(event);
}

} // namespace tallyhoop::qt
