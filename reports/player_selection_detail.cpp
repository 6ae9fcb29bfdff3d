// reports/player_selection_detail.cpp - who goes how far, and where each name is printed.
#include "reports/player_selection_detail.h"

#include "base/text.h"
#include "base/windows1252.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr std::size_t kPageWidth = 115;
constexpr std::size_t kPlayerWidth = 21;
constexpr std::size_t kTeamWidth = 14;
constexpr std::size_t kRowsOfRegion = 8;
constexpr const char* kBoxLine =
    " +------------+  +------------+  +------------+  +------------+  +------------+  +------------+ ";

void addHeadings(ReportLines& lines)
{
    lines.push_back(blanks(20) +
                    "       2nd             3rd           Region           Final           Tour            Tour      ");
    lines.push_back(blanks(20) +
                    "      Round           Round          Finals           Four           Finals         Champion    ");
    lines.push_back(blanks(20) + kBoxLine);
}

/// @returns the row's line after the player's column; unmarked columns write nothing
std::string rowText(const PlayerSelectionTable& table, std::size_t row)
{
    const std::string team = fitted(table.teams[row], kTeamWidth) + "  ";
    std::string text;
    for (std::size_t column = 0; column < PlayerSelectionTable::kColumns; ++column)
        if (table.marks[column][row])
            text += team;
    if (!table.marks[PlayerSelectionTable::kColumns - 1][row])
        text += " ";
    return text;
}

void addTable(ReportLines& lines, const Entry& player)
{
    const PlayerSelectionTable table = playerSelectionTable(player.picks);
    for (std::size_t row = 0; row < PlayerSelectionTable::kRows; ++row) {
        const std::string name = row == 0 ? playerOfFileName(player.fileName) : std::string{};
        lines.push_back(fitted(name, kPlayerWidth) + rowText(table, row));
        const bool isLastOfRegion = (row + 1) % kRowsOfRegion == 0;
        if (isLastOfRegion && row + 1 < PlayerSelectionTable::kRows)
            lines.push_back(blanks(20) + kBoxLine);
    }
}

} // namespace

PlayerSelectionTable playerSelectionTable(const Bracket& picks)
{
    PlayerSelectionTable table;
    std::size_t nextRow = 0;
    for (const Position position : gamePositions()) {
        const int round = roundOf(position);
        const std::string& team = picks.at(position);
        if (round == 1) {
            table.teams[nextRow] = team;
            table.marks[0][nextRow] = true;
            ++nextRow;
        } else if (!team.empty()) {
            for (std::size_t row = 0; row < PlayerSelectionTable::kRows; ++row)
                if (table.teams[row] == team)
                    table.marks[roundIndex(round)][row] = true;
        }
    }
    return table;
}

std::string playerOfFileName(std::string_view fileName)
{
    constexpr std::string_view kExtension = ".THC";
    for (std::size_t at = 0; at + kExtension.size() <= fileName.size(); ++at)
        if (equalFolded(fileName.substr(at, kExtension.size()), kExtension))
            return std::string{fileName.substr(0, at)};
    return std::string{fileName};
}

std::vector<const Entry*> playersByFileName(std::span<const Entry> entries)
{
    std::vector<const Entry*> players;
    players.reserve(entries.size());
    for (const Entry& entry : entries)
        players.push_back(&entry);
    std::stable_sort(players.begin(), players.end(), [](const Entry* left, const Entry* right) {
        return FoldedLess{}(left->fileName, right->fileName);
    });
    return players;
}

Result<ReportLines> playerSelectionDetailLines(std::string_view title, std::span<const Entry* const> players)
{
    ReportLines lines;
    for (const Entry* player : players) {
        lines.emplace_back(kBlankLine);
        if (player != players.front()) {
            lines.emplace_back(kFormFeedLine);
            lines.emplace_back(kBlankLine);
        }
        lines.emplace_back(kBlankLine);
        const Result<Done> header =
            addCentredPageHeader(lines, centredTwice, kPageWidth, title, "Player Selection Detail");
        if (!header)
            return header.failure();
        addHeadings(lines);
        addTable(lines, *player);
    }
    return lines;
}

} // namespace tallyhoop
