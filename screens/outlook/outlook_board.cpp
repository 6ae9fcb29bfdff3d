// screens/outlook/outlook_board.cpp - texts and colours of the places.
#include "screens/outlook/outlook_board.h"

#include "reports/outlook_words.h"
#include "screens/board/board_words.h"

#include <cmath>

namespace tallyhoop {

namespace {

constexpr ui::Colour kWhite{255, 255, 255};
constexpr ui::Colour kHelps{11, 107, 43};
constexpr ui::Colour kHarms{160, 21, 21};
constexpr ui::Colour kNoMatter{96, 102, 114};

/// @returns what a click on a place does, see WhatIf::press()
const char* whatAPressDoes(Position position, const Bracket& entered, const Bracket& supposed)
{
    if (supposed.isEmpty(position))
        return "An open game. Click one of its teams to suppose that it wins.";
    const std::optional<Position> game = next(position);
    if (!game)
        return "The champion. Click the other team of the final to suppose that it wins; a right click takes this "
               "back.";
    if (supposed.isEmpty(*game))
        return "Click to suppose that this team wins, once more to take it back; nothing is saved.";
    if (supposed.at(*game) != supposed.at(position))
        return "This team has lost. Click to suppose that it wins instead; nothing is saved.";
    return supposed.at(*game) == entered.at(*game)
               ? "This team has won. Click to suppose that the game is still open; nothing is saved."
               : "Supposed to win its game. Click to take it back.";
}

} // namespace

OutlookBoard::OutlookBoard(ui::Screen* owner) : m_owner{owner}
{
    for (const Position position : allPositions())
        lblSwing[position].tabStop = false;
    makeTabStop(allPositions().front());
}

void OutlookBoard::showSupposed(const Field& field, const Bracket& entered, const Bracket& supposed)
{
    for (std::size_t region = 0; region < lblRegionTitle.size(); ++region)
        lblRegionTitle[region].text = field.regionTitles.at(region);
    const BoardPicture picture{field, supposed};
    for (const Position position : allPositions()) {
        ui::Label& label = lblRegion[position];
        const bool differs = supposed.at(position) != entered.at(position);
        label.text = supposed.at(position);
        label.spokenName = spokenPlace(picture, position);
        if (differs)
            label.spokenName += ", supposed";
        label.colour = differs ? std::optional{kSupposedText} : std::nullopt;
        label.background = differs ? std::optional{kSupposedBackground} : std::nullopt;
        label.explanation = whatAPressDoes(position, entered, supposed);
    }
}

void OutlookBoard::showSwings(std::span<const OpenGame> games, std::span<const double> swings)
{
    for (const Position position : allPositions()) {
        lblSwing[position].visible = false;
        lblSwing[position].text.clear();
        lblSwing[position].spokenName.clear();
        lblSwing[position].background.reset();
    }
    for (std::size_t i = 0; i < swings.size(); ++i) {
        const auto [upper, lower] = *feeders(games[i].game);
        showSwing(upper, swings[i]);
        showSwing(lower, -swings[i]);
    }
}

void OutlookBoard::showSwing(Position side, double swing)
{
    ui::Label& label = lblSwing[side];
    label.visible = true;
    label.text = changeInWords(swing);
    label.colour = kWhite;
    label.background = std::abs(swing) < kLeastSwing ? kNoMatter : swing > 0 ? kHelps : kHarms;
    label.spokenName =
        std::abs(swing) < kLeastSwing ? "does not matter" : changeInWords(swing) + " percentage points if it wins";
    lblRegion[side].spokenName += ", " + label.spokenName;
}

bool OutlookBoard::isMarked(Position position) const
{
    return markedGame && (position == *markedGame || next(position) == markedGame);
}

std::optional<Position> OutlookBoard::positionOfLabel(const ui::Control& control) const
{
    return lblRegion.indexOf<Position>(control);
}

void OutlookBoard::makeTabStop(Position position)
{
    for (const Position other : allPositions())
        lblRegion[other].tabStop = other == position;
}

} // namespace tallyhoop
