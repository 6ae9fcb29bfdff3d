// pool/projection.cpp - the check before a projection, and the projection.
#include "pool/projection.h"

namespace tallyhoop {

namespace {

constexpr std::array<std::size_t, 4> kRegionWinners{31, 62, 93, 124};
constexpr std::size_t kSemifinalLineA = 125;
constexpr std::size_t kSemifinalLineB = 126;
constexpr std::size_t kChampionLine = selection_line::kChampion;

/// The lines that matter to a team: its own semi-final, the other one, and who may come out of that.
struct Half {
    std::size_t ownSemifinal;
    std::size_t otherSemifinal;
    std::array<std::size_t, 2> opponents;
};

constexpr Half kFirstHalf{kSemifinalLineA, kSemifinalLineB, {93, 124}};
constexpr Half kSecondHalf{kSemifinalLineB, kSemifinalLineA, {31, 62}};

std::optional<Half> halfOf(const SelectionLines& results, const std::string& team)
{
    if (team == results[31] || team == results[62])
        return kFirstHalf;
    if (team == results[93] || team == results[124])
        return kSecondHalf;
    return std::nullopt;
}

bool isOpenOrHolds(const std::string& line, const std::string& team) { return line.empty() || line == team; }

} // namespace

FinalFourState ChkFinalFour(const SelectionLines& results, FinalFour& finalFour)
{
    for (std::size_t i = 0; i < kRegionWinners.size(); ++i) {
        const std::string& winner = results[kRegionWinners[i]];
        if (winner.empty())
            return FinalFourState::Incomplete;
        finalFour[i + 1] = winner;
    }
    return results[kChampionLine].empty() ? FinalFourState::Known : FinalFourState::ChampionKnown;
}

std::optional<SelectionLines> ProjectWinner(const SelectionLines& results, const FinalFour& finalFour, std::size_t team,
                                            FinalOpponent opponent)
{
    SelectionLines projected = results;
    const std::string& winner = finalFour.at(team);
    if (const std::optional<Half> half = halfOf(results, winner);
        half && isOpenOrHolds(projected[half->ownSemifinal], winner)) {
        projected[half->ownSemifinal] = winner;
        projected[kChampionLine] = winner;
        if (opponent == FinalOpponent::Open)
            return projected;
        const std::string& loser = results[half->opponents[opponent == FinalOpponent::First ? 0 : 1]];
        if (!isOpenOrHolds(projected[half->otherSemifinal], loser))
            return std::nullopt;
        projected[half->otherSemifinal] = loser;
        return projected;
    }
    // A name that two regions share may stand in the other semi-final already.
    const bool isFinalist = winner == projected[kSemifinalLineA] || winner == projected[kSemifinalLineB];
    if (!projected[kChampionLine].empty() || !isFinalist)
        return std::nullopt;
    projected[kChampionLine] = winner;
    return projected;
}

} // namespace tallyhoop
