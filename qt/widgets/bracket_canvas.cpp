// qt/widgets/bracket_canvas.cpp - places and fonts for the current size, connectors, and mouse and keys turned into
// presses of places.
#include "qt/widgets/bracket_canvas.h"

#include "pool/moves.h"
#include "qt/look.h"
#include "qt/paint_drawing.h"
#include "qt/text.h"
#include "qt/widgets/elided_label.h"
#include "qt/widgets/slot_label.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tallyhoop::qt {

namespace {

constexpr double kSmallestText = 8;
constexpr double kSmallestShrink = 0.86; ///< names that would need even smaller letters are cut instead

/// Rounds the edges, so that neighbours that touch still touch: a place and its marker look like one box.
QRect toQRect(const ui::Rectangle& place)
{
    const auto edge = [](double value) { return static_cast<int>(std::lround(value)); };
    const QPoint topLeft{edge(place.x), edge(place.y)};
    const QPoint beyond{edge(place.x + place.width), edge(place.y + place.height)};
    return {topLeft, beyond - QPoint{1, 1}};
}

std::function<void(const ui::Label&)> showOn(SlotLabel* widget)
{
    return [widget](const ui::Label& label) {
        const PickMark unmarked = markOf(Verdict::None);
        widget->show(toQString(label.text), look::toQColor(label.colour.value_or(unmarked.colour)),
                     look::toQColor(label.background.value_or(unmarked.background)));
    };
}

} // namespace

BracketCanvas::BracketCanvas(BoardScreen& board, Page& page) : m_board{board}, m_page{page}
{
    setObjectName("bracketCanvas");
    setMouseTracking(true);
    makeHeaders();
    makeSeeds();
    makePlaces();
    makeMarkers();
    m_dragged = new QLabel{this};
    m_dragged->setObjectName("draggedTeam");
    m_dragged->setTextFormat(Qt::PlainText);
    m_dragged->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_dragged->setAutoFillBackground(true);
    m_dragged->setFrameShape(QFrame::Box);
    m_dragged->hide();
    page.onPush([this] { emphasise(); });
}

QLabel* BracketCanvas::placed(ui::Label& label, Qt::Alignment alignment)
{
    auto* const widget = new ElidedLabel{this};
    widget->setTextFormat(Qt::PlainText);
    widget->setAlignment(alignment);
    return m_page.adopt(label, widget, [widget](const ui::Label& shown) { widget->setText(toQString(shown.text)); });
}

void BracketCanvas::makeHeaders()
{
    m_title = placed(m_board.lblTitle, Qt::AlignCenter);
    m_demoMode = placed(m_board.lblDemoMode, Qt::AlignVCenter | Qt::AlignLeft);
    m_champion = placed(m_board.lblChampion, Qt::AlignCenter);
    for (std::size_t i = 0; i < m_regionTitles.size(); ++i)
        m_regionTitles[i] = placed(m_board.lblRegionTitle[i], Qt::AlignCenter);
    for (std::size_t i = 0; i < kRoundCaptions; ++i) {
        m_roundNames[i] = placed(m_board.lblRoundName[i], Qt::AlignVCenter | Qt::AlignRight);
        m_roundPoints[i] = placed(m_board.pointsLabel(i), Qt::AlignVCenter | Qt::AlignLeft);
        m_roundPoints[i]->setIndent(look::kTight);
    }
    // Lines run through the middle: these captions interrupt them.
    for (QLabel* caption : {m_champion, m_roundNames[8], m_roundPoints[8], m_roundNames[9], m_roundPoints[9]})
        caption->setAutoFillBackground(true);
}

void BracketCanvas::makeSeeds()
{
    // Labels: nobody edits a seed here, and 64 text boxes would take nearly a tenth of the start.
    for (const TeamRow row : allTeamRows()) {
        ui::TextBox& box = m_board.txtSeed[row];
        auto* const seed = m_page.adopt(box, new QLabel{this});
        seed->setTextFormat(Qt::PlainText);
        seed->setMinimumSize(0, 0);
        const Qt::Alignment side = regionOf(row) < kRegions / 2 ? Qt::AlignRight : Qt::AlignLeft;
        seed->setAlignment(side | Qt::AlignVCenter);
        seed->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_page.follow(box.text, [seed](const std::string& text) {
            seed->setText(toQString(text));
            seed->setAccessibleDescription(toQString(text)); // its name says whose seed it is
        });
        m_seeds[row] = seed;
    }
}

