// pool/scoring.h - the scoring of one bracket against the results, as a pure function.
#pragma once

#include "base/result.h"
#include "pool/numbered_bracket.h"
#include "pool/pool_lines.h"
#include "screens/mod_tallyhoop.h"
#include "screens/screens.h"

#include <array>
#include <cstdint>
#include <string>

namespace tallyhoop {

/// One player's score.
struct ScoreLine {
    std::string FileName;         ///< as it was given
    std::string PlayerName;       ///< initials, ", ", name
    std::int16_t Points = 0;      ///< earned so far
    std::int16_t MaxPoints = 0;   ///< earned and still possible
    std::int16_t GoodPicks = 0;   ///< games picked right
    std::int16_t BadPicks = 0;    ///< slots with the verdict Bad
    std::string WinningPick;      ///< the player's champion
    std::string RunnerUpPick;     ///< the player's other finalist
    std::int16_t FinalPoints = 0; ///< tie-breaker; 0 when there is none

    friend bool operator==(const ScoreLine&, const ScoreLine&) = default;
};

/// Points and counts of one bracket, before names are attached.
struct ScoredPicks {
    std::int32_t points = 0;
    std::int32_t possible = 0; ///< points that open games can still bring
    std::int16_t goodPicks = 0;
    std::int16_t badPicks = 0;
    ScoredVerdict verdict;
};

/// What scoring finds out about numbered brackets.
struct NumberedScore {
    std::int32_t points = 0;
    std::int32_t possible = 0;
    std::int16_t goodPicks = 0;
    std::int16_t badPicks = 0;
    std::array<Verdict, 128> status{}; ///< by slot 1..127
};

/// Scores numbered picks: the inner part of Scoring, for those who keep brackets numbered.
NumberedScore scoreNumbered(const NumberedPair& pair, const Payoffs& payoffs);

/// Scores brackets against one set of results. Cannot fail: an unknown team name simply never matches. Names are
/// compared exactly.
class Scoring
{
public:
    /// @param results lines 1..127: a team name for each slot, empty = game not yet played; to be kept unchanged as
    /// long
    ///                as this is used
    /// @param payoffs whole points for a right pick in rounds 1..6
    Scoring(const SelectionLines& results, const Payoffs& payoffs);

    /// @param picks lines 1..127, empty = no pick
    ScoredPicks score(const SelectionLines& picks) const;

    /// Scores a player's lines and fills in the line that the score display and the reports show.
    /// @returns a failure when the tie-breaker or the points do not fit 16 bits
    Result<ScoreLine> line(const std::string& fileName, const SelectionLines& picks, ScoredVerdict& verdict) const;

private:
    NumberedResults m_results;
    Payoffs m_payoffs;
};

/// @returns the six payoffs from their texts, rounds 1..6; a failure when one does not fit 16 bits
Result<Payoffs> payoffsOf(const std::array<std::string, 6>& texts);

} // namespace tallyhoop
