// qt/message_icon.cpp - a disc or a triangle with a symbol, painted for each size.
#include "qt/message_icon.h"

#include <QPainter>

namespace tallyhoop::qt {

namespace {

/// A coloured disc or triangle with a symbol in it, as message boxes have it.
QPixmap iconPixmap(QStyle::StandardPixmap which, int size)
{
    QPixmap pixmap{size, size};
    pixmap.fill(Qt::transparent);
    QPainter painter{&pixmap};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 48.0, size / 48.0);
    painter.setPen(Qt::NoPen);
    QString symbol;
    QRectF place{0, 0, 48, 48};
    QColor symbolColour = Qt::white;
    if (which == QStyle::SP_MessageBoxWarning) {
        painter.setBrush(QColor{0xf2, 0xb0, 0x1e});
        painter.setPen(QPen{QColor{0xf2, 0xb0, 0x1e}, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        painter.drawPolygon(QPolygonF{{QPointF{24, 7}, QPointF{43, 41}, QPointF{5, 41}}});
        symbol = QStringLiteral("!");
        place.setTop(9);
        symbolColour = QColor{0x1c, 0x1f, 0x24};
    } else {
        const bool critical = which == QStyle::SP_MessageBoxCritical;
        painter.setBrush(critical ? QColor{0xc0, 0x39, 0x2b} : QColor{0x0b, 0x57, 0xa4});
        painter.drawEllipse(QRectF{3, 3, 42, 42});
        symbol = critical ? QStringLiteral("\u00d7")
                          : QString{which == QStyle::SP_MessageBoxQuestion ? QLatin1Char{'?'} : QLatin1Char{'i'}};
    }
    QFont font = painter.font();
    font.setPixelSize(30);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(symbolColour);
    painter.drawText(place, Qt::AlignCenter, symbol);
    return pixmap;
}

} // namespace

QIcon messageIcon(QStyle::StandardPixmap which)
{
    QIcon icon;
    for (const int size : {16, 32, 48, 72, 96, 144})
        icon.addPixmap(iconPixmap(which, size));
    return icon;
}

} // namespace tallyhoop::qt