void BracketCanvas::makePlaces()
{
    for (const Position position : allPositions()) {
        const bool isRow = isFirstRound(position);
        auto* const place = new SlotLabel{isRow ? SlotLabel::Part::Row : SlotLabel::Part::Winner, this};
        m_page.adopt(m_board.lblRegion[position], place, showOn(place));
        connect(place, &QAbstractButton::clicked, this, [this, position] {
            m_page.run([this, position] {
                m_board.pressPosition(position, MouseButton::Left);
                m_board.dropOnPosition(position);
            });
        });
        m_places[position] = place;
    }
}

void BracketCanvas::makeMarkers()
{
    for (const Position position : gamePositions()) {
        const Game game = *gameOf(position);
        auto* const marker = new SlotLabel{SlotLabel::Part::Marker, this};
        m_page.adopt(m_board.lblResult[game], marker, showOn(marker));
        marker->setFocusPolicy(Qt::NoFocus);
        m_markers[game] = marker;
    }
}

void BracketCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void BracketCanvas::layOut()
{
    m_geometry = layOutBoard(std::max(1, width()), std::max(1, height()));
    const auto place = [](auto& widgets, const auto& places) {
        for (std::size_t i = 0; i < places.size(); ++i)
            widgets[i]->setGeometry(toQRect(places[i]));
    };
    m_title->setGeometry(toQRect(m_geometry.title));
    m_demoMode->setGeometry(toQRect(m_geometry.demoMode));
    m_champion->setGeometry(toQRect(m_geometry.championCaption));
    place(m_regionTitles, m_geometry.regionTitles);
    place(m_roundNames, m_geometry.roundCaptions);
    place(m_roundPoints, m_geometry.roundPoints);
    place(m_seeds.values, m_geometry.seeds.values);
    place(m_places.values, m_geometry.positions.values);
    place(m_markers.values, m_geometry.results.values);
    chooseFonts();
}

/// Letters as large as the rows allow, a little smaller when that lets the longest first-round name fit.
double BracketCanvas::fittingSize() const
{
    const double size = std::max(kSmallestText, m_geometry.textSize);
    QFont trial = font();
    trial.setPixelSize(static_cast<int>(size));
    const QFontMetricsF metrics{trial};
    double widest = 1;
    for (const TeamRow row : allTeamRows())
        widest = std::max(widest, metrics.horizontalAdvance(toQString(m_board.lblRegion[positionOf(row)].text)));
    const double room = m_geometry.positions[positionOf(allTeamRows().front())].width - 6;
    return std::max({kSmallestText, size * kSmallestShrink, std::min(size, size * room / widest)});
}

/// @returns how much smaller than this the captions of the rounds have to be, all alike, so that none is cut
double BracketCanvas::captionShare(double size) const
{
    QFont trial = font();
    trial.setPixelSize(static_cast<int>(std::lround(size)));
    const QFontMetricsF metrics{trial};
    double share = 1;
    for (std::size_t i = 0; i < kRoundCaptions; ++i) {
        const double width = metrics.horizontalAdvance(toQString(m_board.lblRoundName[i].text));
        share = std::min(share, (m_geometry.roundCaptions[i].width - 2) / width);
    }
    return std::max(share, kSmallestText / size);
}

void BracketCanvas::chooseFonts()
{
    const double size = fittingSize();
    const auto letters = [&](double share, bool bold) {
        QFont scaled = font();
        scaled.setPixelSize(static_cast<int>(std::lround(size * share)));
        scaled.setBold(bold);
        return scaled;
    };
    const auto use = [](const auto& widgets, const QFont& scaled) {
        for (QWidget* widget : widgets)
            if (widget->font() != scaled) // nearly always the same while the window is being laid out
                widget->setFont(scaled);
    };
    use(m_places.values, letters(1, false));
    m_places[kChampion]->setFont(letters(1.3, true));
    use(m_markers.values, letters(1, true));
    use(m_seeds.values, letters(0.9, false));
    use(m_roundNames, letters(0.9 * captionShare(size * 0.9), false));
    use(m_roundPoints, letters(0.9, true));
    use(m_regionTitles, letters(1.3, true));
    m_title->setFont(letters(1.9, true));
    m_demoMode->setFont(letters(1.3, true));
    m_champion->setFont(letters(0.9, true));
}

void BracketCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    paintLines(painter, m_geometry.connectors, palette().color(QPalette::Mid));
}

std::optional<Position> BracketCanvas::positionAt(const QPoint& point) const
{
    const auto at = std::ranges::find_if(
        allPositions(), [&](Position position) { return m_places[position]->geometry().contains(point); });
    return at == allPositions().end() ? std::nullopt : std::optional{*at};
}

/// A place and its marker are outlined as one box: a team that is let go above the marker has arrived.
std::optional<Position> BracketCanvas::landingAt(const QPoint& point) const
{
    const auto isAbove = [&](Position game) { return m_markers[*gameOf(game)]->geometry().contains(point); };
    const auto at = std::ranges::find_if(gamePositions(), isAbove);
    return at == gamePositions().end() ? positionAt(point) : std::optional{*at};
}

// Labels ignore the mouse, so every press on the bracket comes here, whether its label is enabled or not.
void BracketCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton)
        return;
    const std::optional<Position> position = positionAt(event->pos());
    if (!position) {
        m_page.run([this] { m_board.pressBackground(); });
        return;
    }
    const MouseButton button = event->button() == Qt::LeftButton ? MouseButton::Left : MouseButton::Right;
    m_page.run([this, position, button] { m_board.pressPosition(*position, button); });
    m_dragged->hide(); // a right press in the middle of a drag ends it
    m_pressed = m_board.isDragging();
    m_pressedAt = event->pos();
}

void BracketCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_pressed && !event->buttons().testFlag(Qt::LeftButton))
        loseDrag();
    if (!m_pressed)
        hover(positionAt(event->pos()));
    else if (m_dragged->isVisible() ||
             (event->pos() - m_pressedAt).manhattanLength() >= QApplication::startDragDistance())
        showDrag(event->pos());
}

void BracketCanvas::showDrag(const QPoint& point)
{
    m_dragged->setText(m_board.isDragging() ? toQString(m_board.draggedTeam()) : QString{});
    m_dragged->setFont(m_places[allPositions().front()]->font());
    m_dragged->adjustSize();
    m_dragged->move(point + QPoint{10, 6});
    m_dragged->setVisible(!m_dragged->text().isEmpty());
    m_dragged->raise();
    emphasise();
}

void BracketCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_pressed)
        return;
    m_pressed = false;
    m_dragged->hide();
    const std::optional<Position> position = landingAt(event->pos());
    m_page.run([this, position] {
        if (position)
            m_board.dropOnPosition(*position);
        else
            m_board.cancelDrag();
    });
}

/// A box that opened in the middle of a drag received the release of the button instead of the canvas.
void BracketCanvas::loseDrag()
{
    m_pressed = false;
    m_dragged->hide();
    m_page.run([this] { m_board.cancelDrag(); });
}

void BracketCanvas::leaveEvent(QEvent*) { hover(std::nullopt); }

void BracketCanvas::hover(std::optional<Position> position)
{
    if (position == m_hovered)
        return;
    m_hovered = position;
    emphasise();
}

std::optional<Position> BracketCanvas::reachedByKeys() const
{
    const auto at = std::ranges::find_if(allPositions(),
                                         [this](Position position) { return m_places[position]->isReachedByKeys(); });
    return at == allPositions().end() ? std::nullopt : std::optional{*at};
}

/// Emphasises the places where a dragged team may be dropped; otherwise the path of the team under the pointer or with
/// the focus.
void BracketCanvas::emphasise()
{
    using Emphasis = SlotLabel::Emphasis;
    const bool dragging = m_dragged->isVisible() && m_board.isDragging();
    const std::optional<Position> shown = m_hovered ? m_hovered : reachedByKeys();
    const std::vector<Position> path = dragging || !shown ? std::vector<Position>{} : pathOf(m_board.bracket(), *shown);
    for (const Position position : allPositions()) {
        Emphasis emphasis = Emphasis::None;
        if (dragging && m_board.mayDropOn(position))
            emphasis = Emphasis::MayLand;
        else if (std::ranges::find(path, position) != path.end())
            emphasis = Emphasis::OnPath;
        m_places[position]->setEmphasis(emphasis);
        if (const std::optional<Game> game = gameOf(position))
            m_markers[*game]->setEmphasis(emphasis);
    }
}

} // namespace tallyhoop::qt
