// reports/csv_tables.cpp - which cells a row has.
#include "reports/csv_tables.h"

#include "base/csv_cells.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "reports/outlook_words.h"
#include "reports/standings.h"
#include "reports/team_selection.h"

#include <algorithm>
#include <fmt/format.h>
#include <utility>

namespace tallyhoop {

namespace {

const CsvRow kStandingsHeadings{"Points Earned", "Player Name", "File Name",   "Poss. Score",  "Good Picks",
                                "Bad Picks",     "Open Picks",  "Tie Breaker", "Winner Picked"};
const CsvRow kRoundHeadings{"2nd Round", "3rd Round", "4th Round", "Region Finals", "Tour Finals", "Tour Champion"};

std::string csvFile(std::span<const CsvRow> rows)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    return std::string{kByteOrderMark} + toUtf8(csvText(rows));
}

/// @returns a cell on one line; numbers are no formulas, whatever their sign
std::string cellText(std::string text)
{
    text = asOneLine(std::move(text));
    return isNumber(text) ? text : guarded(text);
}

/// @returns a number of the report without its leading zeros; what is no number stays, for a shifted field holds a text
std::string numberCell(const std::string& text)
{
    const bool isWhole = !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    if (!isWhole)
        return cellText(text);
    return text.substr(std::min(text.find_first_not_of('0'), text.size() - 1));
}

CsvRow withCounts(CsvRow cells, const CategoryCounts& counts)
{
    for (std::size_t category = 1; category < counts.size(); ++category)
        cells.push_back(std::to_string(counts.at(category)));
    return cells;
}

/// @param columns what comes before the counts
template <class CellsOf>
Result<std::string> tableOfPicks(const Result<std::vector<PickRow>>& rows, CsvRow columns, CellsOf cellsOf)
{
    if (!rows)
        return rows.failure();
    columns.insert(columns.end(), kRoundHeadings.begin(), kRoundHeadings.end());
    std::vector<CsvRow> table;
    table.reserve(rows->size() + 1);
    table.push_back(std::move(columns));
    for (const PickRow& row : *rows)
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

Result<std::string> standingsCsv(std::span<const PlayerScore> scores)
{
    std::vector<CsvRow> table;
    table.reserve(scores.size() + 1);
    table.push_back(kStandingsHeadings);
    for (const std::string& workRow : standingsWorkRows(scores)) {
        const StandingsRow row = standingsRow(workRow);
        const Result<int> open = openPicks(row);
        if (!open)
            return open.failure();
        table.push_back({numberCell(row.points), cellText(row.playerName), cellText(row.fileName),
                         numberCell(row.maxPoints), numberCell(row.goodPicks), numberCell(row.badPicks),
                         std::to_string(*open), numberCell(row.finalPoints), cellText(row.winningPick)});
    }
    return csvFile(table);
}

Result<std::string> picksCsv(const std::vector<std::string>& entries)
{
    return tableOfPicks(pickRows(entries), {"Team"}, [](const PickRow& row) { return CsvRow{cellText(row.team)}; });
}

Result<std::string> picksByPlayerCsv(const std::vector<std::string>& entries)
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
