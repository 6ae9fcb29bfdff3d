// pool/outlook/contenders.cpp - the recursion, upwards from the earlier games.
#include "pool/outlook/contenders.h"

#include <algorithm>
#include <tuple>

namespace tallyhoop {

Contenders::Contenders(const std::vector<PlannedGame>& games, std::size_t players)
    : m_games{games}, m_nothing(players), m_ends(games.size())
{
    ByPosition<bool> isAwaited{};
    for (std::size_t game = games.size(); game-- > 0;) {
        const PlannedGame& planned = games[game];
        m_gameAt[planned.position] = game + 1;
        if (!isAwaited[planned.position])
            m_finalGames.push_back(game);
        isAwaited[planned.upper] = isAwaited[planned.lower] = true;
    }
}

void Contenders::find(const PointsRow& points, const ByPosition<CandidateNumber>& teams)
{
    m_leader = static_cast<std::size_t>(std::ranges::max_element(points) - points.begin());
    for (std::size_t game = 0; game < m_games.size(); ++game) {
        m_ends[game].winners.clear();
        for (const Side side : {Side::Upper, Side::Lower})
            if (m_games[game].openGame || m_games[game].walkover == side)
                findWinners(game, side, teams);
    }
    m_limits = points;
    for (const std::size_t game : m_finalGames)
        addRow(m_ends[game].most, m_limits);
    m_players.clear();
    for (std::size_t player = 0; player < points.size(); ++player)
        if (m_limits[player] >= points[m_leader])
            m_players.push_back(player);
}

const PointsRow& Contenders::mostAt(Position position) const
{
    const std::size_t game = m_gameAt[position];
    return game == 0 ? m_nothing : m_ends[game - 1].most;
}

void Contenders::findWinners(std::size_t game, Side side, const ByPosition<CandidateNumber>& teams)
{
    const PlannedGame& planned = m_games[game];
    const auto [own, other, numbers] = side == Side::Upper ? std::tie(planned.upper, planned.lower, planned.ofUpper)
                                                           : std::tie(planned.lower, planned.upper, planned.ofLower);
    const PointsRow& mostOfOther = mostAt(other);
    const std::size_t before = m_gameAt[own];
    if (before == 0) {
        addWinner(game, numbers[teams[own]], m_nothing, mostOfOther);
        return;
    }
    const End& end = m_ends[before - 1];
    for (std::size_t i = 0; i < end.winners.size(); ++i)
        addWinner(game, numbers[end.winners[i]], end.leads[i], mostOfOther);
}

void Contenders::addWinner(std::size_t game, CandidateNumber winner, const PointsRow& own, const PointsRow& other)
{
    End& end = m_ends[game];
    const std::size_t number = end.winners.size();
    end.winners.push_back(winner);
    if (number == end.leads.size())
        end.leads.emplace_back(m_nothing.size());
    PointsRow& lead = end.leads[number];
    const PointsRow& points = m_games[game].points[winner];
    const std::int32_t ofLeader = points[m_leader];
    for (std::size_t player = 0; player < lead.size(); ++player)
        lead[player] = own[player] + other[player] + points[player] - ofLeader;
    if (number == 0)
        end.most = lead;
    else
        std::ranges::transform(lead, end.most, end.most.begin(), [](auto one, auto two) { return std::max(one, two); });
}

} // namespace tallyhoop
