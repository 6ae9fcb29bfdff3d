// pool/scoring.cpp - two passes over the bracket: what is decided, then what is still possible.
#include "pool/scoring.h"

#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tallyhoop {

namespace {

/// What scoring asks of a position, side by side in memory.
struct Place {
    std::uint8_t round = 0; ///< 0 for the rows of the starting field
    std::array<Position, 2> feeders{};
};

const ByPosition<Place>& places()
{
    static const auto all = [] {
        ByPosition<Place> made;
        for (const Position game : gamePositions())
            made[game] = {static_cast<std::uint8_t>(roundOf(game)), *feeders(game)};
        return made;
    }();
    return all;
}

/// First pass, in the order of the positions: a team's loss is always met before any later pick of it.
class DecidedGames
{
public:
    DecidedGames(const ByPosition<TeamNumber>& picks, const ByPosition<TeamNumber>& results, const Payoffs& payoffs,
                 Score& score)
        : m_picks{picks}, m_results{results}, m_score{score}
    {
        std::ranges::copy(payoffs, m_payoffOfRound.begin() + 1);
        m_isOut[kNoTeam] = true; // no pick cannot win either
    }

    void scoreAll()
    {
        for (int region = 0; region < kRegions; ++region) {
            scoreTeams(teamsOfRegion(region));
            for (const Position game : gamesOfRegion(region))
                scorePlace(game);
        }
        for (const Position game : finalGames())
            scorePlace(game);
    }

private:
    /// The rows of the starting field: nearly always the same in both brackets, and then done in one go.
    void scoreTeams(std::span<const Position> rows)
    {
        const std::span picks = m_picks.from(rows.front(), kRowsPerRegion);
        const std::span results = m_results.from(rows.front(), kRowsPerRegion);
        if (std::ranges::equal(picks, results) && std::ranges::find(results, kNoTeam) == results.end())
            std::ranges::fill(m_score.verdicts.from(rows.front(), kRowsPerRegion), Verdict::Good);
        else
            for (const Position row : rows)
                scorePlace(row);
    }

    /// Without branches, which right and wrong picks would make unpredictable.
    void scorePlace(Position position)
    {
        const TeamNumber pick = m_picks[position];
        const TeamNumber result = m_results[position];
        const std::size_t round = m_places[position].round;
        const bool isDecided = result != kNoTeam;
        const bool isRight = isDecided & (pick == result);
        m_isOut[pick] |= isDecided & (!isRight);
        const bool isBad = (!isRight) & m_isOut[pick];
        m_score.points += isRight * m_payoffOfRound[round];
        m_score.goodPicks = static_cast<std::int16_t>(m_score.goodPicks + (isRight & (round != 0)));
        m_score.badPicks = static_cast<std::int16_t>(m_score.badPicks + isBad);
        m_score.verdicts[position] = isRight ? Verdict::Good : isBad ? Verdict::Bad : Verdict::Open;
    }

    const ByPosition<TeamNumber>& m_picks;
    const ByPosition<TeamNumber>& m_results;
    Score& m_score;
    const ByPosition<Place>& m_places = places();
    std::array<std::int32_t, kRounds + 1> m_payoffOfRound{}; ///< nothing for the rows of the starting field
    std::array<bool, 256> m_isOut{};                         ///< by team number
};

bool isAlive(Verdict verdict) { return verdict == Verdict::Good || verdict == Verdict::Possible; }

/// Second pass: an open pick can still earn its points when one of the two picks before it can, or did.
void addPossiblePoints(const Payoffs& payoffs, Score& score)
{
    const ByPosition<Place>& all = places();
    for (const Position game : gamePositions()) {
        if (score.verdicts[game] != Verdict::Open)
            continue;
        const auto& [round, feeders] = all[game];
        if (round > 1 && !isAlive(score.verdicts[feeders[0]]) && !isAlive(score.verdicts[feeders[1]]))
            continue;
        score.possible += payoffs[roundIndex(round)];
        if (game != kChampion) // on purpose: a champion that is still possible keeps the verdict Open
            score.verdicts[game] = Verdict::Possible;
    }
}

Result<std::int16_t> sixteenBits(std::int32_t points, const std::string& fileName)
{
    if (points < std::numeric_limits<std::int16_t>::min() || points > std::numeric_limits<std::int16_t>::max())
        return Failure{"The points of " + fileName + " are too large to be counted."};
    return static_cast<std::int16_t>(points);
}

/// @returns the finalist who is not the champion
const std::string& runnerUp(const Bracket& picks)
{
    return picks.at(kSemifinalB) == picks.at(kChampion) ? picks.at(kSemifinalA) : picks.at(kSemifinalB);
}

} // namespace

Score score(const Bracket& picks, const Bracket& results, const Payoffs& payoffs)
{
    Score scored;
    if (&picks.names() == &results.names())
        DecidedGames{picks.numbers(), results.numbers(), payoffs, scored}.scoreAll();
    else
        DecidedGames{numbersIn(results.names(), picks), results.numbers(), payoffs, scored}.scoreAll();
    addPossiblePoints(payoffs, scored);
    return scored;
}

Result<PlayerScore> scoreEntry(const Entry& entry, const Bracket& results, const Payoffs& payoffs)
{
    const Score scored = score(entry.picks, results, payoffs);
    const Result<std::int16_t> points = sixteenBits(scored.points, entry.fileName);
    if (!points)
        return points.failure();
    const Result<std::int16_t> maximum = sixteenBits(scored.points + scored.possible, entry.fileName);
    if (!maximum)
        return maximum.failure();
    const Result<std::int16_t> finalPoints = wholeNumber(entry.finalPoints);
    if (!finalPoints)
        return Failure{"The predicted total points of " + entry.fileName + " cannot be used. " +
                       finalPoints.failure().message};
    return PlayerScore{entry.fileName,
                       entry.initials + ", " + entry.name,
                       *points,
                       *maximum,
                       scored.goodPicks,
                       scored.badPicks,
                       entry.picks.at(kChampion),
                       runnerUp(entry.picks),
                       *finalPoints,
                       scored.verdicts};
}

Result<std::vector<PlayerScore>> scoreEntries(std::span<const Entry> entries, const Bracket& results,
                                              const Payoffs& payoffs, const Step& step)
{
    std::vector<PlayerScore> scores;
    scores.reserve(entries.size());
    for (const Entry& entry : entries) {
        const Result<PlayerScore> scored = scoreEntry(entry, results, payoffs);
        if (!scored)
            return scored.failure();
        scores.push_back(*scored);
        if (!step())
            break;
    }
    return scores;
}

} // namespace tallyhoop
