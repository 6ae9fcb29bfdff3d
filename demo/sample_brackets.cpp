// demo/sample_brackets.cpp - the four brackets, winner by winner.
#include "demo/sample_brackets.h"

namespace tallyhoop::demo {

// Favorite: the better seed wins every game; among the first seeds Duke comes out on top.
namespace favorite {

constexpr RegionWinners kWest{
    .round1 = {"Arizona", "Wisconsin", "Texas", "LSU", "Purdue", "Oklahoma", "Louisville", "St. John's"},
    .round2 = {"Arizona", "LSU", "Oklahoma", "St. John's"},
    .round3 = {"Arizona", "St. John's"},
    .winner = "Arizona"};
constexpr RegionWinners kMidwest{
    .round1 = {"Michigan St.", "Utah", "Kentucky", "Syracuse", "UCLA", "Maryland", "Auburn", "Iowa St."},
    .round2 = {"Michigan St.", "Syracuse", "Maryland", "Iowa St."},
    .round3 = {"Michigan St.", "Iowa St."},
    .winner = "Michigan St."};
constexpr RegionWinners kEast{
    .round1 = {"Duke", "Kansas", "Florida", "Illinois", "Indiana", "Oklahoma St.", "Oregon", "Temple"},
    .round2 = {"Duke", "Illinois", "Oklahoma St.", "Temple"},
    .round3 = {"Duke", "Temple"},
    .winner = "Duke"};
constexpr RegionWinners kSouth{.round1 = {"Stanford", "North Carolina", "Connecticut", "Tennessee", "Miami (FL)",
                                          "Ohio St.", "Tulsa", "Cincinnati"},
                               .round2 = {"Stanford", "Tennessee", "Ohio St.", "Cincinnati"},
                               .round3 = {"Stanford", "Cincinnati"},
                               .winner = "Stanford"};
constexpr Winners kWinners{.regions = {kWest, kMidwest, kEast, kSouth},
                           .semifinalA = "Michigan St.",
                           .semifinalB = "Duke",
                           .champion = "Duke"};

} // namespace favorite

// Longshot: an upset wherever one can be imagined.
namespace longshot {

constexpr RegionWinners kWest{
    .round1 = {"Arizona", "Fresno St.", "Indiana St.", "LSU", "Dayton", "Oklahoma", "Gonzaga", "St. John's"},
    .round2 = {"Arizona", "Indiana St.", "Dayton", "Gonzaga"},
    .round3 = {"Indiana St.", "Gonzaga"},
    .winner = "Gonzaga"};
constexpr RegionWinners kMidwest{.round1 = {"Michigan St.", "St. Louis", "St. Bonaventure", "Syracuse", "Ball St.",
                                            "Maryland", "Creighton", "Iowa St."},
                                 .round2 = {"St. Louis", "Syracuse", "Ball St.", "Creighton"},
                                 .round3 = {"Syracuse", "Creighton"},
                                 .winner = "Syracuse"};
constexpr RegionWinners kEast{
    .round1 = {"Duke", "DePaul", "Butler", "Illinois", "Pepperdine", "Hofstra", "Seton Hall", "Temple"},
    .round2 = {"DePaul", "Butler", "Pepperdine", "Seton Hall"},
    .round3 = {"Butler", "Seton Hall"},
    .winner = "Seton Hall"};
constexpr RegionWinners kSouth{
    .round1 = {"Stanford", "Missouri", "Utah St.", "Tennessee", "Arkansas", "Ohio St.", "Tulsa", "Cincinnati"},
    .round2 = {"Missouri", "Utah St.", "Arkansas", "Tulsa"},
    .round3 = {"Missouri", "Tulsa"},
    .winner = "Tulsa"};
constexpr Winners kWinners{
    .regions = {kWest, kMidwest, kEast, kSouth}, .semifinalA = "Gonzaga", .semifinalB = "Tulsa", .champion = "Gonzaga"};

} // namespace longshot

// Prophet: the right champion, and the right final, in a middling bracket.
namespace prophet {

constexpr RegionWinners kWest{
    .round1 = {"Arizona", "Wisconsin", "Indiana St.", "LSU", "Purdue", "Oklahoma", "Gonzaga", "St. John's"},
    .round2 = {"Arizona", "LSU", "Purdue", "Gonzaga"},
    .round3 = {"Arizona", "Purdue"},
    .winner = "Purdue"};
constexpr RegionWinners kMidwest{
    .round1 = {"Michigan St.", "St. Louis", "Kentucky", "Syracuse", "UCLA", "Maryland", "Auburn", "Iowa St."},
    .round2 = {"Michigan St.", "Kentucky", "UCLA", "Iowa St."},
    .round3 = {"Michigan St.", "Iowa St."},
    .winner = "Michigan St."};
constexpr RegionWinners kEast{
    .round1 = {"Duke", "Kansas", "Florida", "Illinois", "Indiana", "Oklahoma St.", "Oregon", "Temple"},
    .round2 = {"Duke", "Florida", "Oklahoma St.", "Temple"},
    .round3 = {"Florida", "Temple"},
    .winner = "Florida"};
constexpr RegionWinners kSouth{.round1 = {"Stanford", "North Carolina", "Connecticut", "Tennessee", "Miami (FL)",
                                          "Ohio St.", "Tulsa", "Cincinnati"},
                               .round2 = {"Stanford", "Tennessee", "Ohio St.", "Cincinnati"},
                               .round3 = {"Tennessee", "Cincinnati"},
                               .winner = "Cincinnati"};
constexpr Winners kWinners{.regions = {kWest, kMidwest, kEast, kSouth},
                           .semifinalA = "Michigan St.",
                           .semifinalB = "Florida",
                           .champion = "Michigan St."};

} // namespace prophet

// Halfway: given up halfway: one side of the bracket is there, the other was never finished.
namespace halfway {

constexpr RegionWinners kWest{
    .round1 = {"Arizona", "Wisconsin", "Texas", "LSU", "Purdue", "Oklahoma", "Louisville", "St. John's"},
    .round2 = {"Arizona", "Texas", "Purdue", "St. John's"},
    .round3 = {"Arizona", "Purdue"},
    .winner = "Arizona"};
constexpr RegionWinners kMidwest{
    .round1 = {"Michigan St.", "Utah", "Kentucky", "Syracuse", "UCLA", "Maryland", "Creighton", "Iowa St."},
    .round2 = {"Michigan St.", "Syracuse", "Maryland", "Iowa St."},
    .round3 = {"Michigan St.", "Maryland"},
    .winner = "Michigan St."};
constexpr RegionWinners kEast{
    .round1 = {"Duke", "Kansas", "Butler", "Illinois", "Pepperdine", "Oklahoma St.", "Oregon", "Temple"},
    .round2 = {"Duke", "Illinois", "Oklahoma St.", "Temple"},
    .round3 = {},
    .winner = {}};
constexpr RegionWinners kSouth{.round1 = {"Stanford", "North Carolina", "Connecticut", "Tennessee", "Miami (FL)",
                                          "Ohio St.", "UNLV", "Cincinnati"},
                               .round2 = {},
                               .round3 = {},
                               .winner = {}};
constexpr Winners kWinners{
    .regions = {kWest, kMidwest, kEast, kSouth}, .semifinalA = "Michigan St.", .semifinalB = {}, .champion = {}};

} // namespace halfway

const Winners& favouritesBracket() { return favorite::kWinners; }
const Winners& upsetLoversBracket() { return longshot::kWinners; }
const Winners& rightChampionsBracket() { return prophet::kWinners; }
const Winners& incompleteBracket() { return halfway::kWinners; }

} // namespace tallyhoop::demo
