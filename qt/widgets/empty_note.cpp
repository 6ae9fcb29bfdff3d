// qt/widgets/empty_note.cpp - placed over the list's viewport, and hidden while there are rows.
#include "qt/widgets/empty_note.h"

#include "qt/look.h"

#include <QApplication>
#include <QEvent>

namespace tallyhoop::qt {

EmptyNote::EmptyNote(const QString& text, QAbstractItemView& view) : QLabel{view.viewport()}, m_view{view}
{
    setObjectName(QStringLiteral("emptyNote"));
    setTextFormat(Qt::PlainText);
    setText(text);
    setFont(QApplication::font()); // not the fixed pitch that a list may have for its columns
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(look::kGap);
    setForegroundRole(QPalette::PlaceholderText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    view.viewport()->installEventFilter(this);
    connect(view.model(), &QAbstractItemModel::modelReset, this, &EmptyNote::place);
    place();
}

bool EmptyNote::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QLabel::eventFilter(watched, event);
}

void EmptyNote::say(const QString& text)
{
    describe(false);
    setText(text);
    place();
}

void EmptyNote::place()
{
    setGeometry(m_view.viewport()->rect());
    const bool empty = m_view.model()->rowCount() == 0;
    setVisible(empty);
    describe(empty);
}

/// A screen reader reads the list only, so the list's description begins with the note.
void EmptyNote::describe(bool empty)
{
    QString description = m_view.accessibleDescription();
    if (const QString said = text() + QLatin1Char{' '}; description.startsWith(said))
        description.remove(0, said.size());
    m_view.setAccessibleDescription(empty ? text() + QLatin1Char{' '} + description : description);
}

} // namespace tallyhoop::qt
