// reports/standings.cpp - packs, sorts and lays out the standings.
#include "reports/standings.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "pool/position.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace tallyhoop {

namespace {

constexpr char kSeparator = ';';
constexpr std::size_t kFields = 8;
constexpr int kHeaderLines = 7;
constexpr int kLastLineOfPage = 47;

struct Widths {
    std::size_t name = 0;
    std::size_t file = 0;
    std::size_t pick = 0;

    std::size_t line() const { return name + file + pick + 44; }
};

Widths widthsOf(std::span<const PlayerScore> scores)
{
    Widths widths;
    for (const PlayerScore& score : scores) {
        widths.name = std::max(widths.name, score.playerName.size());
        widths.file = std::max(widths.file, score.fileName.size());
        widths.pick = std::max(widths.pick, score.winningPick.size());
    }
    return widths;
}

/// Short names leave no room for the second heading: its line stays empty then.
std::string secondHeading(const Widths& widths)
{
    if (widths.name <= 8 || widths.file <= 7)
        return {};
    return "Earned Player Name" + blanks(widths.name - 8) + "File Name" + blanks(widths.file - 7) +
           "Score Picks Picks Picks Breaker Winner Picked";
}

void addHeader(ReportLines& lines, std::string_view title, const Widths& widths)
{
    constexpr std::string_view kName = "Tournament Standings";
    addPageHeader(lines, indentedOrFlush(centredOnce(widths.line(), title.size()), title),
                  indentedOrFlush(centredOnce(widths.line(), kName.size()), kName));
    lines.push_back("Points" + blanks(widths.name + widths.file + 6) + "Poss. Good   Bad  Open    Tie");
    lines.push_back(secondHeading(widths));
    lines.push_back("------ " + dashes(widths.name) + "   " + dashes(widths.file) +
                    "  ----- ----- ----- ----- ------- " + dashes(widths.pick));
}

std::string rowLine(const StandingsRow& row, int open, const Widths& widths)
{
    return " " + row.points + "   " + fitted(row.playerName, widths.name) + "   " + fitted(row.fileName, widths.file) +
           "   " + row.maxPoints + "   " + row.goodPicks + "   " + row.badPicks + "   " + threeDigits(open) + "    " +
           row.finalPoints + "   " + row.winningPick;
}

} // namespace

std::string standingsWorkRow(const PlayerScore& score)
{
    return threeDigits(score.points) + kSeparator + score.playerName + kSeparator + score.fileName + kSeparator +
           threeDigits(score.maxPoints) + kSeparator + threeDigits(score.goodPicks) + kSeparator +
           threeDigits(score.badPicks) + kSeparator + score.winningPick + kSeparator + threeDigits(score.finalPoints);
}

StandingsRow standingsRow(std::string_view workRow)
{
    const std::vector<std::string> field = workRowFields(workRow, kSeparator, kFields);
    return {field[0], field[1], field[2], field[3], field[4], field[5], field[6], field[7]};
}

Result<int> openPicks(const StandingsRow& row)
{
    const Result<std::int16_t> good = wholeNumber(row.goodPicks);
    const Result<std::int16_t> bad = wholeNumber(row.badPicks);
    if (!good)
        return good.failure();
    if (!bad)
        return bad.failure();
    return kGames - *good - *bad;
}

std::vector<std::string> standingsWorkRows(std::span<const PlayerScore> scores)
{
    std::vector<std::string> workRows;
    workRows.reserve(scores.size());
    for (const PlayerScore& score : scores)
        workRows.push_back(standingsWorkRow(score));
    sortWorkRows(workRows);
    std::ranges::reverse(workRows); // they are sorted ascending, and the most points come first
    return workRows;
}

std::vector<std::size_t> standingsOrder(std::span<const PlayerScore> scores)
{
    std::vector<std::string> workRows;
    workRows.reserve(scores.size());
    for (const PlayerScore& score : scores)
        workRows.push_back(standingsWorkRow(score));
    std::vector<std::size_t> order(scores.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, FoldedLess{},
                             [&](std::size_t player) { return std::string_view{workRows[player]}; });
    std::ranges::reverse(order);
    return order;
}

Result<ReportLines> standingsLines(std::string_view title, std::span<const PlayerScore> scores)
{
    const Widths widths = widthsOf(scores);
    ReportLines lines;
    int lineOfPage = 0;
    for (const std::string& workRow : standingsWorkRows(scores)) {
        if (lineOfPage == 0) {
            addHeader(lines, title, widths);
            lineOfPage = kHeaderLines;
        }
        const StandingsRow row = standingsRow(workRow);
        const Result<int> open = openPicks(row);
        if (!open)
            return open.failure();
        lines.push_back(rowLine(row, *open, widths));
        if (++lineOfPage > kLastLineOfPage) {
            lines.emplace_back(kFormFeedLine);
            lineOfPage = 0;
        }
    }
    return lines;
}

} // namespace tallyhoop
