// reports/player_selection_detail.cpp - who goes how far, and where each name is printed.
#include "reports/player_selection_detail.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "pool/position.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr std::size_t kPageWidth = 115;
constexpr std::size_t kLeadWidth = 21;
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

/// @returns the row's line behind its lead; unmarked columns write nothing
std::string rowText(const PlayerSelectionTable& table, std::size_t row)
{
    const std::string team = fitted(table.DetailRows[row], kTeamWidth) + "  ";
    std::string text;
    for (std::size_t column = 0; column < PlayerSelectionTable::kColumns; ++column)
        if (table.DetailMarks[column][row])
            text += team;
    if (!table.DetailMarks[PlayerSelectionTable::kColumns - 1][row])
        text += " ";
    return text;
}

void addTable(ReportLines& lines, const PoolEntry& player)
{
    const PlayerSelectionTable table = playerSelectionTable(player.lines);
    for (std::size_t row = 0; row < PlayerSelectionTable::kRows && table.DetailMarks[0][row]; ++row) {
        const std::string lead = row == 0 ? playerOfFileName(player.fileName) : std::string{};
        lines.push_back(fitted(lead, kLeadWidth) + rowText(table, row));
        const bool endsRegion = (row + 1) % kRowsOfRegion == 0 && row + 1 < PlayerSelectionTable::kRows;
        if (endsRegion)
            lines.push_back(blanks(20) + kBoxLine);
    }
}

} // namespace

PlayerSelectionTable playerSelectionTable(const SelectionLines& lines)
{
    PlayerSelectionTable table;
    std::size_t nextRow = 0;
    for (int slot = 1; slot <= kPositions; ++slot) {
        const int round = roundOf(positionOf(Slot{slot}));
        const std::string& team = lines[static_cast<std::size_t>(slot)];
        if (round == 1) {
            table.DetailRows[nextRow] = team;
            table.DetailMarks[0][nextRow] = true;
            ++nextRow;
        } else if (round > 1 && !team.empty()) {
            for (std::size_t row = 0; row < PlayerSelectionTable::kRows; ++row)
                if (table.DetailRows[row] == team)
                    table.DetailMarks[static_cast<std::size_t>(round - 1)][row] = true;
        }
    }
    return table;
}

std::string playerOfFileName(std::string_view fileName)
{
    constexpr std::string_view kEnding = ".THC";
    for (std::size_t at = 0; at + kEnding.size() <= fileName.size(); ++at)
        if (equalFolded(fileName.substr(at, kEnding.size()), kEnding))
            return std::string{fileName.substr(0, at)};
    return std::string{fileName};
}

Result<ReportLines> playerSelectionDetailLines(std::string_view title, std::span<const PoolEntry* const> players)
{
    ReportLines lines;
    for (const PoolEntry* player : players) {
        lines.emplace_back(kBlankLine);
        if (player != players.front()) {
            lines.emplace_back(kFormFeedLine);
            lines.emplace_back(kBlankLine);
        }
        lines.emplace_back(kBlankLine);
        const Result<Done> head = addCentredPageHead(lines, centredTwice, kPageWidth, title, "Player Selection Detail");
        if (!head)
            return head.failure();
        addHeadings(lines);
        addTable(lines, *player);
    }
    return lines;
}

std::vector<const PoolEntry*> playersByFileName(const ReadPool& pool)
{
    std::vector<const PoolEntry*> players;
    for (const PoolEntry& player : pool.players)
        players.push_back(&player);
    std::stable_sort(players.begin(), players.end(), [](const PoolEntry* left, const PoolEntry* right) {
        return FoldedLess{}(left->fileName, right->fileName);
    });
    return players;
}

} // namespace tallyhoop
