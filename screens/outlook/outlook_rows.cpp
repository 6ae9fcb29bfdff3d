// screens/outlook/outlook_rows.cpp - what the cells show, and what the columns mean.
#include "screens/outlook/outlook_rows.h"

#include "reports/outlook_words.h"

#include <algorithm>
#include <array>

namespace tallyhoop {

namespace {

struct ColumnWords {
    const char* heading;
    ui::Alignment alignment;
    int width;
    const char* explanation;
};

constexpr std::array<ColumnWords, kOutlookColumns> kColumns{{
    {"Now", ui::Alignment::Right, 3, "Now: the place by the points so far; players with the same points share it."},
    {"Player", ui::Alignment::Left, 16, "Player: choose one to see whom to root for."},
    {"Points", ui::Alignment::Right, 6, "Points: earned so far."},
    {"Possible", ui::Alignment::Right, 8, "Possible: earned, and what the open games can still bring."},
    {"First", ui::Alignment::Right, 7, "First: how often the player ends first, alone or together with others."},
    {"Share", ui::Alignment::Right, 11, "Share: of first place; a first place that several share counts in parts."},
    {"Verdict", ui::Alignment::Left, 7,
     "Verdict: Clinched is always first, Alive can be first, Out cannot, Open is unproven."},
    {"Best", ui::Alignment::Right, 4, "Best: the best place that the player can still end at."},
    {"Worst", ui::Alignment::Right, 5, "Worst: the worst place that the player can still end at."},
    {"Change", ui::Alignment::Right, 6,
     "Change: of the share, against the results as entered; 0.0 within the error of a forecast."},
}};

const ColumnWords& wordsOf(OutlookColumn column) { return kColumns.at(static_cast<std::size_t>(column)); }

std::string withSign(const std::string& percent) { return percent.empty() ? percent : percent + " %"; }

} // namespace

bool isAscending(OutlookOrder order)
{
    constexpr std::array kSmallestFirst{OutlookColumn::Now, OutlookColumn::Player, OutlookColumn::Verdict,
                                        OutlookColumn::Best, OutlookColumn::Worst};
    return (std::ranges::find(kSmallestFirst, order.column) != kSmallestFirst.end()) != order.reversed;
}

std::string sortedInWords(OutlookOrder order)
{
    const bool up = isAscending(order);
    std::string how = up ? "from the smallest" : "from the largest";
    if (order.column == OutlookColumn::Player)
        how = up ? "from A to Z" : "from Z to A";
    if (order.column == OutlookColumn::Verdict)
        how = up ? "from Clinched to Out" : "from Out to Clinched";
    return std::string{"Sorted by "} + wordsOf(order.column).heading + ", " + how + ".";
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
        return withSign(chanceInWords(row, row.first));
    case OutlookColumn::Share:
        return withError(withSign(chanceInWords(row, row.share)), row.error);
    case OutlookColumn::Best:
        return placeInWords(row.best);
    case OutlookColumn::Worst:
        return placeInWords(row.worst);
    case OutlookColumn::Verdict:
        return verdictInWords(row.prospect);
    case OutlookColumn::Change:
        break;
    }
    return row.change ? changeInWords(*row.change) : std::string{};
}

std::vector<ui::GridColumn> outlookColumns(std::size_t players)
{
    std::vector<ui::GridColumn> columns;
    columns.reserve(kColumns.size());
    for (const ColumnWords& words : kColumns)
        columns.push_back({words.heading, words.alignment, words.width});
    columns.at(static_cast<std::size_t>(OutlookColumn::Player)).grows = true;
    const int digits = static_cast<int>(std::to_string(players).size());
    const auto widen = [&columns](OutlookColumn column, int characters) {
        int& width = columns.at(static_cast<std::size_t>(column)).width;
        width = std::max(width, characters);
    };
    widen(OutlookColumn::Now, digits);
    for (const OutlookColumn place : {OutlookColumn::Best, OutlookColumn::Worst})
        widen(place, 2 * digits + 1); // "980-1000"
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
