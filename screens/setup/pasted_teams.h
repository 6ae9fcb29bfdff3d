// screens/setup/pasted_teams.h - which team boxes a pasted text fills, and which of its lines go nowhere.
#pragma once

#include "pool/position.h"
#include "screens/setup/team_name_list.h"

#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tallyhoop {

struct PastedTeams {
    std::vector<std::pair<TeamRow, std::string>> filled; ///< a box and the team that goes into it
    std::vector<std::string> notInList;                  ///< lines that are no team of the list
    std::vector<std::string> noBoxLeft;                  ///< lines after the last box
};

/// Spreads lines over a box and those that follow it, one line each; an empty line leaves its box as it is.
/// @param list the names that can be picked, in any case; nullptr = any text will do
PastedTeams pastedTeams(std::span<const std::string> lines, TeamRow first, const TeamNameList* list);

/// @returns the words for a message about the lines without a box, the first twenty of each kind; empty for none
std::string refusedLines(const PastedTeams& pasted);

} // namespace tallyhoop
