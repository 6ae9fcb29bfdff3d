// qt/widgets/lines_edit.h - a box of several lines that asks before it takes pasted or dropped text.
#pragma once

#include <QMimeData>
#include <QPlainTextEdit>
#include <functional>

namespace tallyhoop::qt {

class LinesEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    LinesEdit();

    /// Called with pasted or dropped text. @returns true when it was dealt with and must not be inserted
    std::function<bool(const QString&)> pasted;

    /// The text with U+2029 between its lines; toPlainText() would make blanks of no-break spaces.
    QString rawText() const;

    /// Caret and selection, counted in characters of rawText().
    void select(int start, int length);
    int selectionStart() const;
    int selectionLength() const;

protected:
    void insertFromMimeData(const QMimeData* source) override;
};

} // namespace tallyhoop::qt
