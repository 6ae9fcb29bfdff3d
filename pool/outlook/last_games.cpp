// pool/outlook/last_games.cpp - a tree over the games, in which outcomes that begin alike are scored once.
#include "pool/outlook/last_games.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

namespace {

/// Takes some numbers of a row.
void select(const PointsRow& from, const std::vector<std::size_t>& players, PointsRow& to)
{
    to.resize(players.size());
    for (std::size_t i = 0; i < players.size(); ++i)
        to[i] = from[players[i]];
}

} // namespace

LastGames::LastGames(std::vector<PlannedGame> games, std::size_t players)
    : m_games{std::move(games)},
      m_players{players},
      m_contenders{m_games, players},
      m_points(m_games.size() + 1),
      m_chances(players)
{
    for (const PlannedGame& game : m_games) {
        m_rows.emplace_back(game.points.size());
        if (game.openGame)
            m_openGames.push_back(*game.openGame);
    }
    m_chancesOfOutcomes.resize(std::size_t{1} << m_openGames.size());
    m_sums.resize(m_chancesOfOutcomes.size() * players);
}

void LastGames::count(const PointsRow& points, ByPosition<CandidateNumber>& teams)
{
    for (const std::size_t player : m_firsts)
        m_chances[player] = {};
    m_firsts.clear();
    m_teams = &teams;
    m_contenders.find(points, teams);
    takeContenders(points);
    descend(0, 0, 1);
}

void LastGames::takeContenders(const PointsRow& points)
{
    for (std::size_t game = 0; game < m_games.size(); ++game)
        for (const CandidateNumber winner : m_contenders.winners(game))
            select(m_games[game].points[winner], m_contenders.players(), m_rows[game][winner]);
    select(points, m_contenders.players(), m_points.front());
    for (PointsRow& row : m_points)
        row.resize(m_contenders.players().size());
}

/// @param outcome has a bit for each open game so far, as an OutcomeNumber has, the latest one lowest
void LastGames::descend(std::size_t level, std::size_t outcome, double chance)
{
    if (level == m_games.size()) {
        addOutcome(outcome, chance);
        return;
    }
    const PlannedGame& game = m_games[level];
    if (!game.openGame) {
        follow(level, game.walkover, outcome, chance);
        return;
    }
    const double upperChance = game.upperChance(*m_teams);
    if (upperChance > 0)
        follow(level, Side::Upper, outcome << 1, chance * upperChance);
    if (upperChance < 1)
        follow(level, Side::Lower, outcome << 1 | 1, chance * (1 - upperChance));
}

void LastGames::follow(std::size_t level, Side side, std::size_t outcome, double chance)
{
    const PointsRow& row = m_rows[level][m_games[level].play(side, *m_teams)];
    const PointsRow& before = m_points[level];
    PointsRow& after = m_points[level + 1];
    for (std::size_t i = 0; i < row.size(); ++i)
        after[i] = before[i] + row[i];
    descend(level + 1, outcome, chance);
}

void LastGames::addOutcome(std::size_t outcome, double chance)
{
    const PointsRow& points = m_points.back();
    std::int32_t most = points.front();
    for (const std::int32_t other : points)
        most = std::max(most, other);
    m_firstNow.clear();
    for (std::size_t i = 0; i < points.size(); ++i)
        if (points[i] == most)
            m_firstNow.push_back(m_contenders.players()[i]);

    m_chancesOfOutcomes[outcome] += chance;
    const bool isAlone = m_firstNow.size() == 1;
    const FirstChances chances{isAlone ? chance : 0, isAlone ? 0 : chance,
                               chance / static_cast<double>(m_firstNow.size())};
    for (const std::size_t player : m_firstNow) {
        if (m_chances[player].share == 0)
            m_firsts.push_back(player);
        m_chances[player] += chances;
        m_sums[outcome * m_players + player] += chances;
    }
}

void LastGames::addTo(ChanceOutlook& outlook) const
{
    for (std::size_t outcome = 0; outcome < m_chancesOfOutcomes.size(); ++outcome)
        for (std::size_t i = 0; i < m_openGames.size(); ++i) {
            if (sideOf(outcome, m_openGames.size() - 1 - i) == Side::Lower)
                continue;
            const std::size_t game = m_openGames[i];
            outlook.upperWins[game] += m_chancesOfOutcomes[outcome];
            for (std::size_t player = 0; player < m_players; ++player)
                outlook.players[player].andUpperWins[game] += m_sums[outcome * m_players + player];
        }
}

} // namespace tallyhoop
