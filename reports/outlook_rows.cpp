// reports/outlook_rows.cpp - places, percentages, and the order of the rows.
#include "reports/outlook_rows.h"

#include "base/windows1252.h"
#include "pool/scoring.h"
#include "reports/outlook_words.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace tallyhoop {

namespace {

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

/// @returns the chance, or what is nearest to it of what is possible for who is Alive
std::optional<double> possibleChance(const OutlookRow& row, std::optional<double> percent)
{
    constexpr double kLeast = 1e-9; // anything that is written as neither nothing nor everything
    if (!percent || row.prospect != Prospect::Alive)
        return percent;
    return std::clamp(*percent, kLeast, 100 - kLeast);
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
        return highestFirst(possibleChance(row, row.first));
    case OutlookColumn::Share:
        return highestFirst(possibleChance(row, row.share));
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

/// A forecast does not know what is proven.
void agreeWithVerdict(OutlookRow& row)
{
    if (row.prospect == Prospect::Clinched)
        row.first = 100;
    if (row.prospect == Prospect::Out) {
        row.first = row.share = 0;
        row.error = 0;
    }
}

void addChances(OutlookRow& row, const OutlookFigures& figures, const SharesAsEntered& entered)
{
    const FirstChances& chances = figures.chances.players[row.player].all;
    row.first = 100 * (chances.alone + chances.together);
    row.share = 100 * chances.share;
    row.error = 100 * figures.errors[row.player];
    agreeWithVerdict(row);
    if (entered.shares.empty())
        return;
    const double change = *row.share - 100 * entered.shares[row.player];
    row.change = isBeyondError(change, std::hypot(row.error, 100 * entered.errors[row.player])) ? change : 0;
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

std::string nameInRow(const Entry& entry)
{
    return entry.initials.empty() && entry.name.empty() ? entry.fileName : entry.initials + ", " + entry.name;
}

std::string nameInSentence(const Entry& entry)
{
    if (!entry.name.empty())
        return entry.name;
    return entry.initials.empty() ? entry.fileName : entry.initials;
}

std::vector<OutlookRow> outlookRows(std::span<const Entry> entries, std::span<const PlayerStanding> standings,
                                    const OutlookFigures& figures, const SharesAsEntered& entered)
{
    std::vector<OutlookRow> rows;
    for (std::size_t player = 0; player < entries.size(); ++player) {
        OutlookRow row;
        row.player = player;
        row.name = nameInRow(entries[player]);
        row.standing = standings[player];
        row.best = figures.prospects[player].best;
        row.worst = figures.prospects[player].worst;
        row.prospect = figures.prospects[player].prospect;
        if (figures.source != ChanceSource::None)
            addChances(row, figures, entered);
        rows.push_back(row);
    }
    return rows;
}

std::string chanceInWords(const OutlookRow& row, std::optional<double> percent)
{
    const std::optional<double> possible = possibleChance(row, percent);
    return possible ? percentInWords(*possible) : std::string{};
}

std::string chanceAsNumber(const OutlookRow& row, std::optional<double> percent)
{
    const bool agrees = possibleChance(row, percent) == percent;
    return percent && agrees ? percentAsNumber(*percent) : chanceInWords(row, percent);
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

} // namespace tallyhoop
