// pool/field_check.cpp - what is asked of a field before it is made final, and of seeds.
#include "pool/field_check.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"

#include <algorithm>
#include <set>
#include <string>

namespace tallyhoop {

namespace {

constexpr double kLeastPayoff = 1;
constexpr double kMostPayoff = 99;
constexpr double kLeastSeed = 1;
constexpr double kMostSeed = kRowsPerRegion;

/// The number before it is rounded counts, so 0.9 is too little and 99.5 too much.
bool isBadPayoff(const std::string& text)
{
    const double points = leadingNumber(text);
    return points < kLeastPayoff || points > kMostPayoff;
}

} // namespace

std::vector<FieldFault> fieldFaults(const Field& field)
{
    std::vector<FieldFault> faults;
    for (const TeamRow row : allTeamRows())
        if (isBlankField(field.teams[row]))
            faults.emplace_back(BlankTeam{row});
    if (isBlankField(field.title))
        faults.emplace_back(BlankTitle{});
    for (std::size_t region = 0; region < field.regionTitles.size(); ++region)
        if (isBlankField(field.regionTitles[region]))
            faults.emplace_back(BlankRegionTitle{region});
    for (int round = 1; round <= kRounds; ++round)
        if (isBadPayoff(field.payoffs.text(round)))
            faults.emplace_back(BadPayoff{round});
    return faults;
}

std::optional<FieldFault> fieldFault(const Field& field)
{
    const std::vector<FieldFault> faults = fieldFaults(field);
    return faults.empty() ? std::nullopt : std::optional{faults.front()};
}

std::vector<RepeatedTeam> repeatedTeams(const Field& field)
{
    std::vector<RepeatedTeam> teams;
    for (const TeamRow row : allTeamRows()) {
        const std::string name = withoutOuterBlanks(field.teams[row]);
        if (name.empty())
            continue;
        const auto same =
            std::ranges::find_if(teams, [&](const RepeatedTeam& team) { return equalFolded(team.name, name); });
        if (same == teams.end())
            teams.push_back({name, {row}});
        else
            same->rows.push_back(row);
    }
    std::erase_if(teams, [](const RepeatedTeam& team) { return team.rows.size() == 1; });
    return teams;
}

std::vector<TeamRow> unnamedTeams(const Field& field)
{
    const Field initial = defaultField();
    std::vector<TeamRow> rows;
    for (const TeamRow row : allTeamRows()) {
        const std::string team = withoutOuterBlanks(field.teams[row]);
        if (std::ranges::any_of(initial.teams.values, [&](const std::string& name) { return equalFolded(name, team); }))
            rows.push_back(row);
    }
    return rows;
}

std::optional<SeedTexts> wholeSeeds(const SeedTexts& typed)
{
    SeedTexts seeds;
    std::set<long long> seen;
    for (std::size_t row = 0; row < typed.size(); ++row) {
        const double value = leadingNumber(typed[row]);
        // Checked before it is rounded, so 0.6 is refused although it rounds to 1.
        if (value < kLeastSeed || value > kMostSeed)
            return std::nullopt;
        const long long number = roundHalfEven(value);
        if (!seen.insert(number).second)
            return std::nullopt;
        seeds[row] = std::to_string(number);
    }
    return seeds;
}

} // namespace tallyhoop
