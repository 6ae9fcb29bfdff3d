// pool/bracket.cpp - names and their numbers.
#include "pool/bracket.h"

#include <optional>
#include <utility>

namespace tallyhoop {

namespace {

std::shared_ptr<const TeamNames> noNames()
{
    static const auto empty = std::make_shared<const TeamNames>();
    return empty;
}

/// @returns the number of a position's name in the table of `like`. Nearly always a row is that of `like`, and a winner
///          is one of the two that met: searching is the exception.
TeamNumber expectedNumber(const ByPosition<std::string_view>& teams, Position position, const Bracket& like,
                          const ByPosition<TeamNumber>& sofar)
{
    const std::string_view team = teams[position];
    if (const auto entrants = feeders(position))
        for (const Position entrant : *entrants)
            if (team == teams[entrant])
                return sofar[entrant];
    return team == like.at(position) ? like.numbers()[position] : like.names().numberOf(team);
}

} // namespace

Bracket::Bracket() : m_names{noNames()} {}

void Bracket::put(Position position, std::string_view team)
{
    TeamNumber number = m_names->numberOf(team);
    if (number == kNoTeam && !team.empty()) {
        // A table of our own, with the names in use: there is room for one more.
        m_numbers[position] = kNoTeam;
        auto names = std::make_shared<TeamNames>();
        for (TeamNumber& used : m_numbers.values)
            used = names->add(m_names->nameOf(used));
        number = names->add(team);
        m_names = std::move(names);
    }
    m_numbers[position] = number;
}

Bracket Bracket::of(const ByPosition<std::string_view>& teams, const Bracket& like)
{
    Bracket bracket;
    bracket.m_names = like.m_names;
    for (const Position position : allPositions()) {
        if (teams[position].empty())
            continue;
        bracket.m_numbers[position] = expectedNumber(teams, position, like, bracket.m_numbers);
        if (bracket.m_numbers[position] != kNoTeam)
            continue;
        auto names = std::make_shared<TeamNames>();
        for (const Position named : allPositions())
            bracket.m_numbers[named] = names->add(teams[named]);
        bracket.m_names = std::move(names);
        break;
    }
    return bracket;
}

Bracket Bracket::of(const ByPosition<TeamNumber>& numbers, const Bracket& like)
{
    Bracket bracket{like};
    bracket.m_numbers = numbers;
    return bracket;
}

bool operator==(const Bracket& left, const Bracket& right)
{
    if (left.m_names == right.m_names)
        return left.m_numbers == right.m_numbers;
    for (const Position position : allPositions())
        if (left.at(position) != right.at(position))
            return false;
    return true;
}

ByPosition<TeamNumber> numbersIn(const TeamNames& names, const Bracket& bracket)
{
    if (&names == &bracket.names())
        return bracket.numbers();
    std::array<TeamNumber, TeamNames::kMost + 1> translated{};
    for (std::size_t own = 1; own <= bracket.names().size(); ++own) {
        const TeamNumber known = names.numberOf(bracket.names().nameOf(static_cast<TeamNumber>(own)));
        translated[own] = known != kNoTeam ? known : static_cast<TeamNumber>(TeamNames::kMost + own);
    }
    ByPosition<TeamNumber> numbers;
    for (const Position position : allPositions())
        numbers[position] = translated[bracket.numbers()[position]];
    return numbers;
}

} // namespace tallyhoop
