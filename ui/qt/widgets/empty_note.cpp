#include "ui/qt/widgets/empty_note.h"

#include "ui/qt/look.h"

#include <QApplication>
#include <QEvent>

namespace tallyhoop::qt {

EmptyNote::EmptyNote(const QString& text, QAbstractItemView& view) : QLabel{view.viewport()}, m_view{view}
{
    setObjectName(QStringLiteral("emptyNote"));
    setTextFormat(Qt::PlainText);
    setText(text);
    setFont(QApplication::font()); // a list may have its columns in fixed pitch; this is a sentence
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

void EmptyNote::place()
{
    setGeometry(m_view.viewport()->rect());
    setVisible(m_view.model()->rowCount() == 0);
}

} // namespace tallyhoop::qt
