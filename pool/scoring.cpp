// pool/scoring.cpp - two passes over the bracket: what is decided, then what is still possible.
#include "pool/scoring.h"

#include "base/numbers.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kFirst = selection_line::kFirstTeam;
constexpr std::size_t kLast = selection_line::kChampion;

/// First pass, from the first slot on: a team's loss is always met at a lower slot than any later pick of it.
class DecidedGames
{
public:
    DecidedGames(const NumberedPair& pair, const Payoffs& payoffs, NumberedScore& score) : m_pair{pair}, m_score{score}
    {
        std::ranges::copy(payoffs, m_payoffOfRound.begin() + 1);
        m_isOut[kNoTeam] = true; // an empty pick cannot win either
    }

    void scoreAll()
    {
        for (std::size_t region = 0; region < kRegions; ++region) {
            const std::size_t firstRow = kFirst + region * kRegionBlock;
            scoreRows(firstRow);
            for (std::size_t slot = firstRow + kRowsPerRegion; slot < firstRow + kRegionBlock; ++slot)
                scoreSlot(slot);
        }
        for (std::size_t slot = kFirst + kSemifinalA; slot <= kLast; ++slot)
            scoreSlot(slot);
    }

private:
    /// The rows of the starting field: nearly always the same in both brackets, and then done in one go.
    void scoreRows(std::size_t firstRow)
    {
        const auto picks = m_pair.picks.begin() + firstRow;
        const auto results = m_pair.results.begin() + firstRow;
        const bool isComplete = std::find(results, results + kRowsPerRegion, kNoTeam) == results + kRowsPerRegion;
        if (isComplete && std::equal(picks, picks + kRowsPerRegion, results))
            std::fill_n(m_score.status.begin() + firstRow, kRowsPerRegion, Verdict::Good);
        else
            for (std::size_t slot = firstRow; slot < firstRow + kRowsPerRegion; ++slot)
                scoreSlot(slot);
    }

    /// Without branches, which right and wrong picks would make unpredictable.
    void scoreSlot(std::size_t slot)
    {
        const TeamNumber pick = m_pair.picks[slot];
        const TeamNumber result = m_pair.results[slot];
        const std::size_t round = m_slots[slot].round;
        const bool isDecided = result != kNoTeam;
        const bool isRight = isDecided & (pick == result);
        m_isOut[pick] |= isDecided & (!isRight);
        const bool isBad = (!isRight) & m_isOut[pick];
        m_score.points += isRight * m_payoffOfRound[round];
        m_score.goodPicks = static_cast<std::int16_t>(m_score.goodPicks + (isRight & (round != 0)));
        m_score.badPicks = static_cast<std::int16_t>(m_score.badPicks + isBad);
        m_score.status[slot] = isRight ? Verdict::Good : isBad ? Verdict::Bad : Verdict::Open;
    }

    const NumberedPair& m_pair;
    NumberedScore& m_score;
    const std::array<BracketSlot, 128>& m_slots = bracketSlots();
    std::array<std::int32_t, kRounds + 1> m_payoffOfRound{}; ///< nothing for the rows of the starting field
    std::array<bool, 256> m_isOut{};                         ///< by team number
};

bool isAlive(Verdict verdict) { return verdict == Verdict::Good || verdict == Verdict::Possible; }

/// Second pass: an open pick can still earn its points when one of the two picks before it can, or did.
void addPossiblePoints(const Payoffs& payoffs, NumberedScore& score)
{
    const auto& slots = bracketSlots();
    for (std::size_t slot = kFirst; slot <= kLast; ++slot) {
        if (score.status[slot] != Verdict::Open || slots[slot].round == 0)
            continue;
        const auto& [round, feeders] = slots[slot];
        if (round > 1 && !isAlive(score.status[feeders[0]]) && !isAlive(score.status[feeders[1]]))
            continue;
        score.possible += payoffs[static_cast<std::size_t>(round - 1)];
        if (slot != kLast) // on purpose: a champion that is still possible keeps the verdict Open
            score.status[slot] = Verdict::Possible;
    }
}

