// qt/paint_drawing.cpp - strokes, boxes and captions in the drawing's own units, scaled to the place and centred.
#include "qt/paint_drawing.h"

#include "qt/look.h"
#include "qt/text.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cstdint>
#include <utility>

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

constexpr double kNarrowest = 0.5; ///< of the letters' own width
constexpr double kSmallest = 0.6;  ///< of the size asked for
constexpr double kSmaller = 0.95;  ///< from one attempt to the next

QFont fontOf(const ui::Caption& caption)
{
    QFont font = QApplication::font();
    font.setPixelSize(kFontUnits);
    font.setBold(caption.bold);
    font.setStrikeOut(caption.struck);
    return font;
}

/// @param place from 0, 0, in the painter's units
void paintLine(QPainter& painter, const ui::Caption& caption, QRectF place)
{
    const QFontMetricsF metrics{painter.font(), painter.device()};
    const QString text = toQString(caption.text);
    const double narrow = std::clamp(place.width() / metrics.horizontalAdvance(text), kNarrowest, 1.0);
    painter.scale(narrow, 1);
    place.setWidth(place.width() / narrow);
    // Names that begin alike often end differently.
    painter.drawText(place, static_cast<int>(toQt(caption.alignment) | Qt::AlignVCenter) | Qt::TextSingleLine,
                     metrics.elidedText(text, Qt::ElideMiddle, place.width()));
}

/// Breaks a text into lines. @returns their height together
double breakLines(QTextLayout& text, double width)
{
    double height = 0;
    text.beginLayout();
    for (QTextLine line = text.createLine(); line.isValid(); line = text.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    text.endLayout();
    return height;
}

/// Paints the lines that fit wholly; the last one says when there are more.
void paintWholeLines(QPainter& painter, const QTextLayout& text, const QRectF& place)
{
    const QFontMetricsF metrics{painter.font(), painter.device()};
    const auto fits = [&](const QTextLine& line) { return line.y() + line.height() <= place.height() + 1; };
    for (int i = 0; i < text.lineCount() && fits(text.lineAt(i)); ++i) {
        const QTextLine line = text.lineAt(i);
        if (i + 1 == text.lineCount() || fits(text.lineAt(i + 1))) {
            line.draw(&painter, {});
            continue;
        }
        const QString last = text.text().mid(line.textStart(), line.textLength()).trimmed() + QChar{0x2026};
        painter.drawText(QPointF{0, line.y() + line.ascent()}, metrics.elidedText(last, Qt::ElideRight, place.width()));
    }
}

/// @param place from 0, 0, in the painter's units
void paintParagraphs(QPainter& painter, const ui::Caption& caption, const QRectF& place)
{
    QString lines = toLines(caption.text);
    lines.replace(QLatin1Char{'\n'}, QChar{QChar::LineSeparator});
    QTextLayout text{lines, painter.font(), painter.device()};
    QTextOption option{toQt(caption.alignment)};
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text.setTextOption(option);
    double scale = 1;
    while (breakLines(text, place.width() / scale) * scale > place.height() && scale * kSmaller >= kSmallest)
        scale *= kSmaller;
    painter.scale(scale, scale);
    paintWholeLines(painter, text, {0, 0, place.width() / scale, place.height() / scale});
}

void paintCaption(QPainter& painter, const ui::Caption& caption)
{
    if (caption.text.empty() || caption.size <= 0 || caption.place.width <= 0)
        return;
    const double scale = caption.size / kFontUnits;
    painter.save();
    painter.translate(caption.place.x, caption.place.y);
    painter.scale(scale, scale);
    painter.setFont(fontOf(caption));
    painter.setPen(look::toQColor(caption.colour));
    const QRectF place{0, 0, caption.place.width / scale, caption.place.height / scale};
    if (caption.wrap)
        paintParagraphs(painter, caption, place);
    else
        paintLine(painter, caption, place);
    painter.restore();
}

} // namespace

void paintDrawing(QPainter& painter, const ui::Drawing& drawing)
{
    for (const ui::Stroke& stroke : drawing.strokes) {
        painter.setPen(QPen{look::toQColor(stroke.colour), stroke.thickness});
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

void paintLines(QPainter& painter, std::vector<ui::Stroke> lines, const QColor& colour)
{
    const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
    for (ui::Stroke& line : lines)
        line.colour = {part(colour.red()), part(colour.green()), part(colour.blue())};
    ui::Drawing drawing;
    drawing.strokes = std::move(lines);
    paintDrawing(painter, drawing);
}

} // namespace tallyhoop::qt
