// pool/projection.cpp - the check before a projection, and the projection.
#include "pool/projection.h"

namespace tallyhoop {

namespace {

/// The places that matter to a team: its own semi-final, the other one, and who may come out of that.
struct Half {
    Position ownSemifinal;
    Position otherSemifinal;
    std::array<Position, 2> opponents;
};

std::optional<Half> halfOf(const Bracket& results, const std::string& team)
{
    const auto wins = [&](int region) { return team == results.at(regionWinner(region)); };
    if (wins(0) || wins(1))
        return Half{kSemifinalA, kSemifinalB, {regionWinner(2), regionWinner(3)}};
    if (wins(2) || wins(3))
        return Half{kSemifinalB, kSemifinalA, {regionWinner(0), regionWinner(1)}};
    return std::nullopt;
}

bool isOpenOrHolds(const Bracket& bracket, Position position, const std::string& team)
{
    return bracket.isEmpty(position) || bracket.at(position) == team;
}

} // namespace

FinalFourState finalFourState(const Bracket& results)
{
    for (int region = 0; region < kRegions; ++region)
        if (results.isEmpty(regionWinner(region)))
            return FinalFourState::Incomplete;
    return results.isEmpty(kChampion) ? FinalFourState::Known : FinalFourState::ChampionKnown;
}

FinalFour finalFourOf(const Bracket& results)
{
    FinalFour winners;
    for (int region = 0; region < kRegions; ++region)
        winners.at(static_cast<std::size_t>(region)) = results.at(regionWinner(region));
    return winners;
}

std::optional<Bracket> projectWinner(const Bracket& results, const std::string& team, FinalOpponent opponent)
{
    Bracket projected = results;
    if (const std::optional<Half> half = halfOf(results, team);
        half && isOpenOrHolds(projected, half->ownSemifinal, team)) {
        projected.put(half->ownSemifinal, team);
        projected.put(kChampion, team);
        if (opponent == FinalOpponent::Open)
            return projected;
        const std::string& loser = results.at(half->opponents[opponent == FinalOpponent::First ? 0 : 1]);
        if (!isOpenOrHolds(projected, half->otherSemifinal, loser))
            return std::nullopt;
        projected.put(half->otherSemifinal, loser);
        return projected;
    }
    // A name that two regions share may be in the other semi-final already.
    const bool isFinalist = team == projected.at(kSemifinalA) || team == projected.at(kSemifinalB);
    if (!projected.isEmpty(kChampion) || !isFinalist)
        return std::nullopt;
    projected.put(kChampion, team);
    return projected;
}

const std::string& finalOpponent(const Bracket& projected, int region)
{
    return projected.at(region < 2 ? kSemifinalB : kSemifinalA);
}

} // namespace tallyhoop
