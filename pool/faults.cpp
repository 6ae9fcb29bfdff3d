// pool/faults.cpp - each place of a bracket held against the field and the picks before it.
#include "pool/faults.h"

#include <optional>

namespace tallyhoop {

namespace {

std::optional<FaultKind> faultAt(const Bracket& bracket, Position position, const Field& field)
{
    if (const std::optional<TeamRow> row = teamRowOf(position))
        return bracket.at(position) == field.teams[*row] ? std::nullopt : std::optional{FaultKind::OtherTeam};
    if (bracket.isEmpty(position))
        return FaultKind::NoPick;
    const auto [upper, lower] = *feeders(position);
    const TeamNumber pick = bracket.numbers()[position];
    const bool plays = pick == bracket.numbers()[upper] || pick == bracket.numbers()[lower];
    return plays ? std::nullopt : std::optional{FaultKind::NotInGame};
}

} // namespace

std::vector<Fault> faultsOf(const Bracket& bracket, const Field& field)
{
    std::vector<Fault> faults;
    for (const Position position : allPositions())
        if (const std::optional<FaultKind> kind = faultAt(bracket, position, field))
            faults.push_back({position, *kind});
    return faults;
}

} // namespace tallyhoop
