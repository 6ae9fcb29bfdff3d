// tests/pool/outlook/duel_pool.h - a pool of two with sixteen open games, one of which decides between them.
#pragma once

#include "pool/outlook/final_pool.h"

namespace tallyhoop::test {

/// The only open game of the second round: "Team 1", seeded first, meets "Team 3", seeded third.
inline constexpr Position kDuel{24};
inline constexpr Position kUpperOfDuel{16};
inline constexpr Position kLowerOfDuel{17};

/// Open are the duel and the fifteen games of the later rounds. Both players pick the upper team of every game, but Bob
/// has "Team 3" for the duel alone. So Ann is first when the upper team wins it, Bob when the lower one does.
inline Pool duelPool()
{
    Pool pool;
    pool.field = finalField();
    pool.results = Entry{};
    Bracket& results = pool.results->picks = everyUpperTeamWins();
    results.clear(kDuel);
    for (const Position game : gamePositions())
        if (roundOf(game) > 2)
            results.clear(game);
    for (const char* name : {"Ann", "Bob"})
        pool.entries.push_back({everyUpperTeamWins(), "X", name, "", std::string{name} + "_X.THC"});
    pool.entries[1].picks.copy(kLowerOfDuel, kDuel);
    return pool;
}

inline Contest duelContest() { return *Contest::of(duelPool()); }

} // namespace tallyhoop::test
