// demo/sample_tournament.cpp - the field of 64 and its winners.
#include "demo/sample_tournament.h"

#include <string>

namespace tallyhoop::demo {

namespace {

constexpr RegionWinners kWest{
    .round1 = {"Arizona", "Wisconsin", "Texas", "LSU", "Purdue", "Oklahoma", "Gonzaga", "St. John's"},
    .round2 = {"Wisconsin", "LSU", "Purdue", "Gonzaga"},
    .round3 = {"Wisconsin", "Purdue"},
    .winner = "Wisconsin"};

constexpr RegionWinners kMidwest{
    .round1 = {"Michigan St.", "Utah", "Kentucky", "Syracuse", "UCLA", "Maryland", "Auburn", "Iowa St."},
    .round2 = {"Michigan St.", "Syracuse", "UCLA", "Iowa St."},
    .round3 = {"Michigan St.", "Iowa St."},
    .winner = "Michigan St."};

constexpr RegionWinners kEast{
    .round1 = {"Duke", "Kansas", "Florida", "Illinois", "Pepperdine", "Oklahoma St.", "Seton Hall", "Temple"},
    .round2 = {"Duke", "Florida", "Oklahoma St.", "Seton Hall"},
    .round3 = {"Florida", "Oklahoma St."},
    .winner = "Florida"};

constexpr RegionWinners kSouth{.round1 = {"Stanford", "North Carolina", "Connecticut", "Tennessee", "Miami (FL)",
                                          "Ohio St.", "Tulsa", "Cincinnati"},
                               .round2 = {"North Carolina", "Tennessee", "Miami (FL)", "Tulsa"},
                               .round3 = {"North Carolina", "Tulsa"},
                               .winner = "North Carolina"};

} // namespace

const ByTeamRow<std::string_view> kSampleField = {
    {// West
     "Arizona", "Jackson St.", "Wisconsin", "Fresno St.", "Texas", "Indiana St.", "LSU", "SE Missouri St.", "Purdue",
     "Dayton", "Oklahoma", "Winthrop", "Louisville", "Gonzaga", "St. John's", "Northern Arizona",
     // Midwest
     "Michigan St.", "Valparaiso", "Utah", "St. Louis", "Kentucky", "St. Bonaventure", "Syracuse", "Samford", "UCLA",
     "Ball St.", "Maryland", "Iona", "Auburn", "Creighton", "Iowa St.", "Central Conn. St.",
     // East
     "Duke", "Lamar", "Kansas", "DePaul", "Florida", "Butler", "Illinois", "Pennsylvania", "Indiana", "Pepperdine",
     "Oklahoma St.", "Hofstra", "Oregon", "Seton Hall", "Temple", "Lafayette",
     // South
     "Stanford", "S. Carolina St.", "North Carolina", "Missouri", "Connecticut", "Utah St.", "Tennessee",
     "Louisiana-Lafayette", "Miami (FL)", "Arkansas", "Ohio St.", "Appalachian St.", "Tulsa", "UNLV", "Cincinnati",
     "UNC Wilmington"}};

const Winners kSampleResults{
    .regions = {kWest, kMidwest, kEast, kSouth}, .semifinalA = {}, .semifinalB = {}, .champion = {}};

Bracket bracketOf(const Winners& winners)
{
    ByPosition<std::string_view> teams;
    for (const TeamRow row : allTeamRows())
        teams[positionOf(row)] = kSampleField[row];
    for (int region = 0; region < kRegions; ++region) {
        const RegionWinners& won = winners.regions.at(static_cast<std::size_t>(region));
        auto game = gamesOfRegion(region).begin();
        const auto fill = [&](const auto& names) {
            for (const std::string_view name : names)
                teams[*game++] = name;
        };
        fill(won.round1);
        fill(won.round2);
        fill(won.round3);
        teams[*game] = won.winner;
    }
    teams[kSemifinalA] = winners.semifinalA;
    teams[kSemifinalB] = winners.semifinalB;
    teams[kChampion] = winners.champion;
    return Bracket::of(teams);
}

} // namespace tallyhoop::demo
