// screens/board/board_screen_keys.cpp - the keys of the bracket, and the places that they lead to.
#include "screens/board/board_screen.h"

#include "pool/moves.h"
#include "screens/board/board_geometry.h"

namespace tallyhoop {

namespace {

constexpr const char* kNothingOpen = "Every game has a winner.";
constexpr const char* kNoTeamYet = "Nobody has come here yet: the games before this one are open.";

bool isCharacter(const ui::KeyPress& press, char character)
{
    return press.key == ui::Key::Character && press.character == character && !press.control && !press.alt;
}

} // namespace

bool BoardScreen::keyPressed(ui::Control& control, const ui::KeyPress& press)
{
    if (press.key != ui::Key::Enter) {
        const std::optional<Position> position = positionOfLabel(control);
        return position && keyOnPosition(*position, press);
    }
    if (m_verdicts) {
        cmdDefaultColors.click();
        return true;
    }
    ui::Control* const following = afterEnter(control);
    if (following != nullptr)
        focused = following;
    return following != nullptr;
}

/// The arrow keys follow the picture, Space does what a click does, Delete what a right press does; 1 and 2 fill the
/// open games in, one after another.
bool BoardScreen::keyOnPosition(Position position, const ui::KeyPress& press)
{
    static const BoardGeometry kPicture = layOutBoard(1366, 600);
    if (const std::optional<Direction> direction = directionOf(press.key)) {
        focused = &lblRegion[neighbour(kPicture, position, *direction)];
    } else if (press.key == ui::Key::Delete) {
        pressPosition(position, MouseButton::Right);
    } else if (press.key == ui::Key::Backspace) {
        goBack(position);
    } else if (isCharacter(press, ' ')) {
        advance(position);
    } else if (isCharacter(press, '1') || isCharacter(press, '2')) {
        pickWinner(position, press.character == '1' ? 0 : 1);
    } else {
        return false;
    }
    return true;
}

void BoardScreen::advance(Position position)
{
    pressPosition(position, MouseButton::Left);
    dropOnPosition(position);
}

/// Picks in the open game that has the focus, otherwise in the first one, and moves on to the next.
/// @param side 0 = the upper team wins, 1 = the lower one
void BoardScreen::pickWinner(Position place, std::size_t side)
{
    const bool isOpen = !isFirstRound(place) && m_bracket.isEmpty(place);
    const std::optional<Position> game = isOpen ? place : openGameAfter(m_bracket, kChampion);
    if (!game) {
        say(kNothingOpen);
        return;
    }
    const Position winner = feeders(*game)->at(side);
    if (m_bracket.isEmpty(winner)) {
        say(kNoTeamYet);
        return;
    }
    advance(winner);
    if (m_bracket.isEmpty(*game)) // nothing can be changed now
        return;
    m_pickedByKey = game;
    const std::optional<Position> following = openGameAfter(m_bracket, *game);
    moveOnTo(following.value_or(*game));
    if (!following)
        say(kNothingOpen);
}

/// Takes back what 1 or 2 has picked last. Where somebody has gone to another pick, it is that one that is meant.
void BoardScreen::goBack(Position place)
{
    const bool isOtherPick = !isFirstRound(place) && !m_bracket.isEmpty(place) && place != m_pickedByKey;
    if (m_pickedByKey && !isOtherPick)
        mnuUndo.click();
    else
        pressPosition(place, MouseButton::Right);
}

/// The focus goes to another place of the bracket, unless it is elsewhere.
void BoardScreen::moveOnTo(Position place)
{
    if (focused != nullptr && positionOfLabel(*focused))
        focused = &lblRegion[place];
}

void BoardScreen::gotFocus(ui::Control& control)
{
    if (const std::optional<Position> position = positionOfLabel(control))
        makeTabStop(*position);
}

} // namespace tallyhoop
