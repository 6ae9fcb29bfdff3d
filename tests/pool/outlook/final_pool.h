// tests/pool/outlook/final_pool.h - a pool of three before its last game: each is first in one of the two outcomes.
#pragma once

#include "pool/moves.h"
#include "pool/outlook/contest.h"
#include "pool/sample_brackets.h"

#include <array>
#include <string>
#include <utility>

namespace tallyhoop::test {

/// "Team 1" .. "Team 64", seeded 1 to 16 in every region; 1, 2, 4, 8, 12 and 16 points.
inline Field finalField()
{
    Field field;
    for (const TeamRow row : allTeamRows())
        field.teams[row] = "Team " + std::to_string(index(row) + 1);
    for (std::size_t row = 0; row < field.seeds.size(); ++row)
        field.seeds.at(row) = std::to_string(row + 1);
    field.payoffs = PayoffTexts{{"1", "2", "4", "8", "12", "16"}};
    field.finalized = "1";
    return field;
}

/// Every game but the final is played: "Team 1", seeded first, meets "Team 35", seeded third.
inline Bracket beforeTheFinal()
{
    Bracket bracket = without(everyUpperTeamWins(), 126, 126);
    for (Position place = positionOf(TeamRow{34}); place != kSemifinalB; place = *next(place))
        bracket = advanced(bracket, place);
    return bracket;
}

/// Everybody has been right so far: 32 * 1 + 16 * 2 + 8 * 4 + 4 * 8 + 2 * 12 = 152 points. Ann has picked "Team 1" as
/// the champion, Bob and Cleo "Team 35".
inline Pool finalPool()
{
    Pool pool;
    pool.field = finalField();
    pool.results = Entry{};
    pool.results->picks = beforeTheFinal();
    const std::array<std::pair<const char*, Position>, 3> players{
        {{"Ann", kSemifinalA}, {"Bob", kSemifinalB}, {"Cleo", kSemifinalB}}};
    for (const auto& [name, champion] : players) {
        Entry entry{beforeTheFinal(), "X", name, "", std::string{name} + "_X.THC"};
        entry.picks.copy(champion, kChampion);
        pool.entries.push_back(entry);
    }
    return pool;
}

inline Contest finalContest() { return *Contest::of(finalPool()); }

} // namespace tallyhoop::test
