#include "qt/message_sign.h"

#include <QPainter>

namespace tallyhoop::qt {

namespace {

/// A coloured disc or triangle with a sign in it, as message boxes have it.
QPixmap signPixmap(QStyle::StandardPixmap which, int size)
{
    QPixmap pixmap{size, size};
    pixmap.fill(Qt::transparent);
    QPainter painter{&pixmap};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 48.0, size / 48.0);
    painter.setPen(Qt::NoPen);
    QString sign;
    QRectF place{0, 0, 48, 48};
    QColor ink = Qt::white;
    if (which == QStyle::SP_MessageBoxWarning) {
        painter.setBrush(QColor{0xf2, 0xb0, 0x1e});
        painter.setPen(QPen{QColor{0xf2, 0xb0, 0x1e}, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        painter.drawPolygon(QPolygonF{{QPointF{24, 7}, QPointF{43, 41}, QPointF{5, 41}}});
        sign = QStringLiteral("!");
        place.setTop(9);
        ink = QColor{0x1c, 0x1f, 0x24};
    } else {
        const bool critical = which == QStyle::SP_MessageBoxCritical;
        painter.setBrush(critical ? QColor{0xc0, 0x39, 0x2b} : QColor{0x0b, 0x57, 0xa4});
        painter.drawEllipse(QRectF{3, 3, 42, 42});
        sign = critical ? QStringLiteral("\u00d7")
                        : QString{which == QStyle::SP_MessageBoxQuestion ? QLatin1Char{'?'} : QLatin1Char{'i'}};
    }
    QFont font = painter.font();
    font.setPixelSize(30);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(place, Qt::AlignCenter, sign);
    return pixmap;
}

} // namespace

QIcon messageSign(QStyle::StandardPixmap which)
{
    QIcon signs;
    for (const int size : {16, 32, 48, 72, 96, 144})
        signs.addPixmap(signPixmap(which, size));
    return signs;
}

} // namespace tallyhoop::qt
