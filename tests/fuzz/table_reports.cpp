// tests/fuzz/table_reports.cpp - the reports that need no projection, on arbitrary pools.
#include "fuzz/fuzzed_pool.h"
#include "fuzz/report_pages.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/player_names_file.h"
#include "pool/sample_brackets.h"
#include "reports/player_listing.h"
#include "reports/player_selection_detail.h"
#include "reports/team_selection_detail.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tallyhoop::fuzz {
namespace {

constexpr std::size_t kWidestTitle = 74; ///< of the team selection reports

CategoryCounts picksOf(const FuzzedPool& pool)
{
    CategoryCounts counts{};
    pool.forEachPick([&](int round, const std::string&) { ++counts.at(static_cast<std::size_t>(round)); });
    return counts;
}

/// Reads the six counts at the end of a row back, and adds them up.
bool addCounts(const std::string& row, CategoryCounts& sums)
{
    constexpr std::array<std::size_t, 6> kColumns{29, 36, 43, 50, 58, 67};
    for (std::size_t i = 0; i < kColumns.size(); ++i) {
        if (row.size() != 70)
            return false;
        const std::string number = row.substr(kColumns[i], 3);
        const std::size_t first = number.find_first_not_of(' ');
        int count = 0;
        if (first == std::string::npos ||
            std::from_chars(number.data() + first, number.data() + 3, count).ptr != number.data() + 3)
            return false;
        sums.at(i + 1) += count;
    }
    return true;
}

/// @returns whether every team's name fits its column and the title the page, so that there must be a report
bool hasRoom(const FuzzedPool& pool)
{
    bool fits = pool.title.size() <= kWidestTitle;
    pool.forEachPick([&](int, const std::string& team) { fits = fits && team.size() <= 29; });
    return fits;
}

Complaint checkCounts(const FuzzedPool& pool, const ReportLines& rows)
{
    CategoryCounts sums{};
    for (const std::string& row : rows)
        if (!addCounts(row, sums))
            return "this is not a row of counts: " + row;
    if (sums != picksOf(pool))
        return "picks are counted twice or not at all";
    return std::nullopt;
}

/// How many columns a row fills: one for each later round in which the team of its first game is picked after it.
std::size_t columnsOf(const Bracket& picks, Position firstGame)
{
    std::size_t columns = 1;
    for (int round = 2; round <= 6; ++round)
        columns += std::ranges::any_of(allPositions(), [&](Position position) {
            return position > firstGame && test::roundAt(position) == round && !picks.isEmpty(position) &&
                   picks.at(position) == picks.at(firstGame);
        });
    return columns;
}

Complaint checkPlayerPage(const Bracket& picks, const ReportLines& rows)
{
    if (rows.size() != 32 + 3)
        return "a player's table has not 32 rows and three lines between the regions";
    std::size_t at = 0;
    for (const Position position : allPositions()) {
        if (test::roundAt(position) != 1)
            continue;
        const std::string& team = picks.at(position);
        const bool isChampion = !team.empty() && picks.at(kChampion) == team;
        const std::string& row = rows[at];
        if (row.size() != 21 + 16 * columnsOf(picks, position) + (isChampion ? 0 : 1))
            return "a row shows a team too often or too seldom: " + row;
        if (row.substr(21, 14) != fitted(team, 14))
            return "a row begins with another team: " + row;
        at += at % 9 == 7 ? 2 : 1; // a line after every eight rows
    }
    return std::nullopt;
}

std::vector<PlayerListingRow> listingRows(const std::vector<std::string>& playerList)
{
    std::vector<PlayerListingRow> rows;
    for (const std::string& line : playerList) {
        const PlayerRecord record = parseRecord(line);
        rows.push_back({record.name, record.fileName, record.email, record.phone});
    }
    return rows;
}

} // namespace

