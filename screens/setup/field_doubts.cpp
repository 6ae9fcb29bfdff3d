// screens/setup/field_doubts.cpp - names the doubtful teams, one of each kind in the status line and most of them in a
// message.
#include "screens/setup/field_doubts.h"

#include "base/text.h"
#include "pool/field_check.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace tallyhoop {

namespace {

constexpr std::size_t kLongestName = 16; ///< in the status line, which is shared with other words

std::string shortened(const std::string& name)
{
    return name.size() > kLongestName ? name.substr(0, kLongestName) + "..." : name;
}

/// @returns "Duke and 3 more"
/// @param names at least one
std::string firstOf(std::span<const std::string> names)
{
    const std::string others = names.size() == 1 ? "" : " and " + std::to_string(names.size() - 1) + " more";
    return shortened(names.front()) + others;
}

/// @returns "East Region, row 5"
std::string placeOf(const Field& field, TeamRow row)
{
    return field.regionTitles.at(static_cast<std::size_t>(regionOf(row))) + ", row " +
           std::to_string(rowInRegion(row) + 1);
}

std::string lineOn(const Field& field, const RepeatedTeam& team)
{
    std::string line = team.name + " is in the field " + std::to_string(team.rows.size()) + " times: ";
    for (const TeamRow row : team.rows)
        line += (row == team.rows.front() ? "" : "; ") + placeOf(field, row);
    return line + ".";
}

} // namespace

std::string doubtsInShort(const Field& field)
{
    std::vector<std::string> repeated;
    for (const RepeatedTeam& team : repeatedTeams(field))
        repeated.push_back(team.name);
    std::vector<std::string> unnamed;
    for (const TeamRow row : unnamedTeams(field))
        unnamed.push_back(field.teams[row]);

    std::vector<std::string> doubts;
    if (!repeated.empty())
        doubts.push_back("More than once: " + firstOf(repeated) + ".");
    if (!unnamed.empty())
        doubts.push_back("Not named yet: " + firstOf(unnamed) + ".");
    return joined(doubts, "  ");
}

std::string doubtsInFull(const Field& field)
{
    std::vector<std::string> lines;
    for (const RepeatedTeam& team : repeatedTeams(field))
        lines.push_back(lineOn(field, team));
    for (const TeamRow row : unnamedTeams(field))
        lines.push_back("Not named yet: " + field.teams[row] + " (" + placeOf(field, row) + ").");
    return joinLines(fewEnoughForAMessage(std::move(lines)));
}

std::optional<TeamRow> firstDoubt(const Field& field)
{
    std::vector<TeamRow> rows = unnamedTeams(field);
    for (const RepeatedTeam& team : repeatedTeams(field))
        rows.push_back(team.rows.front());
    if (rows.empty())
        return std::nullopt;
    return std::ranges::min(rows);
}

} // namespace tallyhoop
