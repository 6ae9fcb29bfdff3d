// screens/setup/field_doubts.cpp - names the doubtful teams, a few in the status line and most of them in a message.
#include "screens/setup/field_doubts.h"

#include "base/text.h"
#include "pool/field_check.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace tallyhoop {

namespace {

constexpr std::size_t kMostNamed = 2;       ///< of either kind in the status line, which is shared with other words
constexpr std::size_t kLongestName = 16;    ///< there
constexpr std::size_t kMostLinesShown = 20; ///< a message box has to fit the screen

std::string shortened(const std::string& name)
{
    return name.size() > kLongestName ? name.substr(0, kLongestName) + "..." : name;
}

/// @returns "Duke, Iowa and 3 more"
std::string someOf(std::span<const std::string> names)
{
    std::string text;
    for (const std::string& name : names.first(std::min(names.size(), kMostNamed)))
        text += (text.empty() ? "" : ", ") + shortened(name);
    if (names.size() > kMostNamed)
        text += " and " + std::to_string(names.size() - kMostNamed) + " more";
    return text;
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

    std::string text;
    if (!repeated.empty())
        text = "More than once: " + someOf(repeated) + ".";
    if (!unnamed.empty())
        text += std::string{text.empty() ? "" : "  "} + "Not named yet: " + someOf(unnamed) + ".";
    return text;
}

std::string doubtsInFull(const Field& field)
{
    std::vector<std::string> lines;
    for (const RepeatedTeam& team : repeatedTeams(field))
        lines.push_back(lineOn(field, team));
    for (const TeamRow row : unnamedTeams(field))
        lines.push_back("Not named yet: " + field.teams[row] + " (" + placeOf(field, row) + ").");
    if (lines.size() > kMostLinesShown) {
        const std::size_t left = lines.size() - kMostLinesShown;
        lines.resize(kMostLinesShown);
        lines.push_back("... and " + std::to_string(left) + " more");
    }
    return joinLines(lines);
}

std::optional<TeamRow> firstDoubt(const Field& field)
{
    std::vector<TeamRow> rows = unnamedTeams(field);
    for (const RepeatedTeam& team : repeatedTeams(field))
        rows.push_back(team.rows.at(1));
    if (rows.empty())
        return std::nullopt;
    return std::ranges::min(rows);
}

} // namespace tallyhoop
