// pool/scoring.h - the score of one bracket against the results, and what became of each of its picks.
#pragma once

#include "base/result.h"
#include "base/step.h"
#include "pool/entry.h"
#include "pool/payoffs.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// What became of a pick.
enum class Verdict : std::uint8_t {
    None,
    Good,     ///< decided, and right (also every first-round row whose team is that of the results)
    Bad,      ///< decided and wrong, or open and the team is out, or no pick
    Open,     ///< not decided, and cannot earn points any longer
    Possible, ///< not decided, and can still earn its points
};

using Verdicts = ByPosition<Verdict>;

/// Whole points; picks are counted in games (0..63), bad ones in places (0..127).
struct Score {
    std::int32_t points = 0;   ///< earned so far
    std::int32_t possible = 0; ///< that open games can still bring
    std::int16_t goodPicks = 0;
    std::int16_t badPicks = 0;
    Verdicts verdicts;

    friend bool operator==(const Score&, const Score&) = default;
};

/// Scores picks against the results entered so far; a place where the results have nobody is a game not yet played.
/// Cannot fail: a team that the results do not know simply never matches. Names are compared exactly.
Score score(const Bracket& picks, const Bracket& results, const Payoffs& payoffs);

/// A player's score as lists and reports show it, every number within 16 bits.
struct PlayerScore {
    std::string fileName;
    std::string playerName; ///< initials, ", ", name
    std::int16_t points = 0;
    std::int16_t maxPoints = 0; ///< earned and still possible
    std::int16_t goodPicks = 0;
    std::int16_t badPicks = 0;
    std::string winningPick;      ///< the player's champion; empty = none
    std::string runnerUpPick;     ///< the player's other finalist; empty = none
    std::int16_t finalPoints = 0; ///< tie-breaker; 0 when there is none
    Verdicts verdicts;

    friend bool operator==(const PlayerScore&, const PlayerScore&) = default;
};

/// Scores an entry and adds the names.
/// @returns a failure when the points or the tie-breaker do not fit 16 bits
Result<PlayerScore> scoreEntry(const Entry& entry, const Bracket& results, const Payoffs& payoffs);

/// Scores entries, one step of work each.
/// @returns a score for each, in order, fewer when the work was stopped; a failure when a number does not fit 16 bits
Result<std::vector<PlayerScore>> scoreEntries(std::span<const Entry> entries, const Bracket& results,
                                              const Payoffs& payoffs, const Step& step = goOn);

} // namespace tallyhoop
