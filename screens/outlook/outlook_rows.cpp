// screens/outlook/outlook_rows.cpp - places, percentages, the order of the rows, and the words of the columns.
#include "screens/outlook/outlook_rows.h"

#include "base/windows1252.h"
#include "pool/scoring.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>
#include <functional>

namespace tallyhoop {

namespace {

constexpr const char* kPlusMinus = " \xB1";
constexpr double kSmallestShown = 0.05; ///< percent: less rounds to 0.0

struct ColumnWords {
    const char* heading;
    ui::Alignment alignment;
    int width;
    const char* explanation;
};

constexpr std::array<ColumnWords, kOutlookColumns> kColumns{{
    {"Now", ui::Alignment::Right, 3, "Now: the place by the points so far; players with the same points share it."},
    {"Player", ui::Alignment::Left, 17, "Player: choose one to see whom to root for."},
    {"Points", ui::Alignment::Right, 6, "Points: earned so far."},
    {"Possible", ui::Alignment::Right, 8, "Possible: earned, and what the open games can still bring."},
    {"First", ui::Alignment::Right, 7, "First: how often the player ends first, alone or together with others."},
    {"Share", ui::Alignment::Right, 10, "Share: of first place; a first place that several share counts in parts."},
    {"Verdict", ui::Alignment::Left, 7,
     "Verdict: Clinched is always first, Alive can be first, Out cannot, Open is unproven."},
    {"Best", ui::Alignment::Right, 4, "Best: the best place that the player can still end at."},
    {"Worst", ui::Alignment::Right, 5, "Worst: the worst place that the player can still end at."},
    {"Change", ui::Alignment::Right, 6, "Change: of the share, against the results as entered."},
}};

const ColumnWords& wordsOf(OutlookColumn column) { return kColumns.at(static_cast<std::size_t>(column)); }

/// Clinched first, Out last.
int rankOf(Prospect prospect)
{
    switch (prospect) {
    case Prospect::Clinched:
        return 0;
    case Prospect::Alive:
        return 1;
    case Prospect::Open:
        return 2;
    case Prospect::Out:
        break;
    }
    return 3;
}

/// What a column sorts by, the smallest first; for names 0.
double sortKey(const OutlookRow& row, OutlookColumn column)
{
    const auto highestFirst = [](std::optional<double> value) { return value ? -*value : HUGE_VAL; };
    const auto place = [](PlaceBetween between) { return static_cast<double>(between.least + between.most); };
    switch (column) {
    case OutlookColumn::Now:
        return static_cast<double>(row.standing.place);
    case OutlookColumn::Player:
        return 0;
    case OutlookColumn::Points:
        return -row.standing.points;
    case OutlookColumn::Possible:
        return -row.standing.possible;
    case OutlookColumn::First:
        return highestFirst(row.first);
    case OutlookColumn::Share:
        return highestFirst(row.share);
    case OutlookColumn::Best:
        return place(row.best);
    case OutlookColumn::Worst:
        return place(row.worst);
    case OutlookColumn::Verdict:
        return rankOf(row.prospect);
    case OutlookColumn::Change:
        break;
    }
    return highestFirst(row.change);
}

std::string placeText(PlaceBetween place)
{
    const std::string least = std::to_string(place.least);
    return place.isExact() ? least : least + "-" + std::to_string(place.most);
}

std::string shareText(const OutlookRow& row)
{
    if (!row.share)
        return {};
    const std::string share = percentText(*row.share);
    return row.error > 0 ? share + kPlusMinus + fmt::format("{:.1f}", std::max(row.error, 0.1)) : share;
}

} // namespace

std::vector<PlayerStanding> standingsBy(std::span<const Entry> entries, const Bracket& results, const Payoffs& payoffs)
{
    std::vector<PlayerStanding> standings;
    std::vector<int> points;
    for (const Entry& entry : entries) {
        const Score scored = score(entry.picks, results, payoffs);
        standings.push_back({1, scored.points, scored.points + scored.possible});
        points.push_back(scored.points);
    }
    std::ranges::sort(points, std::greater{});
    for (PlayerStanding& standing : standings)
        standing.place += static_cast<std::size_t>(std::ranges::lower_bound(points, standing.points, std::greater{}) -
                                                   points.begin());
    return standings;
}

std::vector<OutlookRow> outlookRows(std::span<const Entry> entries, std::span<const PlayerStanding> standings,
                                    const OutlookFigures& figures, std::span<const double> entered)
{
    std::vector<OutlookRow> rows;
    for (std::size_t player = 0; player < entries.size(); ++player) {
        OutlookRow row;
        row.player = player;
        row.name = entries[player].initials + ", " + entries[player].name;
        row.standing = standings[player];
        row.best = figures.prospects[player].best;
        row.worst = figures.prospects[player].worst;
        row.prospect = figures.prospects[player].prospect;
        if (figures.source != ChanceSource::None) {
            const FirstChances& chances = figures.chances.players[player].all;
            row.first = 100 * (chances.alone + chances.together);
            row.share = 100 * chances.share;
            row.error = 100 * figures.errors[player];
            if (!entered.empty())
                row.change = *row.share - 100 * entered[player];
        }
        rows.push_back(row);
    }
    return rows;
}

void sortRows(std::vector<OutlookRow>& rows, OutlookOrder order)
{
    const auto byName = [](const OutlookRow& left, const OutlookRow& right) {
        return compareFolded(left.name, right.name) < 0;
    };
    std::ranges::stable_sort(rows, byName);
    std::ranges::stable_sort(rows, {}, [](const OutlookRow& row) { return row.standing.place; });
    const auto isBefore = [&](const OutlookRow& left, const OutlookRow& right) {
        if (order.column == OutlookColumn::Player)
            return byName(left, right);
        return sortKey(left, order.column) < sortKey(right, order.column);
    };
    if (order.reversed)
        std::ranges::stable_sort(
            rows, [&](const OutlookRow& left, const OutlookRow& right) { return isBefore(right, left); });
    else
        std::ranges::stable_sort(rows, isBefore);
}

bool isAscending(OutlookOrder order)
{
    constexpr std::array kSmallestFirst{OutlookColumn::Now, OutlookColumn::Player, OutlookColumn::Verdict,
                                        OutlookColumn::Best, OutlookColumn::Worst};
    return (std::ranges::find(kSmallestFirst, order.column) != kSmallestFirst.end()) != order.reversed;
}

std::string sortedWords(OutlookOrder order)
{
    const bool up = isAscending(order);
    const char* how = up ? "from the smallest" : "from the largest";
    if (order.column == OutlookColumn::Player)
        how = up ? "from A to Z" : "from Z to A";
    if (order.column == OutlookColumn::Verdict)
        how = up ? "from Clinched to Out" : "from Out to Clinched";
    return fmt::format("Sorted by {}, {}.", wordsOf(order.column).heading, how);
}

std::string wordOf(Prospect prospect)
{
    constexpr std::array kWords{"Clinched", "Alive", "Open", "Out"};
    return kWords.at(static_cast<std::size_t>(rankOf(prospect)));
}

std::string percentText(double percent)
{
    if (percent > 0 && percent < kSmallestShown)
        return "< 0.1 %";
    if (percent < 100 && percent >= 100 - kSmallestShown)
        return "> 99.9 %";
    return fmt::format("{:.1f} %", percent);
}

std::string changeText(double percent)
{
    return std::abs(percent) < kSmallestShown ? "0.0" : fmt::format("{:+.1f}", percent);
}

std::string cellOf(const OutlookRow& row, OutlookColumn column)
{
    switch (column) {
    case OutlookColumn::Now:
        return std::to_string(row.standing.place);
    case OutlookColumn::Player:
        return row.name;
    case OutlookColumn::Points:
        return std::to_string(row.standing.points);
    case OutlookColumn::Possible:
        return std::to_string(row.standing.possible);
    case OutlookColumn::First:
        return row.first ? percentText(*row.first) : std::string{};
    case OutlookColumn::Share:
        return shareText(row);
    case OutlookColumn::Best:
        return placeText(row.best);
    case OutlookColumn::Worst:
        return placeText(row.worst);
    case OutlookColumn::Verdict:
        return wordOf(row.prospect);
    case OutlookColumn::Change:
        break;
    }
    return row.change ? changeText(*row.change) : std::string{};
}

std::vector<ui::GridColumn> outlookColumns()
{
    std::vector<ui::GridColumn> columns;
    for (const ColumnWords& words : kColumns)
        columns.push_back({words.heading, words.alignment, words.width});
    columns.at(static_cast<std::size_t>(OutlookColumn::Player)).grows = true;
    return columns;
}

std::string explanationOf(OutlookColumn column) { return wordsOf(column).explanation; }

std::string explanationOf(Prospect prospect)
{
    switch (prospect) {
    case Prospect::Clinched:
        return "Clinched: first in every outcome that is left, alone or together with others.";
    case Prospect::Alive:
        return "Alive: first in at least one outcome that is left.";
    case Prospect::Out:
        return "Out: first in no outcome that is left.";
    case Prospect::Open:
        break;
    }
    return "Open: not proven yet whether the player can still be first.";
}

} // namespace tallyhoop