Complaint player_listing(std::string_view bytes)
{
    const FuzzedPool pool = decodePool(bytes);
    const std::vector<PlayerListingRow> listed = listingRows(pool.playerList);
    const ReportLines lines = playerListingLines(pool.title, listed);
    if (pool.playerList.empty())
        return lines.empty() ? std::nullopt : Complaint{"a list without a header gives a report"};
    if (Complaint complaint = readsBack(lines))
        return complaint;
    const ReportLines rows = bodyOf(lines, 6, 6);
    if (rows.size() + 1 != pool.playerList.size())
        return "the report has lost or invented players";
    const std::vector<ReportLines> pages = pagesOf(lines);
    for (const ReportLines& page : pages)
        if (page.size() > 48)
            return "a page is too long";
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const PlayerListingRow& player = listed[i + 1];
        std::size_t from = 0;
        for (const std::string& field : {player.name, player.fileName, player.email, player.phone}) {
            const std::string text = trimTrailingBlanks(field);
            from = rows[i].find(text, from);
            if (from == std::string::npos)
                return "a field is missing or cut: " + text;
            from += text.size();
        }
        if (rows[i].size() != rows.front().size())
            return "the rows are not equally wide";
    }
    return std::nullopt;
}

Complaint team_selection_summary(std::string_view bytes)
{
    const FuzzedPool pool = decodePool(bytes);
    const Result<ReportLines> lines = teamSelectionSummaryLines(pool.title, pickEntries(pool.entries));
    if (!lines)
        return pool.isFreeOf(',') && hasRoom(pool) ? Complaint{"there is no report of a sound pool"} : std::nullopt;
    if (Complaint complaint = readsBack(*lines))
        return complaint;
    if (Complaint complaint = noLongerThan(kWidestTitle + 1, *lines))
        return complaint;
    if (!pool.isFreeOf(','))
        return std::nullopt; // a comma shifts what follows it
    ReportLines rows = bodyOf(*lines, 7, 7);
    std::erase(rows, kBlankLine);
    std::erase(rows, countRule());
    return checkCounts(pool, rows);
}

Complaint team_selection_detail(std::string_view bytes)
{
    const FuzzedPool pool = decodePool(bytes);
    const Result<ReportLines> lines = teamSelectionDetailLines(pool.title, pickEntries(pool.entries));
    if (!lines)
        return pool.isFreeOf(',') && hasRoom(pool) ? Complaint{"there is no report of a sound pool"} : std::nullopt;
    if (Complaint complaint = readsBack(*lines))
        return complaint;
    if (Complaint complaint = noLongerThan(kWidestTitle + 1, *lines))
        return complaint;
    if (!pool.isFreeOf(','))
        return std::nullopt;
    ReportLines rows = bodyOf(*lines, 8, 7);
    std::erase_if(rows, [](const std::string& line) { return line.size() == 29; }); // a team's own line
    return checkCounts(pool, rows);
}

Complaint player_selection_detail(std::string_view bytes)
{
    const FuzzedPool pool = decodePool(bytes);
    const std::vector<const Entry*> players = playersByFileName(pool.entries);
    const Result<ReportLines> lines = playerSelectionDetailLines(pool.title, players);
    if (!lines)
        return pool.title.size() <= 115 ? Complaint{"there is no report of a sound pool"} : std::nullopt;
    if (Complaint complaint = readsBack(*lines))
        return complaint;
    if (Complaint complaint = noLongerThan(117, *lines))
        return complaint;
    const std::vector<ReportLines> pages = pagesOf(*lines);
    if (pages.size() != players.size())
        return "there is not one page for each player";
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const bool isLast = i + 1 == pages.size();
        const auto end = pages[i].end() - (isLast ? 0 : 1); // a blank line comes before a form feed
        if (pages[i].size() < 9)
            return "a page is too short";
        const ReportLines rows{pages[i].begin() + 9, end};
        if (Complaint complaint = checkPlayerPage(players[i]->picks, rows))
            return complaint;
        if (!rows.front().starts_with(fitted(playerOfFileName(players[i]->fileName), 21)))
            return "a page begins with another player";
    }
    return std::nullopt;
}

} // namespace tallyhoop::fuzz
