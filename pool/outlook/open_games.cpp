// pool/outlook/open_games.cpp - candidates upwards, known winners downwards, then what is left open.
#include "pool/outlook/open_games.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tallyhoop {

namespace {

/// The two places that meet for each game's place, without asking for each anew.
const ByPosition<std::array<Position, 2>>& entrantsOfGames()
{
    static const auto all = [] {
        ByPosition<std::array<Position, 2>> made;
        for (const Position game : gamePositions())
            made[game] = *feeders(game);
        return made;
    }();
    return all;
}

bool contains(const std::vector<TeamNumber>& teams, TeamNumber team) { return std::ranges::binary_search(teams, team); }

} // namespace

OpenGames::OpenGames(Bracket results) : m_known{std::move(results)}
{
    findCandidates();
    fillInBelow();
    findCandidates();
    findCourses();
}

void OpenGames::findCandidates()
{
    for (const Position position : allPositions()) {
        std::vector<TeamNumber>& teams = m_candidates[position];
        teams.clear();
        if (!m_known.isEmpty(position)) {
            teams.push_back(m_known.numbers()[position]);
        } else if (!isFirstRound(position)) {
            const auto& [upper, lower] = entrantsOfGames()[position];
            std::ranges::set_union(m_candidates[upper], m_candidates[lower], std::back_inserter(teams));
        }
    }
}

void OpenGames::fillInBelow()
{
    const auto& games = gamePositions();
    for (auto game = games.rbegin(); game != games.rend(); ++game) {
        const TeamNumber winner = m_known.numbers()[*game];
        const auto& [upper, lower] = entrantsOfGames()[*game];
        const bool maybeUpper = contains(m_candidates[upper], winner);
        const bool maybeLower = contains(m_candidates[lower], winner);
        if (winner != kNoTeam && maybeUpper != maybeLower)
            m_known.copy(*game, maybeUpper ? upper : lower);
    }
}

void OpenGames::findCourses()
{
    ByPosition<TeamNumber> teams = m_known.numbers();
    for (const Position game : gamePositions()) {
        const auto& [upper, lower] = entrantsOfGames()[game];
        const std::vector<TeamNumber>& candidates = m_candidates[game];
        if (candidates.size() == 1)
            teams[game] = candidates.front();
        else if (m_candidates[lower].empty() && !candidates.empty())
            m_courses[game] = Course::Upper;
        else if (m_candidates[upper].empty() && !candidates.empty())
            m_courses[game] = Course::Lower;
        else if (!candidates.empty()) {
            m_courses[game] = Course::Open;
            m_games.push_back(game);
        }
    }
    m_known = Bracket::of(teams, m_known);
}

void OpenGames::play(Position game, Side side, ByPosition<TeamNumber>& teams) const
{
    const auto& [upper, lower] = entrantsOfGames()[game];
    switch (m_courses[game]) {
    case Course::Known:
        break;
    case Course::Open:
        teams[game] = teams[side == Side::Upper ? upper : lower];
        break;
    case Course::Upper:
        teams[game] = teams[upper];
        break;
    case Course::Lower:
        teams[game] = teams[lower];
        break;
    }
}

ByPosition<TeamNumber> OpenGames::outcomeNumbers(OutcomeNumber number) const
{
    ByPosition<TeamNumber> teams = m_known.numbers();
    std::size_t open = 0;
    for (const Position game : gamePositions()) {
        const bool isOpen = open < m_games.size() && m_games[open] == game;
        play(game, isOpen ? sideOf(number, open) : Side::Upper, teams);
        open += isOpen ? 1 : 0;
    }
    return teams;
}

Bracket OpenGames::outcome(OutcomeNumber number) const { return Bracket::of(outcomeNumbers(number), m_known); }

} // namespace tallyhoop
