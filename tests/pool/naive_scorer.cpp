// tests/pool/naive_scorer.cpp - one question per slot, asked from scratch every time.
#include "pool/naive_scorer.h"

#include "pool/sample_brackets.h"

#include <algorithm>

namespace tallyhoop::test {

namespace {

struct Game {
    const SelectionLines& picks;
    const SelectionLines& results;

    const std::string& pick(int slot) const { return picks.at(static_cast<std::size_t>(slot)); }
    const std::string& result(int slot) const { return results.at(static_cast<std::size_t>(slot)); }

    bool isOpen(int slot) const { return result(slot).empty(); }
    bool isRight(int slot) const { return !isOpen(slot) && pick(slot) == result(slot); }
    bool isWrong(int slot) const { return !isOpen(slot) && pick(slot) != result(slot); }

    bool lostBefore(const std::string& team, int slot) const
    {
        for (int earlier = 1; earlier < slot; ++earlier)
            if (isWrong(earlier) && pick(earlier) == team)
                return true;
        return false;
    }

    bool isBad(int slot) const
    {
        return isWrong(slot) || (isOpen(slot) && (pick(slot).empty() || lostBefore(pick(slot), slot)));
    }

    bool canStillEarn(int slot) const
    {
        if (!isOpen(slot) || isBad(slot) || roundOfSlot(slot) == 0)
            return false;
        if (roundOfSlot(slot) == 1)
            return true;
        const Entrants entrants = entrantsOf(slot);
        return isRight(entrants.upper) || canStillEarn(entrants.upper) || isRight(entrants.lower) ||
               canStillEarn(entrants.lower);
    }

    Verdict verdict(int slot) const
    {
        if (isRight(slot))
            return Verdict::Good;
        if (isBad(slot))
            return Verdict::Bad;
        return canStillEarn(slot) && slot != 127 ? Verdict::Possible : Verdict::Open;
    }
};

} // namespace

ScoredPicks scoreNaively(const SelectionLines& picks, const SelectionLines& results, const Payoffs& payoffs)
{
    const Game game{picks, results};
    ScoredPicks scored;
    for (int slot = 1; slot <= 127; ++slot) {
        const int round = roundOfSlot(slot);
        const int payoff = round == 0 ? 0 : payoffs.at(static_cast<std::size_t>(round - 1));
        scored.points += game.isRight(slot) ? payoff : 0;
        scored.possible += game.canStillEarn(slot) ? payoff : 0;
        scored.goodPicks = static_cast<std::int16_t>(scored.goodPicks + (round > 0 && game.isRight(slot)));
        scored.badPicks = static_cast<std::int16_t>(scored.badPicks + game.isBad(slot));
        scored.verdict.SlotStatus.at(static_cast<std::size_t>(slot)) = game.verdict(slot);
        auto& out = scored.verdict.EliminatedTeams;
        if (game.isWrong(slot) && !game.pick(slot).empty() && std::ranges::find(out, game.pick(slot)) == out.end())
            out.push_back(game.pick(slot));
    }
    return scored;
}

} // namespace tallyhoop::test
