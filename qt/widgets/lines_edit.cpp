// qt/widgets/lines_edit.cpp - gives the raw text, because Qt's plain text replaces no-break spaces.
#include "qt/widgets/lines_edit.h"

#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

namespace tallyhoop::qt {

LinesEdit::LinesEdit()
{
    setTabChangesFocus(true);
    setUndoRedoEnabled(true);
}

QString LinesEdit::rawText() const { return document()->toRawText(); }

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

} // namespace tallyhoop::qt
