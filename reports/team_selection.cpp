// reports/team_selection.cpp - packs the picks of all players, one entry each, and lays out a row of counts.
#include "reports/team_selection.h"

#include "model/bracket_position.h"
#include "model/numbers.h"
#include "model/text.h"
#include "model/windows1252.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kPageWidth = 74;
constexpr std::size_t kTeamColumn = 29;
constexpr std::size_t kHeadingIndent = 27;

/// Sorts hundreds of thousands of entries team by team: sorting them all at once would wait for the memory at nearly
/// every comparison.
class PicksByTeam
{
public:
    explicit PicksByTeam(const ReadPool& pool)
    {
        // An entry ends its team with a comma. With commas of their own, teams can stand between entries of another.
        for (const PoolEntry& player : pool.players)
            for (std::size_t slot = 1; slot <= selection_line::kChampion; ++slot)
                m_mixed = m_mixed || player.lines[slot].find(',') != std::string::npos;
    }

    void add(const std::string& team, std::string entry)
    {
        m_entries[m_mixed ? std::string{} : team + ","].push_back(std::move(entry));
        ++m_count;
    }

    /// @returns all entries, ascending without regard to case, equal ones in order of arrival
    std::vector<std::string> sorted()
    {
        std::vector<std::string> all;
        all.reserve(m_count);
        for (auto& [team, entries] : m_entries) {
            sortWorkRows(entries);
            std::ranges::move(entries, std::back_inserter(all));
            entries = {};
        }
        return all;
    }

private:
    std::map<std::string, std::vector<std::string>, FoldedLess> m_entries; ///< by the text before the player's label
    std::size_t m_count = 0;
    bool m_mixed = false;
};

} // namespace

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

std::vector<std::string> pickEntries(const ReadPool& pool)
{
    PicksByTeam picks{pool};
    for (const PoolEntry& player : pool.players) {
        const std::string label = player.lines[selection_line::kName] + "_" + player.lines[selection_line::kInitials];
        for (int slot = 1; slot <= kPositions; ++slot) {
            const int category = roundOf(positionOf(Slot{slot}));
            const std::string& team = player.lines[static_cast<std::size_t>(slot)];
            if (category > 0 && !team.empty())
                picks.add(team, pickEntry(team, label, category));
        }
    }
    return picks.sorted();
}

Result<Done> addTeamSelectionHead(ReportLines& lines, std::string_view title, std::string_view reportName)
{
    const Result<Done> head = addCentredPageHead(lines, centredTwice, kPageWidth, title, reportName);
    if (!head)
        return head;
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
