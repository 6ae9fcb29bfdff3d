// pool/field_check.h - what a field must have before it is made final, and its seeds before they are taken over.
#pragma once

#include "pool/field.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tallyhoop {

/// A row of the field without a team.
struct BlankTeam {
    TeamRow row{};
    friend bool operator==(const BlankTeam&, const BlankTeam&) = default;
};

/// The pool has no title.
struct BlankTitle {
    friend bool operator==(const BlankTitle&, const BlankTitle&) = default;
};

/// A region has no title.
struct BlankRegionTitle {
    std::size_t region = 0; ///< 0..3
    friend bool operator==(const BlankRegionTitle&, const BlankRegionTitle&) = default;
};

/// The points of a round are not 1..99.
struct BadPayoff {
    int round = 0; ///< 1..6
    friend bool operator==(const BadPayoff&, const BadPayoff&) = default;
};

using FieldFault = std::variant<BlankTeam, BlankTitle, BlankRegionTitle, BadPayoff>;

/// @returns everything that keeps a field from being final, in the order above
std::vector<FieldFault> fieldFaults(const Field& field);

/// @returns the first thing that keeps a field from being final, in the order above; nothing when it is complete
std::optional<FieldFault> fieldFault(const Field& field);

/// A team that more than one row of the field names.
struct RepeatedTeam {
    std::string name;          ///< as the first of the rows spells it
    std::vector<TeamRow> rows; ///< two or more, ascending
    friend bool operator==(const RepeatedTeam&, const RepeatedTeam&) = default;
};

/// @returns the names that several rows hold, in the order of their first rows; case and blanks around them make no
///          difference, and blank rows hold none
std::vector<RepeatedTeam> repeatedTeams(const Field& field);

/// @returns the rows that still hold one of the default field's names, TEAM1 to TEAM64 in any case
std::vector<TeamRow> unnamedTeams(const Field& field);

/// @returns the seeds as the whole numbers that they are rounded to; nothing unless they are 1..16, each once
std::optional<SeedTexts> wholeSeeds(const SeedTexts& typed);

} // namespace tallyhoop
