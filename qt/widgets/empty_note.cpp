// qt/widgets/empty_note.cpp - placed over the list's viewport, and hidden while there are rows.
#include "qt/widgets/empty_note.h"

#include "qt/look.h"

#include <QApplication>
#include <QEvent>

namespace tallyhoop::qt {

EmptyNote::EmptyNote(QAbstractItemView& view) : QLabel{view.viewport()}, m_view{view}
{
    setObjectName(QStringLiteral("emptyNote"));
    setTextFormat(Qt::PlainText);
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
    setText(text);
    place();
}

void EmptyNote::place()
{
    setGeometry(m_view.viewport()->rect());
    setVisible(!text().isEmpty() && m_view.model()->rowCount() == 0);
}

} // namespace tallyhoop::qt
