// qt/widgets/lines_edit.h - a box of several lines that asks before it takes text, and shows at once what will be
// saved.
#pragma once

#include "qt/widgets/line_edit.h"

#include <QMimeData>
#include <QPlainTextEdit>
#include <functional>

namespace tallyhoop::qt {

class LinesEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    LinesEdit(LastTyped& lastTyped, QWidget* parent);

    /// Called with pasted or dropped text. @returns true when it was dealt with and must not be inserted
    std::function<bool(const QString&)> pasted;

    /// Called with each character that an input method commits, a byte of the core.
    /// @returns true when it was dealt with and must not be inserted
    std::function<bool(char)> typed;

    /// The text with U+2029 between its lines; toPlainText() would make blanks of no-break spaces.
    QString rawText() const;

    /// Shows the text as it will be saved: characters composed, and "?" for what Windows-1252 lacks.
    void showAsSaved();

    /// Remembers that typing into this box was the last thing done.
    void noteTyped() { m_lastTyped.box = this; }

    /// Caret and selection, counted in characters of rawText().
    void select(int start, int length);
    int selectionStart() const;
    int selectionLength() const;

protected:
    bool event(QEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    bool isUndone(const QKeyEvent& key) const;

    LastTyped& m_lastTyped;
};

} // namespace tallyhoop::qt
