// intake/known_teams.cpp - the two that meet are looked at first: two teams of a field may be spelled alike.
#include "intake/known_teams.h"

#include "base/windows1252.h"
#include "intake/plain_text.h"

#include <optional>

namespace tallyhoop {

namespace {

/// @returns the one of two teams that is meant, of two spelled alike the one spelled more like it; nothing when it is
///          neither
std::optional<std::string_view> oneOfTwo(std::string_view upper, std::string_view lower, std::string_view pick)
{
    if (pick == upper || pick == lower)
        return pick == upper ? upper : lower;
    const std::string same = canonicalOf(pick);
    const std::string sameUpper = canonicalOf(upper);
    const std::string sameLower = canonicalOf(lower);
    if (same == sameUpper || same == sameLower)
        return same == sameUpper ? upper : lower;
    if (equalFolded(same, sameUpper) || equalFolded(same, sameLower))
        return equalFolded(same, sameUpper) ? upper : lower;
    return std::nullopt;
}

} // namespace

std::string canonicalOf(std::string_view text) { return canonical(toUtf8(text)); }

KnownTeams::KnownTeams(const Field& field) : m_start{startingBracket(field)}
{
    for (const std::string& team : field.teams.values) {
        const std::string same = canonicalOf(team);
        if (same.empty())
            continue;
        m_exact.emplace(same, team);
        m_folded.emplace(upperCase(same), team);
    }
}

Bracket KnownTeams::bracketOf(const ByGame<std::string>& picks) const
{
    ByPosition<std::string_view> teams;
    for (const Position position : allPositions()) {
        const std::optional<Game> game = gameOf(position);
        if (!game) {
            teams[position] = m_start.at(position);
            continue;
        }
        const std::string& pick = picks[*game];
        if (pick.empty())
            continue;
        const auto [upper, lower] = *feeders(position);
        teams[position] = oneOfTwo(teams[upper], teams[lower], pick).value_or(spellingOf(pick));
    }
    return Bracket::of(teams, m_start);
}

std::string_view KnownTeams::spellingOf(std::string_view pick) const
{
    const std::string same = canonicalOf(pick);
    if (const auto exact = m_exact.find(same); exact != m_exact.end())
        return exact->second;
    const auto folded = m_folded.find(upperCase(same));
    return folded != m_folded.end() ? std::string_view{folded->second} : pick;
}

} // namespace tallyhoop
