// reports/outlook_rows.h - a row for each player of an outlook: who is where, who can still be first, what it is worth.
#pragma once

#include "pool/entry.h"
#include "pool/outlook/figures.h"
#include "pool/payoffs.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// How a player stands by some results. Points are whole points.
struct PlayerStanding {
    std::size_t place = 1; ///< one more than the number of players with more points
    int points = 0;
    int possible = 0; ///< earned and still possible
};

/// @returns one for each entry, in their order
std::vector<PlayerStanding> standingsBy(std::span<const Entry> entries, const Bracket& results, const Payoffs& payoffs);

/// What there is to know of each player, in the order in which tables show it.
enum class OutlookColumn { Now, Player, Points, Possible, First, Share, Verdict, Best, Worst, Change };
inline constexpr std::size_t kOutlookColumns = 10;

/// A player's row. Chances are in percent, 0..100; nothing = not known yet. What is proven goes before what a forecast
/// has found: who is Out has no chance, and who has Clinched is always first.
struct OutlookRow {
    std::size_t player = 0; ///< in the order of the entries
    std::string name{};     ///< see nameInRow()
    PlayerStanding standing{};
    std::optional<double> first{}; ///< the chance to be first, alone or together with others
    std::optional<double> share{}; ///< of first place: where k players share it, each has 1/k
    double error = 0;              ///< the standard error of the share; 0 = exact
    PlaceBetween best{};
    PlaceBetween worst{};
    Prospect prospect = Prospect::Open;
    std::optional<double> change{}; ///< of the share, against the results as entered, 0 where it is within its error;
                                    ///< nothing = nothing is supposed
};

/// Everybody's shares of first place by the results as entered.
struct SharesAsEntered {
    std::vector<double> shares; ///< 0..1, one for each entry; empty = there is nothing to compare
    std::vector<double> errors; ///< the standard error of each; 0 = counted
};

/// @returns what a player is called in a table: initials, ", ", name; a selection without either has that of its file
std::string nameInRow(const Entry& entry);

/// @returns what a player is called in a sentence: by name, else by what the table has
std::string nameInSentence(const Entry& entry);

/// @param standings one for each entry
/// @returns one for each entry, in their order
std::vector<OutlookRow> outlookRows(std::span<const Entry> entries, std::span<const PlayerStanding> standings,
                                    const OutlookFigures& figures, const SharesAsEntered& entered = {});

/// @param percent one of the row's chances
/// @returns as percentInWords(), but never nothing and never everything for who is Alive, also where no sample of a
///          forecast has shown it; empty where nothing is known
std::string chanceInWords(const OutlookRow& row, std::optional<double> percent);

/// @returns as percentAsNumber(); as chanceInWords() where no number is known that agrees with the verdict
std::string chanceAsNumber(const OutlookRow& row, std::optional<double> percent);

/// By which column the rows are sorted, and whether upside down.
struct OutlookOrder {
    OutlookColumn column = OutlookColumn::Share;
    bool reversed = false;

    friend bool operator==(const OutlookOrder&, const OutlookOrder&) = default;
};

/// Sorts by one column: the best places and the highest numbers first, names from A to Z, Clinched before Alive before
/// Open before Out, what is not known last. Rows that are equal there are in the order of their places, then of their
/// names.
void sortRows(std::vector<OutlookRow>& rows, OutlookOrder order);

} // namespace tallyhoop
