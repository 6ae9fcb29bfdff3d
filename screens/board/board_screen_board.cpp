#include "screens/board/board_geometry.h"
#include "screens/board/board_screen.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr ui::Colour kTeamColour{0, 0, 255};
constexpr ui::Colour kGoodColour{0, 255, 0};
constexpr ui::Colour kBadColour{255, 0, 0};

} // namespace

void BoardScreen::PressPosition(int position, MouseButton button)
{
    m_dragging = false;
    if (m_scoreDisplayOpen) {
        m_screens.bringToFront(ScreenKind::ScoreDisplay);
        return;
    }
    if (m_marksShown)
        return;
    if (button == MouseButton::Left) {
        m_dragging = true;
        m_draggedTeam = lblRegion[static_cast<std::size_t>(position)].text;
        m_dragSource = position;
        return;
    }
    TeamNamesOnBoard after = teams();
    clearPosition(after, position);
    changeTeams(after);
}

void BoardScreen::DropOnPosition(int target)
{
    if (!m_dragging)
        return;
    m_dragging = false;
    TeamNamesOnBoard after = teams();
    dropOnPosition(after, m_dragSource, target, m_draggedTeam);
    changeTeams(after);
}

bool BoardScreen::mayDropOn(int position) const { return m_dragging && isOnPath(m_dragSource, position); }

void BoardScreen::changeTeams(const TeamNamesOnBoard& after)
{
    if (after == teams())
        return;
    remember();
    setTeams(after);
    changed();
}

void BoardScreen::PressBackground()
{
    if (m_scoreDisplayOpen)
        m_screens.bringToFront(ScreenKind::ScoreDisplay);
}

std::vector<int> BoardScreen::pathOf(int position) const
{
    const std::string& team = lblRegion[static_cast<std::size_t>(position)].text;
    std::vector<int> path;
    if (team.empty())
        return path;
    for (int row = 0; row < kPositions && path.empty(); ++row)
        if (isFirstRound(Position{row}) && lblRegion[static_cast<std::size_t>(row)].text == team &&
            isOnPath(row, position))
            for (int p = row; p <= kChampion; p = bracketMap().NextPosition(p))
                if (lblRegion[static_cast<std::size_t>(p)].text == team)
                    path.push_back(p);
    return path;
}

void BoardScreen::MarkScores()
{
    m_marksShown = true;
    m_dragging = false;
    mnuHighSeed.enabled = false;
    const auto& games = gamePositions();
    for (std::size_t game = 0; game < games.size(); ++game) {
        const auto position = static_cast<std::size_t>(index(games[game]));
        const Verdict verdict = m_state.verdict.SlotStatus[position + 1];
        if (verdict != Verdict::Good && verdict != Verdict::Bad)
            continue;
        const bool good = verdict == Verdict::Good;
        lblRegion[position].colour = good ? kGoodColour : kBadColour;
        lblResult[game].text = std::string(1, good ? '=' : 'X'); // GCC 12 warns of an overlap in assigning literals
        lblResult[game].colour = lblRegion[position].colour;
    }
    describePositions();
    offerHistory();
}

void BoardScreen::ClearMarks()
{
    m_marksShown = false;
    mnuHighSeed.enabled = true;
    for (std::size_t i = 0; i < lblRegion.size(); ++i)
        lblRegion[i].colour = kTeamColour;
    for (std::size_t i = 0; i < lblResult.size(); ++i) {
        lblResult[i].text.clear();
        lblResult[i].colour = kTeamColour;
    }
    describePositions();
    offerHistory();
}

bool BoardScreen::keyPressed(ui::Control& control, const ui::KeyPress& press)
{
    if (press.key == ui::Key::Enter)
        return enterKey(control);
    const auto position = lblRegion.indexOf(control);
    return position && keyOnPosition(static_cast<int>(*position), press);
}

bool BoardScreen::enterKey(const ui::Control& control)
{
    if (cmdDefaultColors.visible && cmdDefaultColors.enabled && cmdDefaultColors.isDefault) {
        cmdDefaultColors.click();
        return true;
    }
    constexpr std::array<int, 3> kRing = {140, 141, 143};
    const auto* const place = std::ranges::find(kRing, control.tabIndex);
    if (place == kRing.end())
        return false;
    focused = controlAtTab(kRing[static_cast<std::size_t>(place - kRing.begin() + 1) % kRing.size()]);
    return true;
}

/// The arrow keys follow the picture, Space does what a click does, Delete what a right press does.
bool BoardScreen::keyOnPosition(int position, const ui::KeyPress& press)
{
    const auto go = [&](Direction direction) {
        static const BoardGeometry kPicture = layOutBoard(1366, 600);
        focused = &lblRegion[static_cast<std::size_t>(neighbour(kPicture, position, direction))];
        return true;
    };
    switch (press.key) {
    case ui::Key::Up:
        return go(Direction::Up);
    case ui::Key::Down:
        return go(Direction::Down);
    case ui::Key::Left:
        return go(Direction::Left);
    case ui::Key::Right:
        return go(Direction::Right);
    case ui::Key::Delete:
    case ui::Key::Backspace:
        PressPosition(position, MouseButton::Right);
        return true;
    case ui::Key::Character:
        if (press.character != ' ' || press.control || press.alt)
            return false;
        PressPosition(position, MouseButton::Left);
        DropOnPosition(position);
        return true;
    default:
        return false;
    }
}

/// The bracket is one stop of the tab order: the place that had the focus last.
void BoardScreen::gotFocus(ui::Control& control)
{
    const auto position = lblRegion.indexOf(control);
    if (!position)
        return;
    for (std::size_t i = 0; i < lblRegion.size(); ++i)
        lblRegion[i].tabStop = i == *position;
}

} // namespace tallyhoop
