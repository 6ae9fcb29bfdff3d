// qt/widgets/small_bracket.cpp - as much letter as there is room for, but never less than people can read.
#include "qt/widgets/small_bracket.h"

#include "qt/look.h"
#include "qt/paint_drawing.h"
#include "qt/text.h"
#include "qt/widgets/elided_label.h"
#include "qt/widgets/slot_label.h"
#include "screens/board/board_picture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tallyhoop::qt {

namespace {

constexpr double kSmallestText = 8;
constexpr double kTitleSize = 1.3; ///< of a region's title, in letters of a team

/// There are neither seeds nor marks, which leaves more room for the names.
constexpr BoardShares kShares{.top = 0.02,
                              .seed = 0,
                              .marker = 0,
                              .firstColumn = 1.6,
                              .centre = 0.05,
                              .champion = 2,
                              .textOfRow = 0.75,
                              .textOfColumn = 0.16};

QRect rounded(const ui::Rectangle& place)
{
    const auto edge = [](double value) { return static_cast<int>(std::lround(value)); };
    return {QPoint{edge(place.x), edge(place.y)}, QPoint{edge(place.right()) - 1, edge(place.bottom()) - 1}};
}

/// @param leftPart of the room that is added, 0..1
ui::Rectangle widened(ui::Rectangle place, double factor, double leftPart)
{
    const double added = place.width * (factor - 1);
    return {place.x - added * leftPart, place.y, place.width + added, place.height};
}

QFont scaled(QFont font, double size, bool bold)
{
    font.setPixelSize(static_cast<int>(std::lround(std::max(kSmallestText, size))));
    font.setBold(bold);
    return font;
}

} // namespace

SmallBracket::SmallBracket(Page& page, ui::ControlArray<ui::Label, kRegions>& regionTitles, ui::Label& champion,
                           ui::ControlArray<ui::Label, kPositions>& places)
{
    setObjectName(QStringLiteral("smallBracket"));
    m_champion = caption(page, champion);
    for (std::size_t i = 0; i < m_regionTitles.size(); ++i)
        m_regionTitles[i] = caption(page, regionTitles[i]);
    for (const Position position : allPositions())
        m_places[position] = place(page, places[position]);
}

QLabel* SmallBracket::caption(Page& page, ui::Label& label)
{
    auto* const widget = new ElidedLabel{this};
    widget->setTextFormat(Qt::PlainText);
    widget->setAlignment(Qt::AlignCenter);
    return page.adopt(label, widget, [widget](const ui::Label& shown) { widget->setText(toQString(shown.text)); });
}

SlotLabel* SmallBracket::place(Page& page, ui::Label& label)
{
    auto* const widget = new SlotLabel{SlotLabel::Part::Shown, this};
    return page.adopt(label, widget, [widget](const ui::Label& shown) {
        const PickMark unmarked = markOf(Verdict::None);
        widget->show(toQString(shown.text), look::toQColor(shown.colour.value_or(unmarked.colour)),
                     look::toQColor(shown.background.value_or(unmarked.background)));
    });
}

void SmallBracket::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_geometry = layOutBoard(std::max(1, width()), std::max(1, height()), kShares);
    const double size = m_geometry.textSize;
    for (const Position position : allPositions()) {
        m_places[position]->setGeometry(rounded(m_geometry.positions[position]));
        m_places[position]->setFont(scaled(font(), size, position == kChampion));
    }
    m_champion->setGeometry(rounded(widened(m_geometry.championCaption, 2, 0.5)));
    m_champion->setFont(scaled(font(), size, true));
    for (std::size_t i = 0; i < m_regionTitles.size(); ++i) {
        m_regionTitles[i]->setGeometry(rounded(widened(m_geometry.regionTitles[i], 1.35, i < 2 ? 0 : 1)));
        m_regionTitles[i]->setFont(scaled(font(), size * kTitleSize, true));
    }
}

void SmallBracket::paintEvent(QPaintEvent*)
{
    const QColor grey = palette().color(QPalette::Mid);
    const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
    ui::Drawing lines;
    lines.width = width();
    lines.height = height();
    lines.strokes = m_geometry.connectors;
    for (ui::Stroke& line : lines.strokes)
        line.colour = {part(grey.red()), part(grey.green()), part(grey.blue())};
    QPainter painter{this};
    paintDrawing(painter, lines);
}

} // namespace tallyhoop::qt
