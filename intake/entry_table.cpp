// intake/entry_table.cpp - which column is what, and a row after another.
#include "intake/entry_table.h"

#include "base/csv_cells.h"
#include "base/text.h"
#include "base/utf8_mark.h"
#include "base/windows1252.h"
#include "intake/addresses.h"
#include "intake/ascii_search.h"
#include "intake/game_words.h"
#include "intake/limits.h"
#include "intake/plain_text.h"
#include "intake/storable.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::array<std::string_view, 2> kNameTitles = {"name", "player"};
constexpr std::array<std::string_view, 1> kInitialsTitles = {"initials"};
constexpr std::array<std::string_view, 3> kTotalTitles = {"total", "final points", "predicted total"};
constexpr std::array<std::string_view, 4> kEmailTitles = {"e-mail", "email", "mail", "address"};
constexpr std::array<std::string_view, 1> kFileTitles = {"file"};
constexpr std::string_view kGameTitle = "game ";
constexpr std::size_t kColumnsInOrder = kGames + 3; ///< and one more for the file, which may be missing
constexpr std::size_t kMostTitleRows = 5;           ///< before the header: what people write above a table

/// Which column holds what, counted from 0.
struct Columns {
    std::optional<std::size_t> name;
    std::optional<std::size_t> initials;
    std::optional<std::size_t> total;
    std::optional<std::size_t> email;
    std::optional<std::size_t> file;
    ByGame<std::optional<std::size_t>> games{};
    std::size_t count = 0;
};

/// What people type has blanks at its ends by accident; what we write has them as data. Such a cell is written with an
/// apostrophe before it, as a formula is, so that the way through a spreadsheet is exact. Those that are there already
/// make no difference: a cell that has its apostrophe needs it.
bool hasBlanksToKeep(std::string_view utf8)
{
    const std::string_view rest = utf8.substr(std::min(utf8.find_first_not_of('\''), utf8.size()));
    return withPlainBlanks(rest) != rest;
}

std::string cellOf(std::string_view text)
{
    const std::string utf8 = toUtf8(text);
    return hasBlanksToKeep(utf8) ? '\'' + utf8 : guarded(utf8);
}

/// @returns UTF-8: a cell as cellOf() had it, byte for byte, or as somebody meant it
std::string textOf(std::string_view cell)
{
    if (cell.starts_with('\'') && hasBlanksToKeep(cell))
        return std::string{cell.substr(1)};
    return withPlainBlanks(unguarded(cell));
}

/// @returns the game of a column named such as "Game 12 (West, round 1, game 4)"
std::optional<Game> gameOfTitle(std::string_view title)
{
    if (!startsWithFolded(title, kGameTitle))
        return std::nullopt;
    int number = 0;
    std::size_t digits = 0;
    for (const char c : title.substr(kGameTitle.size(), 3)) {
        if (c < '0' || c > '9')
            break;
        number = number * 10 + (c - '0');
        ++digits;
    }
    return digits > 0 && number >= 1 && number <= kGames ? std::optional{Game{number - 1}} : std::nullopt;
}

std::string titleOf(const Field& field, Game game)
{
    return "Game " + std::to_string(index(game) + 1) + " (" + gameWords(field, game) + ")";
}

bool isHeader(const CsvRow& row)
{
    return std::ranges::any_of(row, [](const std::string& cell) { return isOneOf(kInitialsTitles, textOf(cell)); });
}

Columns columnsInOrder()
{
    Columns columns{0, 1, 2, {}, kColumnsInOrder, {}, kColumnsInOrder + 1};
    std::size_t column = 3;
    for (std::optional<std::size_t>& game : columns.games.values)
        game = column++;
    return columns;
}

/// @returns which of the first rows names the columns
std::optional<std::size_t> headerOf(const std::vector<CsvRow>& rows)
{
    for (std::size_t i = 0; i < std::min(rows.size(), kMostTitleRows + 1); ++i)
        if (isHeader(rows[i]))
            return i;
    return std::nullopt;
}

/// Gives a column its meaning. @returns false when it has none that is known, or another has it already
bool takeTitle(Columns& columns, const std::string& title, std::size_t column)
{
    std::optional<std::size_t>* place = nullptr;
    if (isOneOf(kNameTitles, title))
        place = &columns.name;
    else if (isOneOf(kInitialsTitles, title))
        place = &columns.initials;
    else if (isOneOf(kTotalTitles, title))
        place = &columns.total;
    else if (isOneOf(kEmailTitles, title))
        place = &columns.email;
    else if (isOneOf(kFileTitles, title))
        place = &columns.file;
    else if (const std::optional<Game> game = gameOfTitle(title))
        place = &columns.games[*game];
    if (place == nullptr || *place)
        return false;
    *place = column;
    return true;
}

