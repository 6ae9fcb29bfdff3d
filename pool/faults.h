// pool/faults.h - what in a bracket cannot be, given the field that it is about.
#pragma once

#include "pool/field.h"

#include <vector>

namespace tallyhoop {

enum class FaultKind {
    OtherTeam, ///< a first-round row does not have the field's team
    NoPick,    ///< nobody is picked to win a game
    NotInGame, ///< the team picked to win a game is not one of the two that meet in it
};

struct Fault {
    Position position{};
    FaultKind kind{};

    friend bool operator==(const Fault&, const Fault&) = default;
};

/// @returns everything that keeps a bracket from being a complete and possible one for this field, in the order of the
///          positions; a pick is held against the picks before it, so a team that should not be there is named once for
///          each place where nobody sent it; empty for a bracket without fault
std::vector<Fault> faultsOf(const Bracket& bracket, const Field& field);

} // namespace tallyhoop
