// qt/widgets/outlook_canvas.cpp - places, swings beside them, connectors below them, and a frame around what is
// supposed.
#include "qt/widgets/outlook_canvas.h"

#include "qt/look.h"
#include "qt/paint_drawing.h"
#include "qt/text.h"
#include "qt/widgets/elided_label.h"
#include "qt/widgets/slot_label.h"
#include "screens/board/board_picture.h"
#include "screens/outlook/outlook_geometry.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tallyhoop::qt {

namespace {

constexpr int kSupposedFrame = 3;

QRect rounded(double x, double y, double width, double height)
{
    const auto edge = [](double value) { return static_cast<int>(std::lround(value)); };
    return {QPoint{edge(x), edge(y)}, QPoint{edge(x + width) - 1, edge(y + height) - 1}};
}

QRect rounded(const ui::Rectangle& place) { return rounded(place.x, place.y, place.width, place.height); }

std::function<void(const ui::Label&)> shownBy(SlotLabel* widget)
{
    return [widget](const ui::Label& label) {
        const PickMark unmarked = markOf(Verdict::None);
        widget->show(toQString(label.text), look::toQColor(label.colour.value_or(unmarked.colour)),
                     look::toQColor(label.background.value_or(unmarked.background)));
    };
}

QFont scaled(QFont font, double size, bool bold)
{
    font.setPixelSize(static_cast<int>(std::lround(size)));
    font.setBold(bold);
    return font;
}

} // namespace

OutlookCanvas::OutlookCanvas(OutlookScreen& outlook, Page& page) : m_outlook{outlook}, m_page{page}
{
    setObjectName("outlookCanvas");
    m_champion = caption(outlook.lblChampion);
    for (std::size_t i = 0; i < m_regionTitles.size(); ++i)
        m_regionTitles[i] = caption(outlook.lblRegionTitle[i]);
    makePlaces();
    page.follow(outlook.lblWhatIf.background, [this](const auto&) { update(); });
    page.onPush([this] {
        for (const Position position : allPositions())
            m_places[position]->setEmphasis(m_outlook.isMarked(position) ? SlotLabel::Emphasis::OnPath
                                                                         : SlotLabel::Emphasis::None);
    });
}

QLabel* OutlookCanvas::caption(ui::Label& label)
{
    auto* const widget = new ElidedLabel{this};
    widget->setTextFormat(Qt::PlainText);
    widget->setAlignment(Qt::AlignCenter);
    return m_page.adopt(label, widget, [widget](const ui::Label& shown) { widget->setText(toQString(shown.text)); });
}

void OutlookCanvas::makePlaces()
{
    for (const Position position : allPositions()) {
        auto* const place = new SlotLabel{SlotLabel::Part::Row, this};
        m_page.adopt(m_outlook.lblRegion[position], place, shownBy(place));
        connect(place, &QAbstractButton::clicked, this,
                [this, position] { m_page.run([this, position] { m_outlook.pressPosition(position); }); });
        m_places[position] = place;
    }
    for (const Position position : allPositions()) { // above the places
        auto* const swing = new SlotLabel{SlotLabel::Part::Marker, this};
        m_swings[position] = swing;
        m_page.adopt(m_outlook.lblSwing[position], swing,
                     [this, position, show = shownBy(swing)](const ui::Label& label) {
                         show(label);
                         arrange(position);
                     });
        swing->setFocusPolicy(Qt::NoFocus);
    }
}

/// A swing may take room from its team.
void OutlookCanvas::arrange(Position position)
{
    const bool hasSwing = !m_outlook.lblSwing[position].text.empty();
    m_places[position]->setGeometry(
        rounded(hasSwing ? teamBesideSwing(m_geometry, position) : m_geometry.positions[position]));
    m_swings[position]->setGeometry(rounded(swingPlace(m_geometry, position)));
}

void OutlookCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_geometry = layOutOutlook(std::max(1, width()), std::max(1, height()));
    const double size = m_geometry.textSize;
    for (const Position position : allPositions()) {
        arrange(position);
        m_places[position]->setFont(scaled(font(), size, position == kChampion));
        m_swings[position]->setFont(scaled(font(), size, true));
    }
    m_champion->setGeometry(rounded(m_geometry.championCaption));
    m_champion->setFont(scaled(font(), size, true));
    for (std::size_t i = 0; i < m_regionTitles.size(); ++i) {
        m_regionTitles[i]->setGeometry(rounded(m_geometry.regionTitles[i]));
        m_regionTitles[i]->setFont(scaled(font(), size * 1.3, true));
    }
}

void OutlookCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    paintLines(painter, m_geometry.connectors, palette().color(QPalette::Mid));
    if (const std::optional<ui::Colour> supposed = m_outlook.lblWhatIf.background) {
        // Filled areas, not lines: with fractional scaling, lines at the edge can disappear.
        const QRegion frame = QRegion{rect()}.subtracted(
            rect().adjusted(kSupposedFrame, kSupposedFrame, -kSupposedFrame, -kSupposedFrame));
        for (const QRect& edge : frame)
            painter.fillRect(edge, look::toQColor(*supposed));
    }
}

std::optional<Position> OutlookCanvas::positionAt(const QPoint& point) const
{
    const auto at = std::ranges::find_if(
        allPositions(), [&](Position position) { return m_places[position]->geometry().contains(point); });
    return at == allPositions().end() ? std::nullopt : std::optional{*at};
}

// Labels ignore the mouse, so every press on the bracket comes here.
void OutlookCanvas::mousePressEvent(QMouseEvent* event)
{
    const std::optional<Position> position = positionAt(event->pos());
    if (!position)
        return;
    if (event->button() == Qt::LeftButton)
        m_page.run([this, position] { m_outlook.pressPosition(*position); });
    else if (event->button() == Qt::RightButton)
        m_page.run([this, position] { m_outlook.takeBackPosition(*position); });
}

} // namespace tallyhoop::qt
