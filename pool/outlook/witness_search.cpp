// pool/outlook/witness_search.cpp - a player's own bracket, then one game after the other.
#include "pool/outlook/witness_search.h"

#include <algorithm>
#include <limits>

namespace tallyhoop {

namespace {

/// @returns by how much a player is ahead of the best of the others; not positive unless alone in front
std::int32_t leadOf(std::size_t player, const std::vector<std::int32_t>& points)
{
    std::int32_t others = std::numeric_limits<std::int32_t>::min() / 2;
    for (std::size_t other = 0; other < points.size(); ++other)
        if (other != player)
            others = std::max(others, points[other]);
    return points[player] - others;
}

/// @returns the last round into which somebody picks a team from here on; 0 for none
int furthestPick(const ByPosition<TeamNumber>& picks, TeamNumber team, Position from)
{
    int furthest = 0;
    for (std::optional<Position> game = from; game; game = next(*game))
        if (picks[*game] == team)
            furthest = roundOf(*game);
    return furthest;
}

} // namespace

WitnessSearch::Found WitnessSearch::bestFor(std::size_t player, bool climb) const
{
    Found best = evaluated(ownOutcome(player));
    std::int32_t lead = leadOf(player, best.points);
    for (bool improved = climb; improved && lead < 0;) {
        improved = false;
        const Found start = best;
        for (std::size_t game = 0; game < m_contest.games().size(); ++game) {
            Found changed = changedAt(start, game);
            const std::int32_t changedLead = leadOf(player, changed.points);
            if (changedLead <= lead)
                continue;
            lead = changedLead;
            best = std::move(changed);
            improved = true;
        }
    }
    return best;
}

/// Only the places that change are scored anew.
WitnessSearch::Found WitnessSearch::changedAt(const Found& start, std::size_t game) const
{
    Found changed{start.outcome ^ OutcomeNumber{1} << game, {}, start.points};
    changed.teams = m_contest.games().outcomeNumbers(changed.outcome);
    for (const Position position : gamePositions()) {
        const TeamNumber before = start.teams[position];
        const TeamNumber after = changed.teams[position];
        if (before == after)
            continue;
        for (std::size_t player = 0; player < changed.points.size(); ++player) {
            const TeamNumber pick = m_contest.picks(player)[position];
            if (pick != kNoTeam && (pick == before || pick == after))
                changed.points[player] += pick == after ? m_contest.payoff(position) : -m_contest.payoff(position);
        }
    }
    return changed;
}

OutcomeNumber WitnessSearch::ownOutcome(std::size_t player) const
{
    const OpenGames& games = m_contest.games();
    const ByPosition<TeamNumber>& picks = m_contest.picks(player);
    ByPosition<TeamNumber> teams = games.known().numbers();
    OutcomeNumber outcome = 0;
    std::size_t open = 0;
    for (const Position game : gamePositions()) {
        Side side = Side::Upper;
        if (open < games.size() && games.games()[open] == game) {
            const auto [upper, lower] = *feeders(game);
            if (furthestPick(picks, teams[lower], game) > furthestPick(picks, teams[upper], game)) {
                side = Side::Lower;
                outcome |= OutcomeNumber{1} << open;
            }
            ++open;
        }
        games.play(game, side, teams);
    }
    return outcome;
}

WitnessSearch::Found WitnessSearch::evaluated(OutcomeNumber outcome) const
{
    Found found{outcome, m_contest.games().outcomeNumbers(outcome), std::vector<std::int32_t>(m_contest.players())};
    for (std::size_t player = 0; player < found.points.size(); ++player)
        found.points[player] = m_contest.points(player, found.teams);
    return found;
}

} // namespace tallyhoop
