// qt/widgets/lines_edit.cpp - gives the raw text, because Qt's plain text replaces no-break spaces.
#include "qt/widgets/lines_edit.h"

#include "qt/text.h"
#include "qt/widgets/input_method.h"

#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

namespace tallyhoop::qt {

LinesEdit::LinesEdit(QWidget* parent) : QPlainTextEdit{parent}
{
    setTabChangesFocus(true);
    setUndoRedoEnabled(true);
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
