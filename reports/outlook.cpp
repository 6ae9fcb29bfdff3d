// reports/outlook.cpp - the outlook's rows in the order of the standings, and their layout.
#include "reports/outlook.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "reports/standings.h"

#include <algorithm>
#include <fmt/format.h>
#include <numeric>

namespace tallyhoop {

namespace {

constexpr std::string_view kReportName = "Pool Outlook";
constexpr std::size_t kLastLineOfPage = 47;
constexpr double kEverything = 1 - 1e-12; ///< sums of chances are rounded

/// @returns the players as the standings list them: their packed rows ascending, read backwards
std::vector<std::size_t> standingsOrder(std::span<const PlayerScore> scores)
{
    std::vector<std::string> workRows;
    workRows.reserve(scores.size());
    for (const PlayerScore& score : scores)
        workRows.push_back(standingsWorkRow(score));
    std::vector<std::size_t> order(scores.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, FoldedLess{},
                             [&](std::size_t player) -> std::string_view { return workRows[player]; });
    std::ranges::reverse(order);
    return order;
}

struct Widths {
    std::size_t name = std::string_view{"Player Name"}.size();
    std::size_t best = std::string_view{"Place"}.size();
    std::size_t worst = best;

    std::size_t line() const { return name + best + worst + 54; }
};

Widths widthsOf(std::span<const OutlookReportRow> rows)
{
    Widths widths;
    for (const OutlookReportRow& row : rows) {
        widths.name = std::max(widths.name, row.playerName.size());
        widths.best = std::max(widths.best, placeInWords(row.best).size());
        widths.worst = std::max(widths.worst, placeInWords(row.worst).size());
    }
    return widths;
}

/// What one line has in each column.
struct Cells {
    std::string place, name, points, possible, first, share, best, worst, verdict;
};

std::string lineOf(const Cells& cells, const Widths& widths)
{
    return fmt::format("{:>5}  {}  {:>6}  {:>5}  {:>7}  {:>7}  {:>{}}  {:>{}}  {}", cells.place,
                       fitted(cells.name, widths.name), cells.points, cells.possible, cells.first, cells.share,
                       cells.best, widths.best, cells.worst, widths.worst, cells.verdict);
}

std::string rowLine(const OutlookReportRow& row, const Widths& widths)
{
    return lineOf({std::to_string(row.place), row.playerName, threeDigits(row.points), threeDigits(row.possible),
                   percentInWords(row.first), percentInWords(row.share), placeInWords(row.best),
                   placeInWords(row.worst), verdictInWords(row.verdict)},
                  widths);
}

ReportLines headerOf(std::string_view title, const OutlookBasis& basis, const Widths& widths)
{
    ReportLines lines;
    addPageHeader(lines, indentedOrFlush(centredOnce(widths.line(), title.size()), title),
                  indentedOrFlush(centredOnce(widths.line(), kReportName.size()), kReportName));
    for (std::string& words : basisInWords(basis))
        lines.push_back(std::move(words));
    lines.emplace_back(kBlankLine);
    lines.push_back(
        trimTrailingBlanks(lineOf({"Now", "", "Points", "Poss.", "First", "Share", "Best", "Worst", ""}, widths)));
    lines.push_back(
        lineOf({"Place", "Player Name", "Earned", "Score", "Percent", "Percent", "Place", "Place", "Verdict"}, widths));
    lines.push_back(lineOf({dashes(5), dashes(widths.name), dashes(6), dashes(5), dashes(7), dashes(7),
                            dashes(widths.best), dashes(widths.worst), dashes(8)},
                           widths));
    return lines;
}

std::string chancesInWords(ChanceModel chances)
{
    switch (chances) {
    case ChanceModel::Alike:
        break;
    case ChanceModel::BySeed:
        return "Chances: by seed, the better seed wins more often";
    case ChanceModel::AsPicked:
        return "Chances: as this pool picked, the team with more picks wins more often";
    }
    return "Chances: all outcomes alike";
}

std::string gamesInWords(std::size_t games) { return fmt::format("{} open game{}", games, games == 1 ? "" : "s"); }

} // namespace

std::vector<OutlookReportRow> outlookReportRows(std::span<const PlayerScore> scores,
                                                std::span<const FirstChances> chances,
                                                std::span<const PlayerProspect> prospects)
{
    std::vector<OutlookReportRow> rows;
    rows.reserve(scores.size());
    for (const std::size_t player : standingsOrder(scores)) {
        const PlayerScore& own = scores[player];
        const auto ahead =
            std::ranges::count_if(scores, [&](const PlayerScore& other) { return other.points > own.points; });
        rows.push_back({player, static_cast<std::size_t>(ahead) + 1, own.playerName, own.points, own.maxPoints,
                        chances[player].alone + chances[player].together, chances[player].share, prospects[player].best,
                        prospects[player].worst, prospects[player].prospect});
    }
    return rows;
}

std::vector<std::string> basisInWords(const OutlookBasis& basis)
{
    if (basis.openGames == 0)
        return {"No game is open: these are the final places"};
    const std::string games = gamesInWords(basis.openGames);
    std::vector<std::string> words{chancesInWords(basis.chances)};
    if (basis.samples == 0) {
        words.push_back("Counted: every outcome of " + games);
    } else {
        words.push_back(fmt::format("Forecast: {} samples of {}, seed {}", basis.samples, games, basis.seed));
        words.push_back(
            fmt::format("Standard error of the share: at most {:.2f} percentage points", basis.error * 100));
    }
    return words;
}

std::string verdictInWords(Prospect verdict)
{
    switch (verdict) {
    case Prospect::Clinched:
        return "Clinched";
    case Prospect::Alive:
        return "Alive";
    case Prospect::Out:
        return "Out";
    case Prospect::Open:
        break;
    }
    return "Open";
}

std::string placeInWords(const PlaceBetween& place)
{
    return place.isExact() ? std::to_string(place.least) : fmt::format("{}-{}", place.least, place.most);
}

std::string percentInWords(double part)
{
    std::string words = fmt::format("{:.1f}", part * 100);
    if (words == "0.0" && part > 0)
        return "<0.1";
    if (words == "100.0" && part < kEverything)
        return ">99.9";
    return words;
}

ReportLines outlookLines(std::string_view title, const OutlookBasis& basis, std::span<const OutlookReportRow> rows)
{
    const Widths widths = widthsOf(rows);
    const ReportLines header = headerOf(title, basis, widths);
    ReportLines lines;
    std::size_t lineOfPage = 0;
    for (const OutlookReportRow& row : rows) {
        if (lineOfPage == 0) {
            lines.insert(lines.end(), header.begin(), header.end());
            lineOfPage = header.size();
        }
        lines.push_back(rowLine(row, widths));
        if (++lineOfPage > kLastLineOfPage) {
            lines.emplace_back(kFormFeedLine);
            lineOfPage = 0;
        }
    }
    return lines;
}

} // namespace tallyhoop
