// tests/pool/naive_scorer.cpp - one question for each place, asked from scratch every time.
#include "pool/naive_scorer.h"

#include "pool/sample_brackets.h"

namespace tallyhoop::test {

namespace {

struct Tournament {
    const Bracket& picks;
    const Bracket& results;

    const std::string& pick(int place) const { return picks.at(Position{place}); }
    const std::string& result(int place) const { return results.at(Position{place}); }

    bool isOpen(int place) const { return result(place).empty(); }
    bool isRight(int place) const { return !isOpen(place) && pick(place) == result(place); }
    bool isWrong(int place) const { return !isOpen(place) && pick(place) != result(place); }

    bool lostBefore(const std::string& team, int place) const
    {
        for (int earlier = 0; earlier < place; ++earlier)
            if (isWrong(earlier) && pick(earlier) == team)
                return true;
        return false;
    }

    bool isBad(int place) const
    {
        return isWrong(place) || (isOpen(place) && (pick(place).empty() || lostBefore(pick(place), place)));
    }

    bool canStillEarn(int place) const
    {
        const int round = roundAt(Position{place});
        if (!isOpen(place) || isBad(place) || round == 0)
            return false;
        if (round == 1)
            return true;
        const Entrants entrants = entrantsOf(Position{place});
        const auto mayCome = [this](Position from) {
            return isRight(static_cast<int>(from)) || canStillEarn(static_cast<int>(from));
        };
        return mayCome(entrants.upper) || mayCome(entrants.lower);
    }

    Verdict verdict(int place) const
    {
        if (isRight(place))
            return Verdict::Good;
        if (isBad(place))
            return Verdict::Bad;
        return canStillEarn(place) && place != 126 ? Verdict::Possible : Verdict::Open;
    }
};

} // namespace

Score scoreNaively(const Bracket& picks, const Bracket& results, const Payoffs& payoffs)
{
    const Tournament tournament{picks, results};
    Score scored;
    for (int place = 0; place < 127; ++place) {
        const int round = roundAt(Position{place});
        const int payoff = round == 0 ? 0 : payoffs.at(static_cast<std::size_t>(round - 1));
        scored.points += tournament.isRight(place) ? payoff : 0;
        scored.possible += tournament.canStillEarn(place) ? payoff : 0;
        scored.goodPicks = static_cast<std::int16_t>(scored.goodPicks + (round > 0 && tournament.isRight(place)));
        scored.badPicks = static_cast<std::int16_t>(scored.badPicks + tournament.isBad(place));
        scored.verdicts[Position{place}] = tournament.verdict(place);
    }
    return scored;
}

} // namespace tallyhoop::test