/// @returns the teams picked for a game they did not win, each once, in order of their loss
std::vector<std::string> eliminatedTeams(const SelectionLines& picks, const NumberedPair& pair)
{
    std::array<std::size_t, 128> losses{}; // slots; the names then come into a list that fits them
    std::size_t count = 0;
    std::array<bool, 256> isListed{};
    for (std::size_t slot = kFirst; slot <= kLast; ++slot) {
        const TeamNumber pick = pair.picks[slot];
        const bool lost = pair.results[slot] != kNoTeam && pair.results[slot] != pick;
        if (lost && pick != kNoTeam && !isListed[pick]) {
            isListed[pick] = true;
            losses[count++] = slot;
        }
    }
    std::vector<std::string> teams;
    teams.reserve(count);
    for (std::size_t loss = 0; loss < count; ++loss)
        teams.push_back(picks[losses[loss]]);
    return teams;
}

Result<std::int16_t> sixteenBits(std::int32_t points, const std::string& fileName)
{
    if (points < std::numeric_limits<std::int16_t>::min() || points > std::numeric_limits<std::int16_t>::max())
        return Failure{"The points of " + fileName + " are too large to be counted."};
    return static_cast<std::int16_t>(points);
}

/// @returns the finalist who is not the champion
const std::string& runnerUp(const SelectionLines& picks)
{
    constexpr std::size_t kFinalistA = kLast - 2;
    constexpr std::size_t kFinalistB = kLast - 1;
    return picks[kFinalistB] == picks[kLast] ? picks[kFinalistA] : picks[kFinalistB];
}

} // namespace

NumberedScore scoreNumbered(const NumberedPair& pair, const Payoffs& payoffs)
{
    NumberedScore score;
    DecidedGames{pair, payoffs, score}.scoreAll();
    addPossiblePoints(payoffs, score);
    return score;
}

Scoring::Scoring(const SelectionLines& results, const Payoffs& payoffs) : m_results{results}, m_payoffs{payoffs} {}

ScoredPicks Scoring::score(const SelectionLines& picks) const
{
    const NumberedPair pair = m_results.pairWith(picks);
    const NumberedScore score = scoreNumbered(pair, m_payoffs);
    ScoredPicks scored{score.points, score.possible, score.goodPicks, score.badPicks, {}};
    std::copy(score.status.begin(), score.status.end(), scored.verdict.SlotStatus.begin());
    scored.verdict.EliminatedTeams = eliminatedTeams(picks, pair);
    return scored;
}

Result<ScoreLine> Scoring::line(const std::string& fileName, const SelectionLines& picks, ScoredVerdict& verdict) const
{
    ScoredPicks scored = score(picks);
    verdict = std::move(scored.verdict);

    const Result<std::int16_t> points = sixteenBits(scored.points, fileName);
    if (!points)
        return points.failure();
    const Result<std::int16_t> maximum = sixteenBits(scored.points + scored.possible, fileName);
    if (!maximum)
        return maximum.failure();
    const Result<std::int16_t> finalPoints = wholeNumber(picks[selection_line::kFinalPoints]);
    if (!finalPoints)
        return Failure{"The predicted total points of " + fileName + " cannot be used. " +
                       finalPoints.failure().message};

    ScoreLine line;
    line.FileName = fileName;
    line.PlayerName = picks[selection_line::kInitials] + ", " + picks[selection_line::kName];
    line.Points = *points;
    line.MaxPoints = *maximum;
    line.GoodPicks = scored.goodPicks;
    line.BadPicks = scored.badPicks;
    line.WinningPick = picks[kLast];
    line.RunnerUpPick = runnerUp(picks);
    line.FinalPoints = *finalPoints;
    return line;
}

Result<Payoffs> payoffsOf(const std::array<std::string, 6>& texts)
{
    Payoffs payoffs{};
    for (std::size_t round = 0; round < texts.size(); ++round) {
        const Result<std::int16_t> payoff = wholeNumber(texts[round]);
        if (!payoff)
            return payoff.failure();
        payoffs[round] = *payoff;
    }
    return payoffs;
}

} // namespace tallyhoop
