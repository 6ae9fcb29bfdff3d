// qt/paint_drawing.cpp - strokes, boxes and captions in the drawing's own units, scaled to the place and centred.
#include "qt/paint_drawing.h"

#include "qt/look.h"
#include "qt/text.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QTextOption>
#include <algorithm>

namespace tallyhoop::qt {

namespace {

QRectF toQRect(const ui::Rectangle& place) { return {place.x, place.y, place.width, place.height}; }

Qt::Alignment toQt(ui::Alignment alignment)
{
    switch (alignment) {
    case ui::Alignment::Right:
        return Qt::AlignRight;
    case ui::Alignment::Centre:
        return Qt::AlignHCenter;
    case ui::Alignment::Left:
        break;
    }
    return Qt::AlignLeft;
}

// Letters are measured at this large size and scaled by the painter, so that their widths are the same on every device.
constexpr int kFontUnits = 64;

void paintCaption(QPainter& painter, const ui::Caption& caption)
{
    if (caption.text.empty() || caption.size <= 0 || caption.place.width <= 0)
        return;
    const double scale = caption.size / kFontUnits;
    QFont font = QApplication::font();
    font.setPixelSize(kFontUnits);
    font.setBold(caption.bold);
    painter.save();
    painter.translate(caption.place.x, caption.place.y);
    painter.scale(scale, scale);
    painter.setFont(font);
    painter.setPen(look::toQColor(caption.colour));
    const QRectF place{0, 0, caption.place.width / scale, caption.place.height / scale};
    if (caption.wrap) {
        QTextOption option{toQt(caption.alignment) | Qt::AlignTop};
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        painter.setClipRect(place);
        painter.drawText(place, toLines(caption.text), option);
    } else {
        const QFontMetricsF metrics{font, painter.device()};
        const QString text = metrics.elidedText(toQString(caption.text), Qt::ElideRight, place.width());
        painter.drawText(place, static_cast<int>(toQt(caption.alignment) | Qt::AlignVCenter) | Qt::TextSingleLine,
                         text);
    }
    painter.restore();
}

} // namespace

void paintDrawing(QPainter& painter, const ui::Drawing& drawing)
{
    for (const ui::Stroke& stroke : drawing.strokes) {
        painter.setPen(QPen{look::toQColor(stroke.colour), 1});
        painter.drawLine(QPointF{stroke.x1, stroke.y1}, QPointF{stroke.x2, stroke.y2});
    }
    for (const ui::Box& box : drawing.boxes) {
        painter.setPen(QPen{look::toQColor(box.outline), 1});
        painter.setBrush(look::toQColor(box.fill));
        painter.drawRect(toQRect(box.place));
    }
    painter.setBrush(Qt::NoBrush);
    for (const ui::Caption& caption : drawing.captions)
        paintCaption(painter, caption);
}

void paintDrawing(QPainter& painter, const ui::Drawing& drawing, const QRectF& target)
{
    if (drawing.width <= 0 || drawing.height <= 0)
        return;
    const double scale = std::min(target.width() / drawing.width, target.height() / drawing.height);
    painter.save();
    painter.translate(target.x() + (target.width() - drawing.width * scale) / 2,
                      target.y() + (target.height() - drawing.height * scale) / 2);
    painter.scale(scale, scale);
    paintDrawing(painter, drawing);
    painter.restore();
}

} // namespace tallyhoop::qt
