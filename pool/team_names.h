// pool/team_names.h - names of teams with small numbers, so that brackets are cheap to copy, compare and score.
#pragma once

#include "pool/position.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// The number of a name in one table of names; means nothing without that table.
using TeamNumber = std::uint8_t;
inline constexpr TeamNumber kNoTeam = 0;

/// The different names that one bracket holds, any bytes, numbered from 1 on in the order in which they were added.
class TeamNames
{
public:
    static constexpr std::size_t kMost = kPositions; ///< one for each place of a bracket

    /// @returns the number of exactly this name; kNoTeam for an empty one and for one that is not in the table
    TeamNumber numberOf(std::string_view name) const;

    /// @returns the name of a number of this table; empty for kNoTeam
    const std::string& nameOf(TeamNumber number) const { return m_names[number]; }

    /// Adds a name unless it is there. @pre there is room
    /// @returns its number; kNoTeam for an empty name
    TeamNumber add(std::string_view name);

    std::size_t size() const { return m_names.size() - 1; }

private:
    std::vector<std::string> m_names{std::string{}};
};

} // namespace tallyhoop
