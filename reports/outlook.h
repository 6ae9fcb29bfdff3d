// reports/outlook.h - who can still be first: a row for each player, and the text report of them.
#pragma once

#include "pool/outlook/prospects.h"
#include "pool/scoring.h"
#include "reports/report_layout.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

inline constexpr const char* kOutlookFile = "OUTLOOK.TXT"; ///< bare name of the report's text file

/// How the chances of the open games were made: see pool/outlook/chances.h.
enum class ChanceModel { Alike, BySeed, AsPicked };

/// What an outlook is made from.
struct OutlookBasis {
    ChanceModel chances = ChanceModel::Alike;
    std::size_t openGames = 0;
    std::uint64_t samples = 0; ///< of the forecast; 0 = every outcome was counted
    std::uint64_t seed = 0;    ///< of the forecast
    double error = 0;          ///< of the forecast: the largest standard error of a player's share, 0..1
};

/// How one player stands.
struct OutlookReportRow {
    std::size_t player = 0; ///< index in what the rows were made of
    std::size_t place = 1;  ///< now: one more than the players with more points
    std::string playerName;
    int points = 0;
    int possible = 0; ///< earned and still possible
    double first = 0; ///< of all outcomes by their chances, 0..1: those in which the player is first, alone or not
    double share = 0; ///< the same, where one that k players share counts 1/k
    PlaceBetween best{};
    PlaceBetween worst{};
    Prospect verdict = Prospect::Open;
};

/// Puts together what is known of each player.
/// @param scores    one for each player, in any order; chances and prospects are in the same order
/// @param chances   to be first
/// @param prospects with what counts have added to them
/// @returns the rows in the order of the standings
std::vector<OutlookReportRow> outlookReportRows(std::span<const PlayerScore> scores,
                                                std::span<const FirstChances> chances,
                                                std::span<const PlayerProspect> prospects);

/// Says in words which chances an outlook is made with, and whether it was counted or is a forecast.
/// @returns lines of up to 75 characters
std::vector<std::string> basisInWords(const OutlookBasis& basis);

/// @returns "Clinched", "Alive", "Out" or "Open"
std::string verdictInWords(Prospect verdict);

/// @returns "2", or "2-5" where the place is only known to lie between the two
std::string placeInWords(const PlaceBetween& place);

/// Writes a part of 0..1 in percent with one decimal, halves to even: "12.5". What rounds to 0.0 without being nothing
/// is "<0.1", and what rounds to 100.0 without being everything is ">99.9".
std::string percentInWords(double part);

/// Lays the report out.
/// @param title centred on every page; one that is too wide starts at the left edge
/// @param rows  in the order in which they are to be printed; none = no lines
ReportLines outlookLines(std::string_view title, const OutlookBasis& basis, std::span<const OutlookReportRow> rows);

} // namespace tallyhoop