/// @returns the columns; or a failure that names what the header lacks
Result<Columns> columnsOf(const CsvRow& header)
{
    Columns columns;
    columns.count = header.size();
    std::vector<std::size_t> others;
    for (std::size_t column = 0; column < header.size(); ++column) {
        const std::string title = textOf(header[column]);
        if (!title.empty() && !takeTitle(columns, title, column))
            others.push_back(column);
    }
    const auto isThere = [](const std::optional<std::size_t>& column) { return column.has_value(); };
    if (std::ranges::none_of(columns.games.values, isThere) && others.size() == kGames)
        std::ranges::copy(others, columns.games.values.begin());
    std::vector<std::string> missing;
    if (!columns.name)
        missing.emplace_back("\"Name\"");
    if (!columns.total)
        missing.emplace_back("\"Total\"");
    if (const auto games = std::ranges::count_if(columns.games.values, isThere); games < kGames)
        missing.push_back(games == 0 ? "all of the 63 games" : std::to_string(kGames - games) + " of the 63 games");
    if (!missing.empty())
        return Failure{"The header of the table lacks " + joined(missing, ", ") + "."};
    return columns;
}

/// @returns UTF-8
std::string cellAt(const CsvRow& row, const std::optional<std::size_t>& column)
{
    return column && *column < row.size() ? textOf(row[*column]) : std::string{};
}

bool isEmptyRow(const CsvRow& row)
{
    return std::ranges::all_of(row, [](const std::string& cell) { return lastNonBlank(cell) == 0; });
}

/// The player list, or any other table of a folder, must not become a refusal for each of its rows.
bool isOfEntries(const std::vector<CsvRow>& rows)
{
    return headerOf(rows).has_value() ||
           std::ranges::any_of(rows, [](const CsvRow& row) { return row.size() >= kColumnsInOrder; });
}

HandedIn entryOf(const CsvRow& row, const Columns& columns, const KnownTeams& teams)
{
    HandedIn read;
    read.entry.name = storable(cellAt(row, columns.name), "The name", read.refusals);
    read.entry.initials = storable(cellAt(row, columns.initials), "The text of the initials", read.refusals);
    read.entry.finalPoints = fromUtf8(cellAt(row, columns.total));
    read.email = firstAddressIn(cellAt(row, columns.email));
    read.fileName = storable(cellAt(row, columns.file), "The file name", read.refusals);
    ByGame<std::string> picks;
    for (int game = 0; game < kGames; ++game)
        picks[Game{game}] = storable(cellAt(row, columns.games[Game{game}]), "A team", read.refusals);
    read.entry.picks = teams.bracketOf(picks);
    if (row.size() > columns.count &&
        !isEmptyRow({row.begin() + static_cast<std::ptrdiff_t>(columns.count), row.end()}))
        read.refusals.push_back("The row has " + std::to_string(row.size()) + " columns; there should be " +
                                std::to_string(columns.count) + ".");
    return read;
}

} // namespace

std::vector<HandedIn> readEntryTable(std::string_view bytes, const KnownTeams& teams, const Origin& origin)
{
    const Result<std::vector<CsvRow>> rows = csvRows(utf8Of(bytes));
    if (!rows)
        return {refusedWhole(origin, rows.failure().message)};
    if (!rows->empty() && !isOfEntries(*rows))
        return {
            refusedWhole(origin, "This is not a table of entries: it has no header with \"Initials\", and no row has " +
                                     std::to_string(kColumnsInOrder) + " columns.")};
    const std::optional<std::size_t> header = headerOf(*rows);
    const Result<Columns> columns = header ? columnsOf((*rows)[*header]) : columnsInOrder();
    if (!columns)
        return {refusedWhole(origin, columns.failure().message)};
    std::vector<HandedIn> entries;
    for (std::size_t i = header ? *header + 1 : 0; i < rows->size() && entries.size() < kMostEntriesHandedIn; ++i) {
        const CsvRow& row = (*rows)[i];
        if (isEmptyRow(row))
            continue;
        entries.push_back(entryOf(row, *columns, teams));
        entries.back().origin = origin;
        entries.back().origin.number = static_cast<int>(i) + 1;
    }
    if (entries.empty())
        return {refusedWhole(origin, "The table has no entries.")};
    return entries;
}

bool isEntryTable(std::string_view bytes)
{
    if (bytes.find_first_of(",;\t") == std::string_view::npos)
        return false; // as of most texts
    const Result<std::vector<CsvRow>> rows = csvRows(utf8Of(bytes));
    return rows && isOfEntries(*rows);
}

std::string entryTable(std::span<const Entry> entries, const Field& field)
{
    std::vector<CsvRow> rows;
    rows.reserve(entries.size() + 1);
    CsvRow& header = rows.emplace_back(CsvRow{"Name", "Initials", "Total"});
    for (int game = 0; game < kGames; ++game)
        header.push_back(cellOf(titleOf(field, Game{game})));
    header.emplace_back("File");
    for (const Entry& entry : entries) {
        CsvRow row{cellOf(entry.name), cellOf(entry.initials), cellOf(entry.finalPoints)};
        for (const Position position : gamePositions())
            row.push_back(cellOf(entry.picks.at(position)));
        row.push_back(cellOf(entry.fileName));
        rows.push_back(std::move(row));
    }
    return std::string{kUtf8Mark} + csvText(rows);
}

} // namespace tallyhoop
