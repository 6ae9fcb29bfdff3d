// pool/outlook/margins.cpp - the recursion, from the first round up, for all players at once.
#include "pool/outlook/margins.h"

#include <algorithm>

namespace tallyhoop {

namespace {

void raise(std::vector<std::int32_t>& most, const std::vector<std::int32_t>& other)
{
    for (std::size_t i = 0; i < most.size(); ++i)
        most[i] = std::max(most[i], other[i]);
}

std::vector<std::int32_t> sum(std::vector<std::int32_t> some, const std::vector<std::int32_t>& more)
{
    for (std::size_t i = 0; i < some.size(); ++i)
        some[i] += more[i];
    return some;
}

} // namespace

Margins::Margins(const Contest& contest) : m_contest{contest}
{
    for (const Position position : allPositions()) {
        m_picks[position].resize(contest.players());
        for (std::size_t player = 0; player < contest.players(); ++player)
            m_picks[position][player] = contest.picks(player)[position];
        const std::size_t candidates = contest.games().candidates(position).size();
        m_leads[position].assign(std::max(candidates, std::size_t{1}), Leads(contest.players()));
    }
    findClosed();
}

void Margins::findClosed()
{
    const OpenGames& open = m_contest.games();
    ByPosition<bool> isClosed;
    for (const Position position : allPositions()) {
        const auto from = feeders(position);
        isClosed[position] = !from || (isClosed[from->front()] && isClosed[from->back()] &&
                                       open.candidates(position).size() <= 1 && position < kSemifinalA);
    }
    for (const Position game : gamePositions()) {
        if (!isClosed[game])
            m_open.push_back(game);
        else if (!isClosed[*next(game)]) {
            Closed& closed = m_closed.emplace_back(Closed{game, Leads(m_contest.players())});
            std::vector<Position> games;
            for (const Position before : gamePositions())
                if (isOnPath(before, game))
                    games.push_back(before);
            for (std::size_t player = 0; player < m_contest.players(); ++player)
                closed.points[player] = m_contest.points(player, open.known().numbers(), games);
        }
    }
}

void Margins::find(std::size_t player, std::int32_t sign)
{
    m_player = player;
    m_sign = sign;
    for (const Closed& closed : m_closed) {
        Leads& leads = m_leads[closed.position].front();
        for (std::size_t i = 0; i < leads.size(); ++i)
            leads[i] = sign * (closed.points[player] - closed.points[i]);
    }
    for (const Position game : m_open)
        findAt(game);
}

std::vector<std::int32_t> Margins::atTheEnd() const { return most(kChampion); }

Margins::Leads Margins::most(Position position) const
{
    Leads leads = m_leads[position].front();
    for (const Leads& other : m_leads[position])
        raise(leads, other);
    return leads;
}

void Margins::findAt(Position game)
{
    const OpenGames& open = m_contest.games();
    const auto [upper, lower] = *feeders(game);
    const Leads mostUpper = most(upper);
    const Leads mostLower = most(lower);
    const std::vector<TeamNumber>& winners = open.candidates(game);
    if (winners.empty() || !open.known().isEmpty(game)) {
        // Whoever comes out on the two sides, the winner is this one, or nobody.
        m_leads[game].front() = sum(mostUpper, mostLower);
        if (!winners.empty())
            addGame(game, winners.front(), m_leads[game].front());
        return;
    }
    for (std::size_t i = 0; i < winners.size(); ++i) {
        const auto from = [&](Position side, const Leads& mostOther, bool isFirst) {
            const std::vector<TeamNumber>& teams = open.candidates(side);
            const auto team = std::ranges::lower_bound(teams, winners[i]);
            if (team == teams.end() || *team != winners[i])
                return false;
            Leads leads = sum(m_leads[side][static_cast<std::size_t>(team - teams.begin())], mostOther);
            if (isFirst)
                m_leads[game][i] = std::move(leads);
            else
                raise(m_leads[game][i], leads);
            return true;
        };
        const bool isUpper = from(upper, mostLower, true);
        from(lower, mostUpper, !isUpper);
        addGame(game, winners[i], m_leads[game][i]);
    }
}

void Margins::addGame(Position game, TeamNumber winner, Leads& leads) const
{
    const std::int32_t payoff = m_sign * m_contest.payoff(game);
    const std::vector<TeamNumber>& picks = m_picks[game];
    const std::int32_t earned = picks[m_player] == winner ? payoff : 0;
    for (std::size_t i = 0; i < leads.size(); ++i)
        leads[i] += earned - (picks[i] == winner ? payoff : 0);
}

} // namespace tallyhoop
