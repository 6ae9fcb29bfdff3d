// reports/outlook_words.h - the words for what an outlook knows, the same on the screen, in the text, on paper and in a
// copy.
#pragma once

#include "pool/bracket.h"
#include "pool/outlook/chances.h"
#include "pool/outlook/figures.h"
#include "pool/outlook/forecast.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tallyhoop {

/// What an outlook is made from.
struct OutlookBasis {
    ChanceKind chances = ChanceKind::Alike;
    std::size_t openGames = 0; ///< 0..63
    ChanceSource source = ChanceSource::Counted;
    std::uint64_t samples = 0; ///< of a forecast
    std::uint64_t seed = kForecastSeed;
    double error = 0;        ///< of a forecast: the largest standard error of a player's share, in percentage points
    bool isSupposed = false; ///< by results other than those entered
};

OutlookBasis basisOf(ChanceKind chances, std::size_t openGames, const OutlookFigures& figures);

/// @returns which chances these are, such as "all outcomes alike": these are never called a chance to win
std::string chancesInWords(ChanceKind chances);

/// Says in words which chances an outlook is made with, and whether it was counted or is a forecast: how large, from
/// which seed, and with which error.
/// @returns lines of up to 75 characters, without full stops
std::vector<std::string> basisInWords(const OutlookBasis& basis);

/// Says that an outlook is not that of the results as entered, and how many winners differ; up to twelve are named.
/// @returns lines, of up to 75 characters unless a team's name is longer; none when the two are alike
std::vector<std::string> whatIfInWords(const Bracket& entered, const Bracket& supposed);

/// @returns "Clinched", "Alive", "Out" or "Open"
std::string verdictInWords(Prospect verdict);

/// @returns "2", or "2-5" where the place is only known to lie between the two
std::string placeInWords(const PlaceBetween& place);

/// Writes a percentage of 0..100 with one decimal, halves to even: "12.5". What rounds to 0.0 without being nothing is
/// "<0.1", and what rounds to 100.0 without being everything is ">99.9".
std::string percentInWords(double percent);

/// The same as a number that a spreadsheet can calculate with: where percentInWords() cannot give a number, with as
/// many decimals as it takes, "0.04" or "99.98".
std::string percentAsNumber(double percent);

/// Writes a standard error in percentage points with two decimals, rounded up, so that none is less than it is: "0.27".
std::string errorInWords(double percent);

/// @param figure in words
/// @param error  its standard error in percentage points
/// @returns the figure with the error after it, as errorInWords() writes it; alone where it is exact
std::string withError(const std::string& figure, double error);

/// @returns "+4.1", "-0.3"; "0.0" for what rounds to nothing
std::string changeInWords(double percent);

} // namespace tallyhoop
