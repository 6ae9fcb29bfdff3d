// qt/widgets/empty_note.h - the text in a list or table that has no rows, so that it does not look broken.
#pragma once

#include <QAbstractItemView>
#include <QLabel>

namespace tallyhoop::qt {

/// A pale sentence in the middle of a view, visible while the view's model has no rows and there is a sentence.
class EmptyNote : public QLabel
{
    Q_OBJECT

public:
    explicit EmptyNote(QAbstractItemView& view);

    /// Changes the sentence; empty = nothing is shown.
    void say(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    QAbstractItemView& m_view;
};

} // namespace tallyhoop::qt
