// qt/widgets/elided_label.cpp - cuts the text only while painting; the tool tip shows all of it.
#include "qt/widgets/elided_label.h"

#include "qt/text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace tallyhoop::qt {

bool ElidedLabel::isElided() const { return fontMetrics().horizontalAdvance(text()) > contentsRect().width(); }

void ElidedLabel::paintEvent(QPaintEvent* event)
{
    if (!isElided()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter{this};
    painter.setPen(palette().color(foregroundRole()));
    const QString cut = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    painter.drawText(contentsRect(), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft) | Qt::TextSingleLine, cut);
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !isElided())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), plainToolTip(text()), this);
    return true;
}

} // namespace tallyhoop::qt
