// intake/game_words.cpp - region, round, and which game of it, counted from the top.
#include "intake/game_words.h"

#include "base/text.h"

namespace tallyhoop {

std::string gameWords(const Field& field, Game game)
{
    const Position position = positionOf(game);
    if (position == kChampion)
        return "final";
    const std::string number = std::to_string(gameOfColumn(position) + 1);
    const std::optional<int> region = regionOf(position);
    if (!region)
        return "semifinal " + number;
    const std::string title = withoutOuterBlanks(field.regionTitles.at(static_cast<std::size_t>(*region)));
    return (title.empty() ? "region " + std::to_string(*region + 1) : title) + ", round " +
           std::to_string(roundOf(position)) + ", game " + number;
}

} // namespace tallyhoop
