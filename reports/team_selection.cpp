// reports/team_selection.cpp - packs the picks of all players, one entry each, and lays out a row of counts.
#include "reports/team_selection.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kPageWidth = 74;
constexpr std::size_t kTeamColumn = 29;
constexpr std::size_t kHeadingIndent = 27;

/// Packs and sorts hundreds of thousands of picks team by team: entries that are compared with each other should lie
/// close together, or sorting waits for the memory at every comparison.
class PicksByTeam
{
public:
    explicit PicksByTeam(std::span<const Entry> entries)
    {
        // A packed entry separates its team with a comma. With commas of their own, teams can come between those of
        // another.
        for (const Entry& entry : entries)
            for (const Position game : gamePositions())
                m_mixed = m_mixed || entry.picks.at(game).find(',') != std::string::npos;
    }

    /// @param team, label are kept by address
    void add(const std::string& team, const std::string& label, int category)
    {
        m_picks[m_mixed ? std::string{} : team + ","].push_back({&team, &label, category});
        ++m_count;
    }

    /// @returns all entries, ascending without regard to case, equal ones in order of arrival
    std::vector<std::string> sortedEntries() const
    {
        std::vector<std::string> all;
        all.reserve(m_count);
        for (const auto& [team, picks] : m_picks) {
            std::vector<std::string> entries;
            entries.reserve(picks.size());
            for (const Unpacked& pick : picks)
                entries.push_back(pickEntry(*pick.team, *pick.label, pick.category));
            sortWorkRows(entries);
            std::ranges::move(entries, std::back_inserter(all));
        }
        return all;
    }

private:
    struct Unpacked {
        const std::string* team;
        const std::string* label;
        int category;
    };

    std::map<std::string, std::vector<Unpacked>, FoldedLess> m_picks; ///< by the text before the player's label
    std::size_t m_count = 0;
    bool m_mixed = false;
};

} // namespace

std::string playerLabelOf(const Entry& entry) { return entry.name + "_" + entry.initials; }

std::string pickEntry(std::string_view team, std::string_view playerLabel, int category)
{
    std::string entry;
    entry.reserve(team.size() + playerLabel.size() + 3);
    entry.append(team).append(",").append(playerLabel).append(",").append(std::to_string(category));
    return entry;
}

Result<Pick> parsePickEntry(std::string_view entry)
{
    const std::size_t first = entry.find(',');
    const std::size_t second = entry.find(',', first + 1);
    const std::string_view number = entry.substr(second + 1);
    const Result<std::int16_t> category = wholeNumber(number);
    if (!category)
        return category.failure();
    if (*category < 0 || *category > kRounds)
        return Failure{"A comma in the name of a team or a player leaves this pick without its round:" +
                       std::string{kLineBreak} + std::string{entry}};
    return Pick{std::string{entry.substr(0, first)}, std::string{entry.substr(first + 1, second - first - 1)},
                static_cast<std::size_t>(*category)};
}

std::vector<std::string> pickEntries(std::span<const Entry> entries)
{
    std::vector<std::string> labels;
    labels.reserve(entries.size()); // the picks point to them
    PicksByTeam picks{entries};
    for (const Entry& entry : entries) {
        labels.push_back(playerLabelOf(entry));
        for (const Position game : gamePositions())
            if (!entry.picks.isEmpty(game))
                picks.add(entry.picks.at(game), labels.back(), roundOf(game));
    }
    return picks.sortedEntries();
}

Result<Done> addTeamSelectionHeader(ReportLines& lines, std::string_view title, std::string_view reportName)
{
    const Result<Done> header = addCentredPageHeader(lines, centredTwice, kPageWidth, title, reportName);
    if (!header)
        return header;
    lines.push_back(blanks(kHeadingIndent) + "  2nd    3rd    4th   Region   Tour     Tour  ");
    lines.push_back(blanks(kHeadingIndent) + " Round  Round  Round  Finals  Finals  Champion");
    lines.push_back(countRule());
    return Done{};
}

Result<std::string> teamColumn(const std::string& team)
{
    if (team.size() > kTeamColumn)
        return Failure{"This team's name is too long for the report, which has room for 29 characters:" +
                       std::string{kLineBreak} + team};
    return fitted(team, kTeamColumn);
}

std::string countColumns(const CategoryCounts& counts)
{
    return threeColumns(counts[1]) + "    " + threeColumns(counts[2]) + "    " + threeColumns(counts[3]) + "    " +
           threeColumns(counts[4]) + "     " + threeColumns(counts[5]) + "      " + threeColumns(counts[6]);
}

std::string countRule() { return blanks(kHeadingIndent) + "+------+------+------+------+-------+---------+"; }

} // namespace tallyhoop
