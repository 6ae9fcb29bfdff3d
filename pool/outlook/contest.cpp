// pool/outlook/contest.cpp - a pool in numbers.
#include "pool/outlook/contest.h"

#include "pool/picks.h"
#include "pool/results.h"

namespace tallyhoop {

Contest::Contest(const Bracket& results, std::span<const Bracket> picks, const Payoffs& payoffs) : m_games{results}
{
    m_picks.reserve(picks.size());
    for (const Bracket& bracket : picks)
        m_picks.push_back(numbersIn(m_games.known().names(), bracket));
    for (const Position game : gamePositions())
        m_payoffs[game] = payoffs[roundIndex(roundOf(game))];
}

Result<Contest> Contest::of(const Pool& pool)
{
    const Result<Payoffs>& payoffs = pool.field.payoffs.points();
    if (!payoffs)
        return payoffs.failure();
    const Entry results = completedResults(pool.results.value_or(Entry{}), pool.field);
    return Contest{results.picks, picksOf(pool.entries), *payoffs};
}

std::int32_t Contest::points(std::size_t player, const ByPosition<TeamNumber>& teams,
                             std::span<const Position> played) const
{
    const ByPosition<TeamNumber>& picked = m_picks[player];
    std::int32_t sum = 0;
    for (const Position game : played)
        if (teams[game] != kNoTeam && teams[game] == picked[game])
            sum += m_payoffs[game];
    return sum;
}

Contest Contest::among(std::span<const std::size_t> players) const
{
    Contest some = *this;
    some.m_picks.clear();
    for (const std::size_t player : players)
        some.m_picks.push_back(m_picks[player]);
    return some;
}

} // namespace tallyhoop
