// reports/csv_tables.cpp - which cells a row has.
#include "reports/csv_tables.h"

#include "base/csv_cells.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/utf8_mark.h"
#include "base/windows1252.h"
#include "reports/outlook_words.h"
#include "reports/pick_table.h"
#include "reports/standings.h"

#include <algorithm>
#include <fmt/format.h>
#include <utility>

namespace tallyhoop {

namespace {

const CsvRow kStandingsHeadings{"Points Earned", "Player Name", "File Name",   "Poss. Score",  "Good Picks",
                                "Bad Picks",     "Open Picks",  "Tie Breaker", "Winner Picked"};
const CsvRow kRoundHeadings{"2nd Round", "3rd Round", "4th Round", "Region Finals", "Tour Finals", "Tour Champion"};

std::string csvFile(std::span<const CsvRow> rows) { return std::string{kUtf8Mark} + toUtf8(csvText(rows)); }

/// @returns a cell on one line; numbers are no formulas, whatever their sign
std::string cellText(std::string text)
{
    text = asOneLine(std::move(text));
    return isNumber(text) ? text : guarded(text);
}

/// @param row begins with what comes before the counts
CsvRow withCounts(CsvRow row, const CategoryCounts& counts)
{
    for (std::size_t category = 1; category < counts.size(); ++category)
        row.push_back(std::to_string(counts.at(category)));
    return row;
}

/// @param headings of what comes before the counts
template <class CellsOf>
std::string tableOfPicks(std::span<const PickRow> rows, CsvRow headings, CellsOf cellsOf)
{
    headings.insert(headings.end(), kRoundHeadings.begin(), kRoundHeadings.end());
    std::vector<CsvRow> table;
    table.reserve(rows.size() + 1);
    table.push_back(std::move(headings));
    for (const PickRow& row : rows)
        table.push_back(withCounts(cellsOf(row), row.counts));
    return csvFile(table);
}

/// Spreadsheets take "2-5" for a day in May.
std::string placeForSpreadsheets(const PlaceBetween& place)
{
    return place.isExact() ? placeInWords(place) : fmt::format("{} to {}", place.least, place.most);
}

} // namespace

const char* csvFileOf(ReportId report)
{
    switch (report) {
    case ReportId::TournamentStandings:
        return kStandingsTable;
    case ReportId::TeamSelectionSummary:
        return kPicksTable;
    case ReportId::TeamSelectionDetail:
        return kPicksByPlayerTable;
    case ReportId::PlayerListing:
    case ReportId::PlayerSelectionDetail:
    case ReportId::ResultsByPlayer:
    case ReportId::ResultsByTeam:
        break;
    }
    return nullptr;
}

std::string standingsCsv(std::span<const PlayerScore> scores)
{
    std::vector<CsvRow> table;
    table.reserve(scores.size() + 1);
    table.push_back(kStandingsHeadings);
    for (const std::size_t player : standingsOrder(scores)) {
        const PlayerScore& score = scores[player];
        table.push_back({std::to_string(score.points), cellText(score.playerName), cellText(score.fileName),
                         std::to_string(score.maxPoints), std::to_string(score.goodPicks),
                         std::to_string(score.badPicks), std::to_string(kGames - score.goodPicks - score.badPicks),
                         std::to_string(score.finalPoints), cellText(score.winningPick)});
    }
    return csvFile(table);
}

std::string picksCsv(std::span<const Entry> entries)
{
    return tableOfPicks(pickRows(entries), {"Team"}, [](const PickRow& row) { return CsvRow{cellText(row.team)}; });
}

std::string picksByPlayerCsv(std::span<const Entry> entries)
{
    return tableOfPicks(pickRowsByPlayer(entries), {"Team", "Player"}, [](const PickRow& row) {
        return CsvRow{cellText(row.team), cellText(row.playerLabel)};
    });
}

std::string outlookCsv(std::span<const OutlookRow> rows)
{
    std::vector<CsvRow> table;
    table.reserve(rows.size() + 1);
    table.emplace_back(outlookCellHeadings().begin(), outlookCellHeadings().end());
    for (const OutlookRow& row : rows) {
        const OutlookCells cells = outlookCells(row);
        CsvRow& texts = table.emplace_back();
        texts.reserve(cells.size());
        std::ranges::transform(cells, std::back_inserter(texts), cellText);
    }
    return csvFile(table);
}

const OutlookCells& outlookCellHeadings()
{
    static const OutlookCells headings{"Now",     "Player",  "Points", "Possible", "First %", "Share %",
                                       "Error %", "Verdict", "Best",   "Worst",    "Change"};
    return headings;
}

OutlookCells outlookCells(const OutlookRow& row)
{
    return {std::to_string(row.standing.place),
            row.name,
            std::to_string(row.standing.points),
            std::to_string(row.standing.possible),
            chanceAsNumber(row, row.first),
            chanceAsNumber(row, row.share),
            row.share ? errorInWords(row.error) : "",
            verdictInWords(row.prospect),
            placeForSpreadsheets(row.best),
            placeForSpreadsheets(row.worst),
            row.change ? changeInWords(*row.change) : ""};
}

} // namespace tallyhoop
